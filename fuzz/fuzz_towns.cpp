// "Towns.txt": every line read as the plot reads it, and the file merged as new towns are added.
#include "common/runtime_failure.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"
#include "support_files/towns_file.hpp"
#include "web/town_update.hpp"

namespace benchlog::fuzz {

int FuzzTowns(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = AsText(data, size);
  try {
    for (const std::string_view line : InputLines(text)) {
      const TownLine town = ReadTownLine(line);
      (void)TownInExtent(town, 30, 70, 40, 80);
    }
    (void)MergeTowns(text);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace benchlog::fuzz
