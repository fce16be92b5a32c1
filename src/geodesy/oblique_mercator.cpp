#include "geodesy/oblique_mercator.hpp"

#include <cmath>

#include "geodesy/angles.hpp"
#include "geodesy/checked_math.hpp"
#include "geodesy/ellipsoid.hpp"
#include "geodesy/zone_line.hpp"

namespace benchlog {

void ObliqueForward(const Ellipsoid& ellipsoid, std::string_view zoneLine, double latitude, double longitude,
                    double& north, double& east, double& convergence, double& scale) {
  if (ZoneKind(zoneLine) != "OM") return;
  const double b = ZoneField(zoneLine, 19, 14);
  const double c = ZoneField(zoneLine, 34, 14);
  const double a = ZoneField(zoneLine, 49, 13);
  const double sinG = ZoneField(zoneLine, 63, 15);
  const double cosG = ZoneField(zoneLine, 79, 14);
  const double k0 = ZoneField(zoneLine, 94, 14);
  const double nb = ZoneField(zoneLine, 123, 13);
  const double eb = ZoneField(zoneLine, 137, 12);
  const double rot = ZoneField(zoneLine, 150, 18);
  const double lambda0 = RadOfDeg(kObliqueOriginLongitudeDegrees);

  const double l = (longitude - lambda0) * b;
  const double p = b * IsometricLatitude(ellipsoid, std::sin(latitude)) + c;
  const double sh = SinH(p);
  const double ch = CosH(p);
  const double sinL = std::sin(l);
  const double cosL = std::cos(l);

  // u along the axis, v across it, on the aposphere of radius A.
  const double u = a * std::atan(Quotient(cosG * sh - sinG * sinL, cosL));
  const double v = a / 2.0 * Logarithm(Quotient(ch - sinG * sh - cosG * sinL, ch + sinG * sh + cosG * sinL));
  north = std::cos(rot) * u - std::sin(rot) * v + nb;
  east = std::cos(rot) * v + std::sin(rot) * u + eb;
  convergence = std::atan(Quotient(sinG - cosG * sh * sinL, cosG * ch * cosL)) - rot;
  const double s = std::sin(latitude);
  const double w = std::sqrt(1.0 - ellipsoid.e2 * s * s);
  scale = Quotient(w * k0 * std::cos(u / a), cosL * std::cos(latitude));
}

}  // namespace benchlog
