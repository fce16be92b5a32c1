#include "export/monument_category.hpp"

#include "common/line_input.hpp"
#include "common/text.hpp"

namespace benchlog {

std::string MonumentCategory(const std::string& supportPath, std::string_view code) {
  LineReader reader(supportPath + kMonumentCategoryFileName);
  std::string_view line;
  std::string category;
  while (reader.ReadLine(line)) {
    // The whole file is read, as the table is small; the first match wins.
    if (category.empty() && Trim(Mid(line, 3)) == code) category = Left(line, 1);
  }
  return category;
}

}  // namespace benchlog
