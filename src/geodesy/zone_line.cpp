#include "geodesy/zone_line.hpp"

#include <bit>
#include <cstdint>

#include "common/number_text.hpp"
#include "common/text.hpp"
#include "geodesy/angle_text.hpp"

namespace benchlog {
namespace {

// The international foot's length in millimetres as the program has always held it.
constexpr double kInternationalFootMm = 304.79999999999995;
static_assert(std::bit_cast<std::uint64_t>(kInternationalFootMm) == 0x40730CCCCCCCCCCCu);

}  // namespace

double ZoneField(std::string_view zoneLine, std::size_t start, std::size_t length) {
  return Val(Mid(zoneLine, start, length));
}

double ZoneAngleField(std::string_view zoneLine, std::size_t start, std::size_t length) {
  std::string text = Mid(zoneLine, start, length);
  double radians = 0;
  std::string errorText;  // a table value that does not read stays 0, as the table is trusted
  DmsToRad(text, radians, errorText);
  return radians;
}

std::string ZoneKind(std::string_view zoneLine) { return Mid(zoneLine, 225, 2); }

std::string ZoneFootUnit(std::string_view zoneLine) { return Mid(zoneLine, 221, 3); }

double GridFeetPerMetre(std::string_view footUnit) {
  if (footUnit == "iFT") return 1000.0 / kInternationalFootMm;
  return 3937.0 / 1200.0;
}

}  // namespace benchlog
