#include "fuzz_input.hpp"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace benchlog::fuzz {

std::vector<std::string_view> InputLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t cr = text.find('\r');
    lines.push_back(text.substr(0, cr));
    if (cr == std::string_view::npos) break;
    text.remove_prefix(cr + 1);
    if (!text.empty() && text.front() == '\n') text.remove_prefix(1);
  }
  return lines;
}

namespace {

// Made at the first use, removed when the process ends.
struct Scratch {
  Scratch() {
    namespace fs = std::filesystem;
    const fs::path base = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
    const fs::path path = base / ("benchlog-fuzz-" + std::to_string(getpid()));
    fs::create_directories(path);
    folder = path.string() + "/";
  }
  ~Scratch() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }
  std::string folder;
};

}  // namespace

const std::string& ScratchFolder() {
  static const Scratch scratch;
  return scratch.folder;
}

std::string WriteScratchFile(const std::string& name, std::string_view text) {
  const std::string path = ScratchFolder() + name;
  std::ofstream(path, std::ios::binary | std::ios::trunc).write(text.data(), static_cast<std::streamsize>(text.size()));
  return path;
}

std::string SupportFolder() { return BENCHLOG_SUPPORT_DIR "/"; }

}  // namespace benchlog::fuzz
