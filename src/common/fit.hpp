#pragma once
// Fitting a value to a width: every NUL becomes a blank, every CR LF pair a blank, the value is
// trimmed of blanks on both sides, then padded with blanks on the right or cut to the width.
#include <string>
#include <string_view>

namespace benchlog {

std::string FitToWidth(std::string_view value, std::size_t width);
// FitToWidth appended to `out`, with no allocation of its own.
void AppendFitToWidth(std::string& out, std::string_view value, std::size_t width);

}  // namespace benchlog
