#include "web/mark_list_lines.hpp"

#include "common/text.hpp"

namespace benchlog {

bool IsCountyRecord(std::string_view line) { return Left(line, 6) == "|....|"; }

bool IsRadiusRecord(std::string_view line) {
  return Left(line, 1) == "|" && Mid(line, 2, 1) != "-" && Mid(line, 7, 1) != "P";
}

bool IsProjectRecord(std::string_view line) { return Mid(line, 29, 2) == "|N"; }

std::string ChoiceEntry(std::string_view line) { return Mid(line, 7, 11) + " " + Mid(line, 52, 30); }

std::vector<std::string> ChoiceEntries(std::string_view answer, bool (*isRecord)(std::string_view)) {
  std::vector<std::string> entries;
  for (const std::string_view line : SplitViews(answer, "\n"))
    if (isRecord(line)) entries.push_back(ChoiceEntry(line));
  return entries;
}

}  // namespace benchlog
