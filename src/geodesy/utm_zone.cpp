#include "geodesy/utm_zone.hpp"

#include <cmath>

#include "common/format.hpp"
#include "common/rounding.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/format_padded.hpp"

namespace benchlog {
namespace {

// A meridian east of Greenwich (a negative west value) in the eastern half's 180-to-360 form, so
// that it fits the line's three columns; the projection takes longitude differences within a half
// turn, so both forms of a longitude project alike.
int WrittenMeridian(int degreesWest) { return degreesWest < 0 ? (degreesWest % 360 + 360) % 360 : degreesWest; }

}  // namespace

void UtmZoneLine(std::string& line, double longitude, std::int16_t& zone) {
  const double degrees = DegOfRad(longitude);
  const bool westernHalf = degrees < 180.0;
  if (zone == 0) zone = CInt(std::floor(((westernHalf ? 186.0 : 546.0) - degrees) / 6.0));
  const std::string zz = FormatPadded(static_cast<double>(zone), "00");
  if (zz.size() > 2) throw Overflow();  // the zone number has two columns
  const std::string ccc = Format(WrittenMeridian((westernHalf ? 183 : 543) - 6 * zone), "000");

  line = "UTM" + Space(5) + zz + " " + ccc + ":00" + Space(4) + "2500.0000" + Space(8) + "0.0000" + Space(8) +
         "0.0000  500000.0000" + Space(21) + "00:00" + Space(3) + ccc + ":00" + Space(118) + "UT";
}

}  // namespace benchlog
