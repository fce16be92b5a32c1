#pragma once
// Reading a number out of text the classic way: blanks, tabs and line feeds are skipped wherever
// they stand, reading stops at the first character that cannot continue a number, and a text
// with no number reads as 0. "12 34" is 1234, "12X" is 12, "   " is 0, "-3.5E2" is -350. "E" or
// "D" starts the exponent. The decimal point is always ".", whatever the locale. Throws
// RuntimeFailure Overflow for a number beyond the double range; one too small for it reads as 0.
#include <string_view>

namespace benchlog {

double Val(std::string_view text);

// True when the whole text, trimmed of blanks, is one number (optional sign, digits with at most
// one point, optional exponent "E" or "D" with digits); "", ".", "1 2" and "1E" are not numeric.
bool IsNumeric(std::string_view text);

}  // namespace benchlog
