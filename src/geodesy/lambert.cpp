#include "geodesy/lambert.hpp"

#include <cmath>

#include "common/rounding.hpp"
#include "geodesy/checked_math.hpp"
#include "geodesy/ellipsoid.hpp"
#include "geodesy/zone_line.hpp"

namespace benchlog {
namespace {

double W(const Ellipsoid& ellipsoid, double latitude) {
  const double s = std::sin(latitude);
  return std::sqrt(1.0 - ellipsoid.e2 * s * s);
}

// Steps 2 to 6 of a rebuild; false when a latitude field is 0 and the rebuild stops half way.
bool Rebuild(const Ellipsoid& ellipsoid, std::string_view line, LambertZoneConstants& zone) {
  zone.centralMeridian = ZoneAngleField(line, 12, 6);
  zone.eb = ZoneField(line, 19, 12);
  zone.nb = ZoneField(line, 32, 12);
  const double phi1 = ZoneAngleField(line, 45, 5);
  const double phi2 = ZoneAngleField(line, 51, 5);
  const double phib = ZoneAngleField(line, 57, 5);
  if (phi1 == 0.0 || phi2 == 0.0 || phib == 0.0) return false;

  const double q1 = IsometricLatitude(ellipsoid, std::sin(phi1));
  const double q2 = IsometricLatitude(ellipsoid, std::sin(phi2));
  const double qb = IsometricLatitude(ellipsoid, std::sin(phib));
  const double w1 = W(ellipsoid, phi1);
  const double w2 = W(ellipsoid, phi2);
  const double s0 = Quotient(Logarithm((std::cos(phi1) * w2) / (std::cos(phi2) * w1)), q2 - q1);
  zone.sinCentralParallel = s0;
  zone.k = ellipsoid.a * std::cos(phi1) * std::exp(q1 * s0) / (w1 * s0);
  zone.rb = zone.k / std::exp(qb * s0);
  return true;
}

}  // namespace

void LambertForward(const Ellipsoid& ellipsoid, LambertZoneConstants& zone, std::string_view zoneLine,
                    double latitude, double longitude, double& north, double& east, double& convergence,
                    double& scale) {
  if (ZoneKind(zoneLine) != "LC") return;
  const std::int16_t number = CInt(ZoneField(zoneLine, 7, 4));
  if (number != zone.zoneNumber) {
    zone.zoneNumber = number;  // stored first: a rebuild that stops leaves the old constants behind
    if (!Rebuild(ellipsoid, zoneLine, zone)) return;
  }
  const double s0 = zone.sinCentralParallel;
  const double g = (zone.centralMeridian - longitude) * s0;
  const double q = IsometricLatitude(ellipsoid, std::sin(latitude));
  const double r = zone.k / std::exp(q * s0);
  north = zone.rb + zone.nb - r * std::cos(g);
  east = r * std::sin(g) + zone.eb;
  convergence = g;
  scale = W(ellipsoid, latitude) * s0 * r / (ellipsoid.a * std::cos(latitude));
}

}  // namespace benchlog
