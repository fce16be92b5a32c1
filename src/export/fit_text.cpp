#include "export/fit_text.hpp"

#include <algorithm>

#include "common/fit.hpp"

namespace benchlog {

std::string FitText(std::string_view text, std::size_t width) { return FitToWidth(text, width); }

std::string NullsToBlanks(std::string_view text) {
  std::string result(text);
  std::replace(result.begin(), result.end(), '\0', ' ');
  return result;
}

}  // namespace benchlog
