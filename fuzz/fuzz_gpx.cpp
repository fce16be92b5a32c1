// The GPX waypoint reader, line by line.
#include "common/runtime_failure.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"
#include "handheld/waypoint_lines.hpp"

namespace benchlog::fuzz {

int FuzzGpx(const std::uint8_t* data, std::size_t size) {
  GpxReader reader("FUZZ");
  std::string record;
  try {
    for (const std::string_view line : InputLines(AsText(data, size))) (void)reader.ReadLine(line, record);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace benchlog::fuzz
