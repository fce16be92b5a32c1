#include <gtest/gtest.h>

#include "common/runtime_failure.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/ellipsoid.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

using testing::GeodesyTest;

TEST_F(GeodesyTest, IsometricLatitude) {
  EXPECT_EQ(IsometricLatitude(ellipsoid, 0.0), 0.0);
  // 45 degrees on GRS 80: asinh(tan 45) - e atanh(e sin 45).
  EXPECT_NEAR(IsometricLatitude(ellipsoid, std::sin(RadOfDeg(45))), 0.876634653411382, 1e-15);
  EXPECT_THROW(IsometricLatitude(ellipsoid, 1.0), RuntimeFailure);  // the pole: no guard
  EXPECT_NEAR(IsometricLatitude({6371000.0, 0.0, 0.0}, 0.5), std::atanh(0.5), 1e-15);  // a sphere
}

TEST_F(GeodesyTest, CombinedFactor) {
  // At 45 degrees the Euler radius in azimuth 45 is 2 M N / (M + N) = 6378092.00754 m.
  double elevation = 0, combined = 0;
  CombinedFactor(ellipsoid, RadOfDeg(45), 100.0, 0.9999, elevation, combined);
  EXPECT_NEAR(elevation, 1.0 - 100.0 / (6378092.00754 + 100.0), 1e-13);
  EXPECT_NEAR(combined, elevation * 0.9999, 1e-15);
  CombinedFactor(ellipsoid, RadOfDeg(45), 0.0, 0.99995, elevation, combined);
  EXPECT_EQ(elevation, 1.0);
  EXPECT_EQ(combined, 0.99995);
  CombinedFactor(ellipsoid, RadOfDeg(10), -30.0, 1.0, elevation, combined);
  EXPECT_GT(elevation, 1.0);  // below the ellipsoid a distance grows
}

}  // namespace
}  // namespace benchlog
