// The service's answers read by their lines: the mark lists of every kind, and the town rows as
// they are added to the towns file.
#include "common/text.hpp"
#include "common/runtime_failure.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"
#include "web/mark_list_lines.hpp"
#include "web/town_update.hpp"

namespace benchlog::fuzz {

int FuzzMarkList(const std::uint8_t* data, std::size_t size) {
  const std::string_view answer = AsText(data, size);
  try {
    for (auto isRecord : {IsCountyRecord, IsRadiusRecord, IsProjectRecord}) (void)ChoiceEntries(answer, isRecord);
    std::string towns;
    for (const std::string& line : Split(UCase(answer), "\r\n")) towns += TownTextOfRow(line);
    (void)MergeTowns(towns);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace benchlog::fuzz
