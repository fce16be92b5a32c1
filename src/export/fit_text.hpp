#pragma once
// Fitting texts to the record's fixed widths.
#include <string>
#include <string_view>

namespace benchlog {

// Every NUL becomes a blank and every CR LF one blank; the text is trimmed of blanks on both
// sides and padded on the right with blanks to `width`, or cut to it.
std::string FitText(std::string_view text, std::size_t width);
// FitText appended to `out`.
void AppendFitText(std::string& out, std::string_view text, std::size_t width);

// The text with every NUL turned into a blank and nothing else changed.
std::string NullsToBlanks(std::string_view text);

}  // namespace benchlog
