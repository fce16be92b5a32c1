#pragma once
// Lambert conformal conic with two standard parallels, from an "LC" line of the zone table:
//   12-17 central meridian "DDD:MM", 19-30 false easting EB (m), 32-43 false northing NB (m),
//   45-49 first standard parallel "DD:MM", 51-55 second standard parallel, 57-61 latitude of the
//   grid origin.
#include <cstdint>
#include <string_view>

#include "geodesy/ellipsoid.hpp"

namespace benchlog {

// The constants of the last Lambert zone used, kept by the caller between calls because an export
// projects every mark in one zone. Only a change of the zone number rebuilds them.
struct LambertZoneConstants {
  double centralMeridian = 0;     // radians, positive west
  double eb = 0;                  // false easting, metres
  double k = 0;                   // mapping radius at the equator, metres
  double nb = 0;                  // false northing, metres
  double rb = 0;                  // mapping radius at the grid origin, metres
  double sinCentralParallel = 0;  // the cone constant
  std::int16_t zoneNumber = 0;    // 0: nothing built yet
};

// Grid coordinates (metres), meridian convergence (radians, positive east of the central meridian)
// and point scale of (`latitude`, `longitude`) (radians, longitude positive west) in the zone of
// `zoneLine` on `ellipsoid`. Does nothing unless the line's kind is "LC". When the zone number
// differs from that of `zone`, `zone` is rebuilt; if a latitude field of the line is 0 the routine
// returns with no output written, keeping the new zone number with the old K, Rb and cone
// constant, so a later call for that zone works on with them. Throws RuntimeFailure at the poles.
void LambertForward(const Ellipsoid& ellipsoid, LambertZoneConstants& zone, std::string_view zoneLine,
                    double latitude, double longitude, double& north, double& east, double& convergence,
                    double& scale);

}  // namespace benchlog
