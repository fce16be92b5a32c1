#include "geodesy/geographic.hpp"

#include <bit>
#include <cmath>
#include <cstdint>

#include "common/runtime_failure.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/checked_math.hpp"
#include "geodesy/ellipsoid.hpp"

namespace benchlog {
namespace {

static_assert(std::bit_cast<std::uint64_t>(kMeanEarthRadius) == 0x41584DB0315E4A38u);

double PrimeVerticalRadius(const Ellipsoid& ellipsoid, double latitude) {
  const double s = std::sin(latitude);
  return Quotient(ellipsoid.a, Root(1.0 - ellipsoid.e2 * s * s));
}

// An angle t from 0 to pi/2 put into the quadrant of (y east, d north); 0 counts as positive.
double InQuadrant(double t, double y, double d) {
  if (!(y < 0) && d < 0) return kPi - t;
  if (y < 0 && d < 0) return t + kPi;
  if (y < 0 && !(d < 0)) return kTwoPi - t;
  return t;
}

void Forward(const Ellipsoid& ellipsoid, double lat1, double lon1, double& lat2, double& lon2, double azimuth,
             double s) {
  const double n = PrimeVerticalRadius(ellipsoid, lat1);
  const double sinLat = std::sin(lat1);
  const double cosLat = std::cos(lat1);
  const double x1 = n * cosLat;
  const double z1 = (1.0 - ellipsoid.e2) * n * sinLat;

  // The azimuth itself, in radians, is the last factor: the program's own radius of the line.
  const double r = Quotient(n, Finite(1.0 + cosLat * cosLat * ellipsoid.ep2 * azimuth));
  const double c = Finite(s - Quotient(Finite(s * s * s), Finite(24.0 * r * r)));
  const double theta = ArcSin(Quotient(c, 2.0 * r));

  const double dx = Finite(-c * (std::cos(azimuth) * sinLat * std::cos(theta) + std::sin(theta) * cosLat));
  const double dy = Finite(c * std::sin(azimuth) * std::cos(theta));
  const double dz = Finite(c * (std::cos(azimuth) * cosLat * std::cos(theta) - std::sin(theta) * sinLat));
  const double x2 = x1 + dx;
  const double y2 = dy;
  const double z2 = z1 + dz;

  lat2 = std::atan(Quotient((1.0 + ellipsoid.ep2) * z2, std::sqrt(x2 * x2 + y2 * y2)));
  // The tangent stands for the angle: short lines only.
  lon2 = lon1 + Quotient(-y2, x2);
}

void Inverse(const Ellipsoid& ellipsoid, double lat1, double lon1, double lat2, double lon2, double& forwardAzimuth,
             double& backAzimuth, double& distance) {
  const double n1 = PrimeVerticalRadius(ellipsoid, lat1);
  const double n2 = PrimeVerticalRadius(ellipsoid, lat2);
  const double dl = lon2 - lon1;

  const double x1 = n1 * std::cos(lat1);
  const double z1 = (1.0 - ellipsoid.e2) * n1 * std::sin(lat1);
  const double x2 = n2 * std::cos(lat2) * std::cos(dl);
  const double y2 = -n2 * std::cos(lat2) * std::sin(dl);  // minus: longitudes are positive west
  const double z2 = (1.0 - ellipsoid.e2) * n2 * std::sin(lat2);

  const double dx = x2 - x1;
  const double dy = y2;
  const double dz = z2 - z1;
  const double c = std::sqrt(dx * dx + dy * dy + dz * dz);
  distance = Finite(c + c * c * c / (24.0 * kMeanEarthRadius * kMeanEarthRadius));

  double y = dy;
  double d = -dx * std::sin(lat1) + dz * std::cos(lat1);
  if (d != 0.0) forwardAzimuth = InQuadrant(std::atan(std::fabs(y) / std::fabs(d)), y, d);

  y = -(std::cos(dl) * dy + std::sin(dl) * dx);
  d = std::sin(lat2) * (std::cos(dl) * dx - std::sin(dl) * dy) - std::cos(lat2) * dz;
  if (d == 0.0) return;
  backAzimuth = InQuadrant(std::atan(std::fabs(y) / std::fabs(d)), y, d);
}

}  // namespace

void GeographicForward(const Ellipsoid& ellipsoid, double lat1, double lon1, double& lat2, double& lon2,
                       double forwardAzimuth, double& /*backAzimuth*/, double distance, Ui& ui) {
  try {
    Forward(ellipsoid, lat1, lon1, lat2, lon2, forwardAzimuth, distance);
  } catch (const RuntimeFailure& failure) {
    ui.MsgBox(failure.description, MsgButtons::Ok, MsgIcon::None, "Geographic Forward");
  }
}

void GeographicInverse(const Ellipsoid& ellipsoid, double lat1, double lon1, double lat2, double lon2,
                       double& forwardAzimuth, double& backAzimuth, double& distance, Ui& ui) {
  try {
    Inverse(ellipsoid, lat1, lon1, lat2, lon2, forwardAzimuth, backAzimuth, distance);
  } catch (const RuntimeFailure& failure) {
    ui.MsgBox(failure.description, MsgButtons::Ok, MsgIcon::None, "Geographic Inverse");
  }
}

void GeodeticToCartesian(const Ellipsoid& ellipsoid, double latitude, double longitude, double height, double& x,
                         double& y, double& z) {
  const double s = std::sin(latitude);
  const double n = ellipsoid.a / std::sqrt(1.0 - ellipsoid.e2 * s * s);
  x = (n + height) * std::cos(latitude) * std::cos(longitude);
  y = (n + height) * std::cos(latitude) * std::sin(longitude);
  z = ((1.0 - ellipsoid.e2) * n + height) * s;
}

}  // namespace benchlog
