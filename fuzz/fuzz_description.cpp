// The Description parser over any lines; the PID is that of the first line (columns 2 to 7).
#include "common/runtime_failure.hpp"
#include "export/parser/parse_description.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"

namespace benchlog::fuzz {

int FuzzDescription(const std::uint8_t* data, std::size_t size) {
  static SupportFiles& support = *[] {
    auto* files = new SupportFiles;  // kept for the process: the tables are read once
    files->Refresh(SupportFolder(), {});
    return files;
  }();
  const std::vector<std::string_view> lines = InputLines(AsText(data, size));
  const std::string_view first = lines.empty() ? std::string_view() : lines.front();
  const std::string_view pid = first.substr(first.empty() ? 0 : 1, 6);
  std::string error;
  MarkRecord record;
  ClearMarkRecord(record);
  try {
    ParseDescription(pid, std::span<const std::string_view>(lines), 0, ParseGroups{}, error, record, support);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace benchlog::fuzz
