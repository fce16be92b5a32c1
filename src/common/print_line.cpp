#include "common/print_line.hpp"

namespace benchlog {

std::size_t PrintLine::Column() const { return text_.size() - lineStart_ + 1; }

PrintLine& PrintLine::Tab(std::size_t column) {
  if (column < 1) column = 1;
  if (Column() > column) {
    text_ += "\r\n";
    lineStart_ = text_.size();
  }
  text_.append(column - Column(), ' ');
  return *this;
}

PrintLine& PrintLine::Write(std::string_view text) {
  text_.append(text);
  // A line end written inside an item starts a new line for the columns too.
  const auto lineFeed = text.rfind('\n');
  if (lineFeed != std::string_view::npos) lineStart_ = text_.size() - text.size() + lineFeed + 1;
  return *this;
}

std::string PrintLine::Finish() {
  std::string line = std::move(text_) + "\r\n";
  text_.clear();
  lineStart_ = 0;
  return line;
}

}  // namespace benchlog
