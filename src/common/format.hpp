#pragma once
// Writing a number through a format pattern: "0" is a digit always shown, "#" a digit shown only
// when significant, "," groups the integer digits by thousands, "." is the decimal point, and any
// other character stands as it is. The value is rounded, half away from zero, to the pattern's
// last decimal place, working from its 15 significant digits as the classic run time does; integer
// digits beyond the pattern's places are all shown. A negative value gets a leading "-", also when
// it rounds to zero ("-0.00"), as in the classic run time. Zero under "#" has no integer digits:
// Format(0, "#") is "", Format(0.5, "#.##") is ".5"; a pattern without integer places still shows
// the integer digits before its point. The point is always ".", whatever the locale. Throws
// RuntimeFailure Overflow for an infinite or undefined value.
#include <string>
#include <string_view>

namespace benchlog {

std::string Format(double value, std::string_view pattern);

}  // namespace benchlog
