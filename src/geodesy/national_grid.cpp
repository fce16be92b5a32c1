#include "geodesy/national_grid.hpp"

#include <cmath>

#include "common/format.hpp"
#include "common/rounding.hpp"
#include "common/text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/format_padded.hpp"

namespace benchlog {
namespace {

char BandLetter(const std::string& hemisphere, double latitude) {
  int q = static_cast<int>(std::trunc(DegOfRad(latitude) / 8.0));
  if (hemisphere == "S") {
    if (q > 3) ++q;  // passes over I going south from M
    return static_cast<char>(77 - q);
  }
  if (q > 0) ++q;  // passes over O going north from N
  return static_cast<char>(78 + q);
}

// The zone's set, 1 to 5 or 0 as the zone number modulo 6, from its two-digit text; -1 when the
// text is not one of "01" to "60".
int ZoneSet(const std::string& zoneText) {
  for (int zone = 1; zone <= 60; ++zone)
    if (zoneText == Format(zone, "00")) return zone % 6;
  return -1;
}

std::string SquareLetters(int set, double east, double north) {
  int e = static_cast<int>(std::floor(east / 100000.0));
  int n = static_cast<int>(std::floor(static_cast<double>(CLng(north) % 2000000) / 100000.0)) + 1;
  char column = 0;
  if (set == 1 || set == 4) {
    column = static_cast<char>(e + 64);  // A to H
  } else if (set == 2 || set == 5) {
    if (e > 5) ++e;  // J to R without O
    column = static_cast<char>(e + 73);
  } else {
    column = static_cast<char>(e + 82);  // S to Z
  }
  char row = 0;
  if (set % 2 == 1) {  // rows from A, passing over I and O
    if (n > 8) ++n;
    if (n > 14) ++n;
    row = static_cast<char>(n + 64);
  } else {  // rows from F, passing over I and O
    if (n > 3) ++n;
    if (n > 9) ++n;
    row = static_cast<char>(n + 69);
  }
  return {column, row};
}

std::size_t DigitCount(std::int16_t precision) {
  switch (precision) {
    case 1000: return 2;
    case 100: return 3;
    case 10: return 4;
    case 1: return 5;
    default: return 0;
  }
}

}  // namespace

void NationalGridAddress(const std::string& hemisphere, double latitude, const std::string& zoneText, double east,
                         double north, std::int16_t precision, std::string& address, std::string& errorText) {
  address = FormatPadded(zoneText, "#0") + BandLetter(hemisphere, latitude);
  const int set = ZoneSet(zoneText);
  if (set >= 0) address += SquareLetters(set, east, north);
  const std::size_t digits = DigitCount(precision);
  address += Mid(Format(east, "0000000"), 3, digits) + Mid(Format(north, "0000000"), 3, digits);
  errorText.clear();
}

}  // namespace benchlog
