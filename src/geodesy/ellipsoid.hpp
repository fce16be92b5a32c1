#pragma once
// The reference ellipsoid as three values, a, e2 and ep2, which every geodetic routine takes from
// its caller. There is no built-in default: the configuration of the run decides.

namespace benchlog {

struct Ellipsoid {
  double a = 0;    // semi-major axis, metres
  double e2 = 0;   // first eccentricity squared
  double ep2 = 0;  // second eccentricity squared
};

// Isometric latitude of the latitude whose sine is `sinLatitude`, on `ellipsoid`:
// (ln((1+s)/(1-s)) - e ln((1+e s)/(1-e s))) / 2. Throws RuntimeFailure at the poles (s = +-1).
double IsometricLatitude(const Ellipsoid& ellipsoid, double sinLatitude);

// Elevation and combined factors at `latitude` (radians) and ellipsoid height `height` (metres) for
// a grid `scaleFactor`: the elevation factor is 1 - h / (R + h), R being the Euler radius in the
// azimuth of 45 degrees; the combined factor is elevation factor times scale factor.
void CombinedFactor(const Ellipsoid& ellipsoid, double latitude, double height, double scaleFactor,
                    double& elevationFactor, double& combinedFactor);

}  // namespace benchlog
