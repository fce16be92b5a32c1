#pragma once
// The angle constants and the small trigonometric helpers every computation shares. Angles are
// double-precision radians; latitude is positive north, longitude positive west.
#include <bit>
#include <cstdint>

namespace benchlog {

// Pi as the program has always written it, shorter than full double precision; listings that must
// agree with earlier ones depend on every conversion using exactly this value.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kHalfPi = kPi / 2;
// Three half-turns of pi and the full circle stand as literals of their own, from the same short pi.
inline constexpr double kThreeHalfPi = 4.712388980384685;
inline constexpr double kTwoPi = 6.28318530717958;

static_assert(std::bit_cast<std::uint64_t>(kPi) == 0x400921FB54442D11u);
static_assert(std::bit_cast<std::uint64_t>(kThreeHalfPi) == 0x4012D97C7F3321CDu);
static_assert(std::bit_cast<std::uint64_t>(kTwoPi) == 0x401921FB54442D11u);

// Degrees to radians: degrees times pi, then divided by 180.
double RadOfDeg(double degrees);
// Radians to degrees: radians divided by pi, then times 180.
double DegOfRad(double radians);

// Arcsine in radians. |x| < 1: atan(x / sqrt(1 - x^2)); |x| = 1: x times pi/2; |x| > 1: 0, with no
// failure (a chord longer than the diameter gives a zero angle, not an error).
double ArcSin(double x);
double SinH(double x);  // (exp(x) - exp(-x)) / 2
double CosH(double x);  // (exp(x) + exp(-x)) / 2

// Direction and length of the plane vector (a, b), the angle in radians running from the a axis
// toward the b axis, 0 up to the full circle. A vector with a = 0 and b < 0 gives about pi/2
// (the full circle minus three half-turns), as it always has.
void AzDist(double a, double b, double& angle, double& distance);

}  // namespace benchlog
