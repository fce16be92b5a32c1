#include "common/fit.hpp"

#include "common/text.hpp"

namespace benchlog {

std::string FitToWidth(std::string_view value, std::size_t width) {
  std::string text(value);
  for (char& c : text)
    if (c == '\0') c = ' ';
  text = Trim(ReplaceAll(text, "\r\n", " "));
  text.resize(width, ' ');
  return text;
}

}  // namespace benchlog
