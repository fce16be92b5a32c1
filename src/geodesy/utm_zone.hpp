#pragma once
// UTM through the transverse Mercator routines: a zone line in the columns of the zone table, made
// in memory, with kind "UT", k0 0.9996, false easting 500000 m and false northing 0 (also south of
// the equator: no 10,000,000 m is added).
#include <cstdint>
#include <string>

namespace benchlog {

inline constexpr std::size_t kZoneLineLength = 226;

// Sets `line` to the UTM zone line for `longitude` (radians, positive west: west longitudes run 0
// to 180 degrees; the eastern half is given as 180 to 360). A `zone` of 0 asks for the zone of the
// longitude and receives it; another zone is kept, so a caller can force a neighbouring one.
// A longitude given as a negative (east) value yields a negative central meridian, whose text
// does not fit the line's columns: callers give the eastern half as 180 to 360 degrees.
void UtmZoneLine(std::string& line, double longitude, std::int16_t& zone);

}  // namespace benchlog
