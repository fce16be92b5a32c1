// The delimited reader: the first line is the dialog's choices, "slots;...^delimiter^order^technique"
// (the slots are the column names, at most ten), and every later line is a line of the file.
#include <array>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"
#include "handheld/delimited_line.hpp"

namespace benchlog::fuzz {

int FuzzDelimited(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::string_view> lines = InputLines(AsText(data, size));
  if (lines.empty()) return 0;
  std::vector<std::string> choices = Split(lines.front(), "^");
  choices.resize(4);
  const std::string delimiter = choices[1].empty() ? std::string(",") : choices[1];
  std::array<std::string, 10> slots;
  const std::vector<std::string> names = Split(choices[0], ";");
  for (std::size_t i = 0; i < names.size() && i < slots.size(); ++i) slots[i] = names[i];
  const DelimitedColumns columns = IdentifyColumns(slots);
  const DelimitedAttributes attributes{choices[2], choices[3]};
  std::string agency = "FUZZ", record;
  try {
    for (std::size_t i = 1; i < lines.size(); ++i)
      if (ConvertDelimitedLine(lines[i], delimiter, columns, attributes, agency, record) == LineResult::kStop) break;
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace benchlog::fuzz
