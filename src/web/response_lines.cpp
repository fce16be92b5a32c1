#include "web/response_lines.hpp"

#include "common/text.hpp"

namespace benchlog {

bool IsDescriptionLine(std::string_view line) {
  static constexpr std::string_view kPageStarts[] = {"<", "DATABASE", " Elapsed", " ***", " -", " >", "\t", "  "};
  if (IsBlank(line)) return false;
  for (const std::string_view start : kPageStarts)
    if (StartsWith(line, start)) return false;
  return true;
}

}  // namespace benchlog
