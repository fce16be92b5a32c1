#pragma once
// Transverse Mercator by the program's fixed series, from a "TM" line of the zone table or a "UT"
// line made by UtmZoneLine:
//   19-30 scale denominator D (k0 = (D - 1) / D: 2500 is 0.9996), 32-44 false northing FN (m),
//   46-58 meridional arc S0 from the equator to the latitude of origin (m, at central scale),
//   60-71 false easting FE (m), 101-103 degrees and 105-106 minutes of the central meridian
//   (positive west). Columns 12-17 and 93-97 show the central meridian and the latitude of origin
//   for the reader and take no part in the computation.
// The meridional arc comes from fixed coefficients of the GRS 80 ellipsoid; the given ellipsoid's a,
// e2 and ep2 enter only through the prime vertical radius. Good to well under a millimetre within 3 degrees
// of the central meridian; beyond that the series loses accuracy quickly.
#include <string_view>

#include "geodesy/ellipsoid.hpp"

namespace benchlog {

// Rectifying radius of GRS 80, the scale of the fixed meridional-arc series.
inline constexpr double kRectifyingRadius = 6367449.14577;

// The meridional arc series' angle omega at `latitude` (radians); the arc is omega k0 times
// kRectifyingRadius.
double MeridionalArcAngle(double latitude);

// Grid coordinates (metres), meridian convergence (radians, positive east of the central meridian
// in the north) and point scale of (`latitude`, `longitude`) (radians, longitude positive west).
// The difference from the central meridian is taken within a half turn, so a longitude east of
// Greenwich may be given as a negative value or as 180 to 360 degrees. Does nothing unless the
// line's kind is "TM" or "UT". Throws RuntimeFailure on a line without a scale denominator.
void TmForward(const Ellipsoid& ellipsoid, std::string_view zoneLine, double latitude, double longitude,
               double& north, double& east, double& convergence, double& scale);

// The way back from (`north`, `east`) in metres to latitude and longitude (radians, positive west),
// with convergence and scale; the longitude comes back in the form of the line's central meridian
// (180 to 360 degrees for a meridian written so). Its series is a separate fixed set, not the exact mirror of TmForward
// (agreement to about 1e-5 arc-second within 3 degrees of the central meridian). Does nothing
// unless the kind is "TM" or "UT". Throws RuntimeFailure on a line without a scale denominator.
void TmInverse(const Ellipsoid& ellipsoid, std::string_view zoneLine, double& latitude, double& longitude,
               double north, double east, double& convergence, double& scale);

}  // namespace benchlog
