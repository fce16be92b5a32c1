#include <gtest/gtest.h>

#include <cmath>
#include <iostream>
#include <map>

#include "common/runtime_failure.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/transverse_mercator.hpp"
#include "geodesy/utm_zone.hpp"
#include "geodesy/zone_table.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

using testing::GeodesyTest;
using testing::Grs80;
using testing::ReadVectors;
using testing::SupportPath;
using testing::Worst;

constexpr double kArcSecond = 3.14159265358979 / 180 / 3600;

struct Grid {
  double north = -1, east = -1, convergence = -1, scale = -1;
};

Grid Forward(const std::string& line, double latitude, double longitude) {
  Grid g;
  TmForward(Grs80(), line, latitude, longitude, g.north, g.east, g.convergence, g.scale);
  return g;
}

std::string Zone(const std::string& key) {
  std::string line;
  FindZoneLine(key, "", line, SupportPath());
  return line;
}

TEST_F(GeodesyTest, TransverseMercatorOnlyForItsKinds) {
  const Grid lambert = Forward(Zone("MD   "), RadOfDeg(39), RadOfDeg(77));
  EXPECT_EQ(lambert.north, -1);
  EXPECT_EQ(lambert.scale, -1);
  double lat = -1, lon = -1, convergence = -1, scale = -1;
  TmInverse(Grs80(), Zone("AK 1 "), lat, lon, 1000, 1000, convergence, scale);
  EXPECT_EQ(lat, -1);
  EXPECT_EQ(lon, -1);
}

TEST_F(GeodesyTest, TransverseMercatorSidesOfTheCentralMeridian) {
  const std::string line = Zone("GA W ");  // 84 10 W, false easting 700000
  const double cm = RadOfDeg(84 + 10 / 60.0);
  const Grid east = Forward(line, RadOfDeg(33), cm - RadOfDeg(0.5));  // a smaller west longitude
  EXPECT_GT(east.east, 700000.0);
  EXPECT_GT(east.convergence, 0.0);
  EXPECT_GT(east.scale, 0.9999);
  const Grid west = Forward(line, RadOfDeg(33), cm + RadOfDeg(0.5));
  EXPECT_LT(west.east, 700000.0);
  EXPECT_NEAR(west.east - 700000.0, 700000.0 - east.east, 1e-6);
  EXPECT_NEAR(west.convergence, -east.convergence, 1e-15);
  EXPECT_EQ(west.north, east.north);
}

TEST_F(GeodesyTest, TransverseMercatorNorthingCountsFromTheOrigin) {
  // On the central meridian at the latitude of origin the northing is the false northing.
  const std::string line = Zone("NV E ");  // origin 34 45 N, false northing 8000000
  const double cm = (115 + 35 / 60.0) / (180.0 / kPi);
  const Grid g = Forward(line, RadOfDeg(34.75), cm);
  EXPECT_NEAR(g.north, 8000000.0, 1e-5);
  EXPECT_EQ(g.east, 200000.0);
}

TEST_F(GeodesyTest, TransverseMercatorWithoutScaleDenominatorFails) {
  std::string line = Zone("AL W ");
  line.replace(18, 12, std::string(12, ' '));
  Grid g;
  EXPECT_THROW(TmForward(Grs80(), line, 0.5, 1.5, g.north, g.east, g.convergence, g.scale), RuntimeFailure);
  EXPECT_EQ(g.north, -1);
}

TEST_F(GeodesyTest, InverseIsNotAnExactMirror) {
  const std::string line = Zone("AL E ");
  const double lat = RadOfDeg(32.5), lon = RadOfDeg(85.3);
  const Grid g = Forward(line, lat, lon);
  double lat2 = 0, lon2 = 0, convergence = 0, scale = 0;
  TmInverse(Grs80(), line, lat2, lon2, g.north, g.east, convergence, scale);
  EXPECT_NEAR(lat2, lat, 1e-5 * kArcSecond);
  EXPECT_NEAR(lon2, lon, 1e-5 * kArcSecond);
  EXPECT_NEAR(convergence, g.convergence, 1e-9);
  EXPECT_NEAR(scale, g.scale, 1e-9);
}

