#include "geodesy/transverse_mercator.hpp"

#include <cmath>

#include "geodesy/angles.hpp"
#include "geodesy/checked_math.hpp"
#include "geodesy/ellipsoid.hpp"
#include "geodesy/zone_line.hpp"

namespace benchlog {
namespace {

struct TmZone {
  double k0, falseNorthing, arcAtOrigin, falseEasting, centralMeridian;
};

bool IsTransverseMercator(std::string_view line) {
  const std::string kind = ZoneKind(line);
  return kind == "TM" || kind == "UT";
}

TmZone ReadZone(std::string_view line) {
  const double denominator = ZoneField(line, 19, 12);
  const double degrees = ZoneField(line, 101, 3);
  const double minutes = ZoneField(line, 105, 2);
  return {Quotient(denominator - 1.0, denominator), ZoneField(line, 32, 13), ZoneField(line, 46, 13),
          ZoneField(line, 60, 12), (degrees + minutes / 60.0) / (180.0 / kPi)};
}

double PrimeVertical(const Ellipsoid& ellipsoid, double k0, double latitude) {
  const double s = std::sin(latitude);
  return k0 * ellipsoid.a / std::sqrt(1.0 - ellipsoid.e2 * s * s);
}

double Squared(double x) { return x * x; }

// The longitude difference within a half turn either way (unchanged when it already is), so that
// a longitude east of Greenwich projects alike given as a negative value or as 180 to 360.
double WithinHalfTurn(double difference) { return std::remainder(difference, kTwoPi); }

}  // namespace

double MeridionalArcAngle(double latitude) {
  const double c2 = Squared(std::cos(latitude));
  const double c4 = c2 * c2;
  const double c6 = c4 * c2;
  return latitude + std::sin(latitude) * std::cos(latitude) *
                        (-0.005048250776 + 2.1259204e-05 * c2 - 1.11423e-07 * c4 + 6.26e-10 * c6);
}

void TmForward(const Ellipsoid& ellipsoid, std::string_view zoneLine, double latitude, double longitude,
               double& north, double& east, double& convergence, double& scale) {
  if (!IsTransverseMercator(zoneLine)) return;
  const TmZone zone = ReadZone(zoneLine);
  const double cosLat = std::cos(latitude);
  const double ets = ellipsoid.ep2 * cosLat * cosLat;
  const double t = std::tan(latitude);
  const double t2 = t * t;
  const double t4 = t2 * t2;
  const double l = WithinHalfTurn(longitude - zone.centralMeridian) * cosLat;
  const double l2 = l * l;

  const double arc = MeridionalArcAngle(latitude) * zone.k0 * kRectifyingRadius;
  const double rn = PrimeVertical(ellipsoid, zone.k0, latitude);

  const double a2 = rn * t / 2.0;
  const double a4 = (5.0 - t2 + (4.0 * ets + 9.0) * ets) / 12.0;
  const double a6 = (61.0 - 58.0 * t2 + t4 + (270.0 - 330.0 * t2) * ets) / 360.0;
  north = Finite(arc - zone.arcAtOrigin + zone.falseNorthing + l2 * a2 * (1.0 + l2 * (a4 + l2 * a6)));

  const double a1 = -rn;
  const double a3 = (1.0 - t2 + ets) / 6.0;
  const double a5 = (5.0 - 18.0 * t2 + t4 + (14.0 - 58.0 * t2) * ets) / 120.0;
  const double a7 = (61.0 - 479.0 * t2 + 179.0 * t4 - t4 * t2) / 5040.0;
  east = Finite(zone.falseEasting + a1 * l * (1.0 + l2 * (a3 + l2 * (a5 + l2 * a7))));

  const double c1 = -t;
  const double c3 = (1.0 + 3.0 * ets + 2.0 * ets * ets) / 3.0;
  const double c5 = (2.0 - t2) / 15.0;
  convergence = Finite(c1 * l * (1.0 + l2 * (c3 + l2 * c5)));

  const double f2 = (1.0 + ets) / 2.0;
  const double f4 = (5.0 - 4.0 * t2 + (9.0 - 24.0 * t2) * ets) / 12.0;
  scale = Finite(zone.k0 * (1.0 + l2 * f2 * (1.0 + l2 * f4)));
}

void TmInverse(const Ellipsoid& ellipsoid, std::string_view zoneLine, double& latitude, double& longitude,
               double north, double east, double& convergence, double& scale) {
  if (!IsTransverseMercator(zoneLine)) return;
  const TmZone zone = ReadZone(zoneLine);
  const double omega = Quotient(north - zone.falseNorthing + zone.arcAtOrigin, zone.k0 * kRectifyingRadius);
  const double c2 = Squared(std::cos(omega));
  // The footpoint latitude: the latitude whose arc is the given northing.
  const double f = omega + std::sin(omega) * std::cos(omega) *
                               (((2.181e-09 * c2 + 2.35059e-07) * c2 + 2.9370625e-05) * c2 + 0.005022893948);

  const double t = std::sin(f) / std::cos(f);
  const double t2 = t * t;
  const double t4 = t2 * t2;
  const double rn = PrimeVertical(ellipsoid, zone.k0, f);
  const double q = (east - zone.falseEasting) / rn;
  const double q2 = q * q;
  const double ets = ellipsoid.ep2 * Squared(std::cos(f));

  const double b2 = -t * (1.0 + ets) / 2.0;
  const double b4 = -(5.0 + 3.0 * t2 + (1.0 - 9.0 * t2) * ets - 4.0 * ets * ets) / 12.0;
  const double b6 = (61.0 + 90.0 * t2 + 45.0 * t4 + (46.0 - 252.0 * t2 - 90.0 * t4) * ets) / 360.0;
  latitude = Finite(f + b2 * q2 * (1.0 + q2 * (b4 + q2 * b6)));

  const double b3 = -(1.0 + 2.0 * t2 + ets) / 6.0;
  const double b5 = (5.0 + 28.0 * t2 + 24.0 * t4 + (6.0 + 8.0 * t2) * ets) / 120.0;
  const double b7 = -(61.0 + 662.0 * t2 + 1320.0 * t4 + 720.0 * t4 * t2) / 5040.0;
  const double l = q * (1.0 + q2 * (b3 + q2 * (b5 + q2 * b7)));
  longitude = Finite(zone.centralMeridian - l / std::cos(f));

  const double d3 = -(1.0 + t2 - ets - 2.0 * ets * ets) / 3.0;
  const double d5 = (2.0 + 5.0 * t2 + 3.0 * t4) / 15.0;
  convergence = Finite(t * q * (1.0 + q2 * (d3 + q2 * d5)));

  const double f2 = (1.0 + ets) / 2.0;
  const double f4 = (1.0 + 5.0 * ets) / 12.0;
  scale = Finite(zone.k0 * (1.0 + q2 * f2 * (1.0 + q2 * f4)));
}

}  // namespace benchlog
