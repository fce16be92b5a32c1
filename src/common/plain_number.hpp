#pragma once
// A number written in the classic general form, with no pattern: at most 15 significant digits,
// no trailing zeros, a "0" before a bare point ("0.5", "-0.25"), "." as the point whatever the
// locale. Magnitudes from 1E15 up and below 0.0001 take the exponent form "1.5E+15", "1E-05".
#include <string>

namespace benchlog {

std::string PlainNumber(double value);

}  // namespace benchlog
