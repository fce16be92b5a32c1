#pragma once
// Helpers of the fuzz bodies: the input as text, its lines as the program's line input splits a
// file, and one scratch folder in memory for the readers that take a path.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace benchlog::fuzz {

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Lines ended by CR, a CR LF counting as one end; a lone LF stays inside its line.
std::vector<std::string_view> InputLines(std::string_view text);

// A folder of this process in /dev/shm (the temporary folder when there is none), made once and
// reused by every call; ends in a separator.
const std::string& ScratchFolder();

// Writes `text` to `name` in the scratch folder and returns the file's path.
std::string WriteScratchFile(const std::string& name, std::string_view text);

// The support files that ship with the program (their folder, ending in a separator).
std::string SupportFolder();

}  // namespace benchlog::fuzz
