#pragma once
// The service's mark lists: text whose lines are separated by LF, the marks in fixed columns
// (from 1):
//   1-6    "|....|" on a county list's record; on a radius list "|", four unread characters, "|"
//   7-12   PID
//   14     horizontal order code ("." when the service's Description has none)
//   16     vertical order code
//   29-30  "|N" on a project list's record
//   52-81  station designation
// Headings, rules and page text are told apart by those columns alone.
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

bool IsCountyRecord(std::string_view line);   // starts "|....|"
bool IsRadiusRecord(std::string_view line);   // "|" first, no "-" second, no "P" seventh
bool IsProjectRecord(std::string_view line);  // "|N" at 29-30

// The choice list's entry of a record: columns 7-17, a blank, columns 52-81. So the entry holds
// the PID at 1-6, the horizontal order code at 8 and the vertical at 10.
std::string ChoiceEntry(std::string_view line);

// The entries of the records of `answer` that `isRecord` accepts, in the answer's order.
std::vector<std::string> ChoiceEntries(std::string_view answer, bool (*isRecord)(std::string_view));

}  // namespace benchlog