// One kind of reference set: position in metres, inverse in arc-seconds, convergence and scale.
struct TmFigures {
  Worst position, inverse, convergence, scale;
  int points = 0;
  void Check(const std::string& line, const std::vector<std::string>& r) {
    const double lat = RadOfDeg(std::stod(r[1])), lon = RadOfDeg(std::stod(r[2]));
    const double north = std::stod(r[3]), east = std::stod(r[4]);
    const std::string where = r[0] + " " + r[1] + " " + r[2];
    const Grid g = Forward(line, lat, lon);
    position.Note(std::max(std::fabs(g.north - north), std::fabs(g.east - east)), where);
    convergence.Note(std::fabs(g.convergence - RadOfDeg(std::stod(r[5]))), where);
    scale.Note(std::fabs(g.scale - std::stod(r[6])), where);
    double lat2 = 0, lon2 = 0, gamma = 0, k = 0;
    TmInverse(Grs80(), line, lat2, lon2, north, east, gamma, k);
    inverse.Note(std::max(std::fabs(lat2 - lat), std::fabs(lon2 - lon) * std::cos(lat)) / kArcSecond, where);
    ++points;
  }
  void Print(const std::string& what) const {
    std::cout << what << ", " << points << " points: largest error " << position.value * 1000 << " mm ("
              << position.where << "); TmInverse " << inverse.value << " arc-second (" << inverse.where
              << "); convergence " << convergence.value << " rad (" << convergence.where << "); scale "
              << scale.value << " (" << scale.where << ")\n";
  }
};

// Against PROJ (tmerc) for north and east and GeographicLib's TransverseMercatorProj for
// convergence and scale: every transverse Mercator zone of the table, points within 2 degrees of
// the central meridian.
TEST_F(GeodesyTest, StatePlaneTransverseMercatorAccuracyAgainstProj) {
  std::map<std::string, std::string> lines;
  TmFigures figures;
  for (const auto& r : ReadVectors("spcs_vectors.txt")) {
    if (r[7] != "TM") continue;
    std::string& line = lines[r[0]];
    if (line.empty()) FindZoneLine("", r[0], line, SupportPath());
    ASSERT_EQ(ZoneKind(line), "TM") << r[0];
    figures.Check(line, r);
  }
  figures.Print("TmForward, " + std::to_string(lines.size()) + " state plane zones");
  EXPECT_EQ(lines.size(), 54u);
  EXPECT_LT(figures.position.value, 1e-4);
  EXPECT_LT(figures.inverse.value, 1e-5);
  EXPECT_LT(figures.convergence.value, 1e-9);
  EXPECT_LT(figures.scale.value, 1e-9);
}

// UTM zones 1 to 60 from 80 S to 84 N within 3 degrees of the central meridian, the zone lines made
// by UtmZoneLine; false northing 0 also in the south.
TEST_F(GeodesyTest, UtmAccuracyAgainstProj) {
  TmFigures figures;
  for (const auto& r : ReadVectors("utm_vectors.txt")) {
    std::string line;
    auto zone = static_cast<std::int16_t>(std::stoi(r[0]));
    UtmZoneLine(line, RadOfDeg(std::stod(r[2])), zone);
    ASSERT_EQ(zone, std::stoi(r[0])) << r[2];
    figures.Check(line, r);
  }
  figures.Print("UTM through TmForward, 60 zones");
  EXPECT_LT(figures.position.value, 1e-4);
  EXPECT_LT(figures.inverse.value, 1e-5);
  EXPECT_LT(figures.convergence.value, 1e-8);
  EXPECT_LT(figures.scale.value, 1e-8);
}

}  // namespace
}  // namespace benchlog
