#include <gtest/gtest.h>

#include <cmath>

#include "geodesy/angles.hpp"
#include "geodesy/oblique_mercator.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

using testing::GeodesyTest;
using testing::ReadRows;
using testing::SupportPath;
using testing::Worst;

std::string AlaskaOne() {
  std::string line;
  FindZoneLine("", "5001", line, SupportPath());
  return line;
}

TEST_F(GeodesyTest, ObliqueOnlyForItsKind) {
  std::string line;
  FindZoneLine("AK 2 ", "", line, SupportPath());
  double north = -1, east = -1, convergence = -1, scale = -1;
  ObliqueForward(ellipsoid, line, RadOfDeg(57), RadOfDeg(133.5), north, east, convergence, scale);
  EXPECT_EQ(north, -1);
  EXPECT_EQ(scale, -1);
}

// Against PROJ's oblique Mercator with the EPSG definition of zone 5001 on GRS 80, whose axis
// azimuth 323 07 48.3685 is the exact tangent -3/4 rounded, and with that exact azimuth.
TEST_F(GeodesyTest, ObliqueAccuracyAgainstProj) {
  const std::string line = AlaskaOne();
  Worst position, exactAxis, convergence, scale;
  for (const auto& r : ReadRows("spcs_vectors.txt", 1984)) {
    if (r[7] != "OM") continue;
    double north = 0, east = 0, gamma = 0, k = 0;
    ObliqueForward(ellipsoid, line, RadOfDeg(std::stod(r[1])), RadOfDeg(std::stod(r[2])), north, east, gamma, k);
    const std::string where = r[1] + " " + r[2];
    position.Note(std::hypot(north - std::stod(r[3]), east - std::stod(r[4])), where);
    exactAxis.Note(std::hypot(north - std::stod(r[8]), east - std::stod(r[9])), where);
    convergence.Note(std::fabs(gamma - RadOfDeg(std::stod(r[5]))), where);
    scale.Note(std::fabs(k - std::stod(r[6])), where);
  }
  EXPECT_LT(position.value, 1e-3) << position.where;
  EXPECT_LT(exactAxis.value, 5e-5) << exactAxis.where;
  EXPECT_LT(convergence.value, 1e-9) << convergence.where;
  EXPECT_LT(scale.value, 1e-8) << scale.where;  // PROJ prints it to 8 decimals
}

}  // namespace
}  // namespace benchlog
