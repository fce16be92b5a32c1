#include "common/fit.hpp"

#include <algorithm>

namespace benchlog {

// The export fits a history row for every history line: the text is appended whole, and only a
// text that holds a NUL or a CR is gone through character by character.
void AppendFitToWidth(std::string& out, std::string_view text, std::size_t width) {
  const std::size_t begin = out.size();
  if (std::none_of(text.begin(), text.end(), [](char c) { return c == '\0' || c == '\r'; })) {
    out += text;
  } else {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
        out += ' ';
        ++i;
      } else {
        out += text[i] == '\0' ? ' ' : text[i];
      }
    }
  }
  const auto first = out.find_first_not_of(' ', begin);
  if (first == std::string::npos) {
    out.resize(begin);
  } else {
    out.erase(out.find_last_not_of(' ') + 1);
    out.erase(begin, first - begin);
  }
  out.resize(std::min(out.size(), begin + width));
  out.resize(begin + width, ' ');
}

std::string FitToWidth(std::string_view text, std::size_t width) {
  std::string fitted;
  AppendFitToWidth(fitted, text, width);
  return fitted;
}

}  // namespace benchlog
