#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "geodesy/angles.hpp"

namespace benchlog {
namespace {

TEST(Angles, ConversionsUseTheProgramsPiInTheGivenOrder) {
  // 77 degrees: (77 * pi) / 180 differs in the last bit from 77 * (pi / 180).
  EXPECT_EQ(RadOfDeg(77.0), 1.3439035240356323);
  // 1 radian: (1 / pi) * 180 differs from 1 * (180 / pi), and from the library's pi.
  EXPECT_EQ(DegOfRad(1.0), 57.29577951308239);
  EXPECT_NE(DegOfRad(1.0), 180.0 / std::numbers::pi);
  EXPECT_EQ(RadOfDeg(180.0), kPi);
  EXPECT_EQ(DegOfRad(kPi), 180.0);
}

TEST(Angles, ArcSinCoversTheWholeLine) {
  struct Case { double x, expected; };
  const Case cases[] = {
      {0.0, 0.0}, {0.5, 0.5235987755982989}, {-0.5, -0.5235987755982989},
      {1.0, kHalfPi}, {-1.0, -kHalfPi},
      {1.5, 0.0}, {-2.0, 0.0},  // beyond the sine's range: 0, and no failure
  };
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(ArcSin(c.x), c.expected) << c.x;
}

TEST(Angles, HyperbolicFunctions) {
  EXPECT_EQ(SinH(0.0), 0.0);
  EXPECT_EQ(CosH(0.0), 1.0);
  EXPECT_DOUBLE_EQ(SinH(1.0), 1.1752011936438014);
  EXPECT_DOUBLE_EQ(CosH(1.0), 1.5430806348152437);
}

TEST(Angles, AzDistQuadrants) {
  const double quarter = std::atan(1.0);
  struct Case { double a, b, angle, distance; };
  const Case cases[] = {
      {0, 0, 0, 0},
      {2, 0, 0, 2},
      {-1, 0, kPi, 1},
      {0, 1, kHalfPi, 1},
      {0, -1, kTwoPi - kThreeHalfPi, 1},  // the axis case also takes the quadrant step: about pi/2
      {1, 1, quarter, std::sqrt(2.0)},
      {-1, 1, kPi - quarter, std::sqrt(2.0)},
      {-1, -1, quarter + kPi, std::sqrt(2.0)},
      {1, -1, kTwoPi - quarter, std::sqrt(2.0)},
      {3, 4, std::atan(4.0 / 3.0), 5},
  };
  for (const auto& c : cases) {
    double angle = -9, distance = -9;
    AzDist(c.a, c.b, angle, distance);
    EXPECT_EQ(angle, c.angle) << c.a << "," << c.b;
    EXPECT_DOUBLE_EQ(distance, c.distance) << c.a << "," << c.b;
  }
}

}  // namespace
}  // namespace benchlog
