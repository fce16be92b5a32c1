#pragma once
// The check of a latitude or longitude typed in dlgLatLonRad, the hemisphere letter taken off:
// packed degrees, minutes and seconds ("391544.5": 39 degrees 15 minutes 44.5 seconds), the degrees
// being whatever stands before the last four digits in front of the point.
#include <string_view>

namespace benchlog {

// True when `s` passes: no character below "." (code 46), no "/" as the last character, a first
// character no higher than "9", degrees not above `limit`, minutes and seconds not above 59. Letters
// after the first character pass, and the decimals of the seconds are not looked at. "" passes.
// Degrees, minutes and seconds are read the classic way (Val), so a stray "E" reads as an exponent.
bool ValidPositionText(std::string_view s, double limit);

}  // namespace benchlog
