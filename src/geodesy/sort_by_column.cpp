#include "geodesy/sort_by_column.hpp"

#include <algorithm>
#include <string_view>

namespace benchlog {

void SortByColumn(std::vector<std::string>& lines, std::size_t column) {
  if (lines.size() < 3 || column < 1) return;
  // A stable sort gives exactly the order of an insertion sort that moves a line only past
  // greater keys. string_view compares by unsigned character code.
  const auto key = [column](const std::string& line) {
    const std::string_view view(line);
    return column - 1 < view.size() ? view.substr(column - 1) : std::string_view();
  };
  std::stable_sort(lines.begin(), lines.end(),
                   [&key](const std::string& x, const std::string& y) { return key(x) < key(y); });
}

}  // namespace benchlog
