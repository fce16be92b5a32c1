#pragma once
// One line of the zone table (support_files/zone_table_file.hpp): a state plane zone, its constants
// in fixed columns. Columns common to every kind:
//   1-5 zone key ("MD   ", "TX SC"), 7-10 zone number ("1900"), 221-223 foot unit ("sFT", "iFT"
//   or blanks), 225-226 projection kind ("LC", "TM", "OM"; "UT" in the UTM lines made in memory).
// The columns of each kind are described with its projection routine.
#include <string>
#include <string_view>

namespace benchlog {

// Feet in a metre for heights and distances, whatever the zone.
inline constexpr double kFeetPerMetre = 3.28083333333333;

// A numeric field of a zone line, read with the leading-number parse (blanks skipped, "" is 0).
double ZoneField(std::string_view zoneLine, std::size_t start, std::size_t length);
// An angle field of a zone line ("DDD:MM"), in radians through DmsToRad; a refused text gives 0.
double ZoneAngleField(std::string_view zoneLine, std::size_t start, std::size_t length);

// Columns 225-226: the projection kind.
std::string ZoneKind(std::string_view zoneLine);
// Columns 221-223: the foot unit, "sFT", "iFT" or blanks.
std::string ZoneFootUnit(std::string_view zoneLine);

// Grid feet in a metre for a zone's foot unit: "iFT" gives 1000 / 304.8 (the international foot),
// anything else 3937 / 1200 (the US survey foot). A caller that wants metres uses 1.
double GridFeetPerMetre(std::string_view footUnit);

}  // namespace benchlog
