#pragma once
// Oblique Mercator (Hotine, grid from the natural origin) from an "OM" line of the zone table, all
// fields plain numbers:
//   19-32 B (ellipsoid-to-aposphere constant), 34-47 C (added to B times the isometric latitude),
//   49-61 A (aposphere radius, metres), 63-77 SinG and 79-92 CosG (sine and cosine of the axis
//   azimuth at the natural origin), 94-107 K0 (the scale constant of the scale formula),
//   123-135 NB (false northing, m), 137-148 EB (false easting, m), 150-167 Rot (grid rotation,
//   radians). Columns 12-17 show the centre's longitude for the reader.
// The natural origin's longitude is not in the table but the routine's literal 101.51383956
// degrees west, that of Alaska zone 5001, the one oblique zone.
#include <string_view>

#include "geodesy/ellipsoid.hpp"

namespace benchlog {

inline constexpr double kObliqueOriginLongitudeDegrees = 101.51383956;

// Grid coordinates (metres), convergence (radians) and point scale of (`latitude`, `longitude`)
// (radians, longitude positive west). Does nothing unless the line's kind is "OM". Throws
// RuntimeFailure at the poles.
void ObliqueForward(const Ellipsoid& ellipsoid, std::string_view zoneLine, double latitude, double longitude,
                    double& north, double& east, double& convergence, double& scale);

}  // namespace benchlog
