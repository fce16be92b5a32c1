#pragma once
// UTM through the transverse Mercator routines: a zone line in the columns of the zone table, made
// in memory, with kind "UT", k0 0.9996, false easting 500000 m and false northing 0 (also south of
// the equator: no 10,000,000 m is added).
#include <cstdint>
#include <string>

namespace benchlog {

inline constexpr std::size_t kZoneLineLength = 226;

// Sets `line` to the UTM zone line for `longitude` (radians, positive west: west longitudes run 0
// to 180 degrees; the eastern half may be given as 180 to 360 or as a negative value). A `zone` of
// 0 asks for the zone of the longitude and receives it; another zone is kept, so a caller can force
// a neighbouring one. A central meridian east of Greenwich is written in the 180-to-360 form (9
// degrees east as "351"), which TmForward reads alike for either form of the longitude. Throws
// RuntimeFailure Overflow for a zone number that does not fit two columns (below -9 or above 99).
void UtmZoneLine(std::string& line, double longitude, std::int16_t& zone);

}  // namespace benchlog
