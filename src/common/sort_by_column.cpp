#include "common/sort_by_column.hpp"

#include <algorithm>
#include <string_view>

namespace benchlog {

namespace {

template <typename Line>
void SortLines(std::vector<Line>& lines, std::size_t column) {
  if (lines.size() < 3 || column < 1) return;
  // A stable sort gives exactly the order of an insertion sort that moves a line only past
  // greater keys. string_view compares by unsigned character code.
  const auto key = [column](const Line& line) {
    const std::string_view view(line);
    return column - 1 < view.size() ? view.substr(column - 1) : std::string_view();
  };
  std::stable_sort(lines.begin(), lines.end(), [&key](const Line& x, const Line& y) { return key(x) < key(y); });
}

}  // namespace

void SortByColumn(std::vector<std::string>& lines, std::size_t column) { SortLines(lines, column); }

void SortByColumn(std::vector<std::string_view>& lines, std::size_t column) { SortLines(lines, column); }

}  // namespace benchlog
