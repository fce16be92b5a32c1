#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "common/runtime_failure.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/transverse_mercator.hpp"
#include "geodesy/utm_zone.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

using testing::GeodesyTest;
using testing::Grs80;
using testing::ReadRows;
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

TEST_F(GeodesyTest, TransverseMercatorWithoutScaleDenominatorFails) {
  std::string line = Zone("AL W ");
  line.replace(18, 12, std::string(12, ' '));
  Grid g;
  EXPECT_THROW(TmForward(Grs80(), line, 0.5, 1.5, g.north, g.east, g.convergence, g.scale), RuntimeFailure);
  EXPECT_EQ(g.north, -1);
}

// One kind of reference set: position in metres, inverse in arc-seconds, convergence and scale.
struct TmFigures {
  Worst position, inverse, convergence, scale;
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
  }
  void Expect(double metres, double arcSeconds, double radians, double scaleError) const {
    EXPECT_LT(position.value, metres) << position.where;
    EXPECT_LT(inverse.value, arcSeconds) << inverse.where;
    EXPECT_LT(convergence.value, radians) << convergence.where;
    EXPECT_LT(scale.value, scaleError) << scale.where;
  }
};

// Against PROJ (tmerc) for north and east and GeographicLib's TransverseMercatorProj for
// convergence and scale: every transverse Mercator zone of the table, points within 2 degrees of
// the central meridian.
TEST_F(GeodesyTest, StatePlaneTransverseMercatorAccuracyAgainstProj) {
  std::map<std::string, std::string> lines;
  TmFigures figures;
  for (const auto& r : ReadRows("spcs_vectors.txt", 1984)) {
    if (r[7] != "TM") continue;
    std::string& line = lines[r[0]];
    if (line.empty()) FindZoneLine("", r[0], line, SupportPath());
    ASSERT_EQ(ZoneKind(line), "TM") << r[0];
    figures.Check(line, r);
  }
  figures.Expect(1e-4, 1e-5, 1e-9, 1e-9);
}

// UTM zones 1 to 60 from 80 S to 84 N within 3 degrees of the central meridian, the zone lines made
// by UtmZoneLine; false northing 0 also in the south.
TEST_F(GeodesyTest, UtmAccuracyAgainstProj) {
  TmFigures figures;
  for (const auto& r : ReadRows("utm_vectors.txt", 360)) {
    std::string line;
    auto zone = static_cast<std::int16_t>(std::stoi(r[0]));
    UtmZoneLine(line, RadOfDeg(std::stod(r[2])), zone);
    ASSERT_EQ(zone, std::stoi(r[0])) << r[2];
    figures.Check(line, r);
  }
  figures.Expect(1e-4, 1e-5, 1e-8, 1e-8);
}

}  // namespace
}  // namespace benchlog
