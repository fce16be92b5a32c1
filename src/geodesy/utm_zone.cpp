#include "geodesy/utm_zone.hpp"

#include <cmath>

#include "common/format.hpp"
#include "common/rounding.hpp"
#include "common/text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/format_padded.hpp"

namespace benchlog {

void UtmZoneLine(std::string& line, double longitude, std::int16_t& zone) {
  const double degrees = DegOfRad(longitude);
  const bool westernHalf = degrees < 180.0;
  if (zone == 0) zone = CInt(std::floor(((westernHalf ? 186.0 : 546.0) - degrees) / 6.0));
  const int centralMeridian = (westernHalf ? 183 : 543) - 6 * zone;
  const std::string ccc = Format(centralMeridian, "000");

  line = "UTM" + Space(5) + FormatPadded(static_cast<double>(zone), "00") + " " + ccc + ":00" + Space(4) +
         "2500.0000" + Space(8) + "0.0000" + Space(8) + "0.0000  500000.0000" + Space(21) + "00:00" + Space(3) +
         ccc + ":00" + Space(118) + "UT";
}

}  // namespace benchlog
