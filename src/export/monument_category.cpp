#include "export/monument_category.hpp"

#include <unordered_map>

#include "common/line_input.hpp"
#include "common/text.hpp"
#include "export/support_file_cache.hpp"

namespace benchlog {
namespace {

// The file as the look-up reads it: for each code (the text from column 3 on, trimmed), the
// first character of the first line that gives it.
using CategoryTable = std::unordered_map<std::string, std::string>;

CategoryTable ReadCategoryTable(const std::string& path) {
  CategoryTable table;
  LineReader reader(path);
  std::string_view line;
  while (reader.ReadLine(line)) table.emplace(Trim(Mid(line, 3)), Left(line, 1));
  return table;
}

}  // namespace

std::string MonumentCategory(const std::string& supportPath, std::string_view code) {
  const auto table =
      CachedSupportTable<CategoryTable>(supportPath + kMonumentCategoryFileName, ReadCategoryTable);
  const auto found = table->find(std::string(code));
  return found == table->end() ? std::string() : found->second;
}

}  // namespace benchlog
