#include "geodesy/angles.hpp"

#include <cmath>

namespace benchlog {

double RadOfDeg(double degrees) { return degrees * kPi / 180.0; }

double DegOfRad(double radians) { return radians / kPi * 180.0; }

double ArcSin(double x) {
  const double magnitude = std::fabs(x);
  if (magnitude < 1.0) return std::atan(x / std::sqrt(1.0 - x * x));
  if (magnitude == 1.0) return x * kHalfPi;
  return 0.0;
}

double SinH(double x) { return (std::exp(x) - std::exp(-x)) / 2.0; }

double CosH(double x) { return (std::exp(x) + std::exp(-x)) / 2.0; }

void AzDist(double a, double b, double& angle, double& distance) {
  if (b == 0.0) {
    angle = a >= 0.0 ? 0.0 : kPi;
  } else {
    if (a == 0.0) angle = b > 0.0 ? kHalfPi : kThreeHalfPi;
    else angle = std::atan(std::fabs(b) / std::fabs(a));
    // The quadrant: the same correction also runs on the axis case above.
    if (a < 0.0) angle = b > 0.0 ? kPi - angle : angle + kPi;
    else if (b < 0.0) angle = kTwoPi - angle;
  }
  distance = std::sqrt(a * a + b * b);
}

}  // namespace benchlog
