#pragma once
// The current ellipsoid: one record of a, e2 and ep2, filled once at start-up from "Benchlog.ini"
// and read by every geodetic routine. There is no built-in default: the configuration decides.
#include "session/configuration.hpp"

namespace benchlog {

struct Ellipsoid {
  double a = 0;    // semi-major axis, metres
  double e2 = 0;   // first eccentricity squared
  double ep2 = 0;  // second eccentricity squared
};

// The record from the configuration's "ELLIPSOID A=" and "ELLIPSOID E2=" (and the second
// eccentricity the configuration derived from them).
Ellipsoid EllipsoidFromConfiguration(const Configuration& config);

const Ellipsoid& CurrentEllipsoid();
void SetCurrentEllipsoid(const Ellipsoid& ellipsoid);

// Isometric latitude of the latitude whose sine is `sinLatitude`, on the current ellipsoid:
// (ln((1+s)/(1-s)) - e ln((1+e s)/(1-e s))) / 2. Throws RuntimeFailure at the poles (s = +-1).
double IsometricLatitude(double sinLatitude);

// Elevation and combined factors at `latitude` (radians) and ellipsoid height `height` (metres) for
// a grid `scaleFactor`: the elevation factor is 1 - h / (R + h), R being the Euler radius in the
// azimuth of 45 degrees; the combined factor is elevation factor times scale factor.
void CombinedFactor(double latitude, double height, double scaleFactor, double& elevationFactor,
                    double& combinedFactor);

}  // namespace benchlog
