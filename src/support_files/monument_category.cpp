#include "support_files/monument_category.hpp"

#include "common/line_input.hpp"
#include "common/text.hpp"

namespace benchlog {

CategoryTable ReadCategoryTable(const std::string& path) {
  CategoryTable table;
  LineReader reader(path);
  std::string_view line;
  while (reader.ReadLine(line)) table.emplace(Trim(Mid(line, 3)), Left(line, 1));
  return table;
}

std::string MonumentCategory(const CategoryTable& table, std::string_view code) {
  const auto found = table.find(std::string(code));
  return found == table.end() ? std::string() : found->second;
}

}  // namespace benchlog
