#pragma once
// Right-justified numbers for the fixed columns of exports and listings.
#include <string>
#include <string_view>

namespace benchlog {

// `value` formatted by the classic `pattern` (see common/format.hpp), with blanks put in front up
// to the pattern's length; a longer result stays as it is.
std::string FormatPadded(double value, std::string_view pattern);
// The same for a value given as text: a text that is empty once trimmed gives "", a number text is
// formatted as its number, and any other text is padded as it stands.
std::string FormatPadded(std::string_view valueText, std::string_view pattern);

}  // namespace benchlog
