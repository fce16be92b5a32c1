#include "geodesy/ellipsoid.hpp"

#include <cmath>

#include "geodesy/angles.hpp"
#include "geodesy/checked_math.hpp"

namespace benchlog {

double IsometricLatitude(const Ellipsoid& ellipsoid, double sinLatitude) {
  const double s = sinLatitude;
  const double e = std::sqrt(ellipsoid.e2);
  return (Logarithm(Quotient(1.0 + s, 1.0 - s)) - e * Logarithm(Quotient(1.0 + e * s, 1.0 - e * s))) / 2.0;
}

void CombinedFactor(const Ellipsoid& ellipsoid, double latitude, double height, double scaleFactor,
                    double& elevationFactor, double& combinedFactor) {
  const double sinLat = std::sin(latitude);
  const double w = std::sqrt(1.0 - ellipsoid.e2 * sinLat * sinLat);
  const double primeVertical = ellipsoid.a / w;
  const double meridian = (1.0 - ellipsoid.e2) * ellipsoid.a / (w * w * w);
  const double azimuth = kPi / 4.0;
  const double c = std::cos(azimuth);
  const double s = std::sin(azimuth);
  const double radius = primeVertical * meridian / (c * c * primeVertical + s * s * meridian);
  elevationFactor = 1.0 - height / (radius + height);
  combinedFactor = elevationFactor * scaleFactor;
}

}  // namespace benchlog
