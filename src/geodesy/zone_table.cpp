#include "geodesy/zone_table.hpp"

#include <bit>
#include <cstdint>

#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "geodesy/angle_text.hpp"

namespace benchlog {
namespace {

// The international foot's length in millimetres as the program has always held it.
constexpr double kInternationalFootMm = 304.79999999999995;
static_assert(std::bit_cast<std::uint64_t>(kInternationalFootMm) == 0x40730CCCCCCCCCCCu);

bool Matches(std::string_view line, std::size_t start, std::size_t length, const std::string& text) {
  return !text.empty() && Mid(line, start, length) == text;
}

}  // namespace

void FindZoneLine(const std::string& zoneKey, const std::string& zoneNumber, std::string& line,
                  const std::string& supportPath) {
  line.clear();
  LineReader reader(supportPath + kZoneTableFile);
  std::string_view candidate;
  while (reader.ReadLine(candidate)) {
    if (Matches(candidate, 1, 5, zoneKey) || Matches(candidate, 7, 4, zoneNumber)) {
      line = std::string(candidate);
      return;
    }
  }
}

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
