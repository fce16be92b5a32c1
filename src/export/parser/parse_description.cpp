#include "export/parser/parse_description.hpp"

#include <cstring>

#include "export/parser/description_parser.hpp"

namespace benchlog {
namespace {

// The line loop: the lines of the PID from `start` on, up to the first other line after a match.
template <typename Line>
void ParseLines(std::string_view pid, std::span<const Line> lines, std::size_t start, const ParseGroups& groups,
                std::string& ErrMsg, MarkRecord& record, SupportFiles& support) {
  record.RecordKind = "R";
  record.Epoch.Clear();
  record.Net.Clear();
  record.LastReporter.Clear();

  DescriptionParser parser(record, groups, support);
  bool matched = false;
  // Columns 2 to 7 against the PID, compared with a fixed length where the PID has its six
  // characters: this runs for every line.
  const bool sixCharacters = pid.size() == 6;
  for (std::size_t i = start; i < lines.size(); ++i) {
    const std::string_view line = lines[i];
    const bool samePid = sixCharacters ? line.size() >= 7 && std::memcmp(line.data() + 1, pid.data(), 6) == 0
                                       : Cols(line, 2, 6) == pid;
    if (!samePid) {
      if (matched) break;
      continue;
    }
    matched = true;
    const std::string_view next = i + 1 < lines.size() ? std::string_view(lines[i + 1]) : std::string_view();
    parser.ReadLine(line, next);
  }
  parser.Finish();
  if (!matched) ErrMsg = "Data not found!";
}

}  // namespace

void ParseDescription(std::string_view pid, std::span<const std::string> lines, std::size_t start,
                      const ParseGroups& groups, std::string& ErrMsg, MarkRecord& record,
                      SupportFiles& support) {
  ParseLines(pid, lines, start, groups, ErrMsg, record, support);
}

void ParseDescription(std::string_view pid, std::span<const std::string_view> lines, std::size_t start,
                      const ParseGroups& groups, std::string& ErrMsg, MarkRecord& record,
                      SupportFiles& support) {
  ParseLines(pid, lines, start, groups, ErrMsg, record, support);
}

}  // namespace benchlog
