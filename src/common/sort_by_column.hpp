#pragma once
// The one sort of the system: report and listing lines ordered by a field in the middle of the line.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

// Sorts `lines` in place, ascending by the text from 1-based `column` to the end of each line,
// compared by character code (case-sensitive); the text before the column plays no part, and
// equal keys keep their order. Fewer than three lines are left as they are, even out of order:
// the reports rely on that. A column below 1 leaves the lines untouched.
void SortByColumn(std::vector<std::string>& lines, std::size_t column);
void SortByColumn(std::vector<std::string_view>& lines, std::size_t column);

}  // namespace benchlog
