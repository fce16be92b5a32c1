// The waypoint readers, GPX and a receiver's text export, fed line by line.
#include "common/runtime_failure.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"
#include "handheld/waypoint_lines.hpp"

namespace benchlog::fuzz {
namespace {

template <class Reader>
int ReadEveryLine(const std::uint8_t* data, std::size_t size) {
  Reader reader("FUZZ");
  std::string record;
  try {
    for (const std::string_view line : InputLines(AsText(data, size))) (void)reader.ReadLine(line, record);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace

int FuzzGpx(const std::uint8_t* data, std::size_t size) { return ReadEveryLine<GpxReader>(data, size); }
int FuzzGarmin(const std::uint8_t* data, std::size_t size) { return ReadEveryLine<GarminReader>(data, size); }

}  // namespace benchlog::fuzz
