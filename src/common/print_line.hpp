#pragma once
// Print lines built with print positions: items are written with no separator, Tab(n) moves to
// column n, and from past column n to column n of a new line. Every finished line ends in CR LF.
#include <string>
#include <string_view>

namespace benchlog {

class PrintLine {
 public:
  PrintLine& Tab(std::size_t column);  // a column below 1 counts as 1
  PrintLine& Write(std::string_view text);  // a LF inside the text starts the next line at column 1
  // The text written so far with CR LF behind it; the builder starts again empty.
  std::string Finish();
  std::size_t Column() const;  // 1-based column the next character goes to

 private:
  std::string text_;
  std::size_t lineStart_ = 0;
};

}  // namespace benchlog
