#include "support_files/contributors.hpp"

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/text.hpp"

namespace benchlog {

std::string NormalizeAgencyName(std::string_view agencyName) {
  std::string normal;
  for (char c : UCase(Trim(agencyName))) {
    if (c == ' ' && !normal.empty() && normal.back() == ' ') continue;
    normal += c;
  }
  return normal;
}

ContributorTable ContributorTable::Load(const std::string& contribPath) {
  return FromText(ReadWholeFile(contribPath));
}

ContributorTable ContributorTable::FromText(std::string_view text) {
  ContributorTable table;
  for (const auto& line : SplitCrLf(text)) {
    if (IsBlank(line) || StartsWith(line, "#")) continue;
    const std::string name = NormalizeAgencyName(Mid(line, 15));
    if (name.empty()) continue;
    table.entries_.emplace(name, Entry{Trim(Mid(line, 1, 6)), Trim(Mid(line, 8, 6))});
  }
  return table;
}

std::string ContributorTable::CodeOf(std::string_view agencyName) const {
  const auto found = entries_.find(NormalizeAgencyName(agencyName));
  return found == entries_.end() ? std::string() : found->second.code;
}

std::string ContributorTable::GroupOf(std::string_view agencyName) const {
  const auto found = entries_.find(NormalizeAgencyName(agencyName));
  return found == entries_.end() ? std::string() : found->second.group;
}

}  // namespace benchlog
