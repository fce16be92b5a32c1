#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "common/text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/lambert.hpp"
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

std::string Zone(const std::string& key) {
  std::string line;
  FindZoneLine(key, "", line, SupportPath());
  return line;
}

// A copy of `line` with `text` put at 1-based `column`.
std::string With(std::string line, std::size_t column, const std::string& text) {
  line.replace(column - 1, text.size(), text);
  return line;
}

struct Grid {
  double north = -1, east = -1, convergence = -1, scale = -1;
  bool Untouched() const { return north == -1 && east == -1 && convergence == -1 && scale == -1; }
};

Grid Project(LambertZoneConstants& zone, const std::string& line, double latDegrees, double lonDegrees) {
  Grid g;
  LambertForward(Grs80(), zone, line, RadOfDeg(latDegrees), RadOfDeg(lonDegrees), g.north, g.east, g.convergence,
                 g.scale);
  return g;
}

TEST_F(GeodesyTest, LambertOnlyForItsKind) {
  EXPECT_TRUE(Project(lambert, Zone("AL W "), 31, 87.5).Untouched());
  EXPECT_EQ(lambert.zoneNumber, 0);
}

TEST_F(GeodesyTest, LambertOnTheCentralMeridian) {
  const Grid g = Project(lambert, Zone("MD   "), 39, 77);
  EXPECT_EQ(g.convergence, 0.0);
  EXPECT_EQ(g.east, 400000.0);
  EXPECT_EQ(lambert.zoneNumber, 1900);
}

TEST_F(GeodesyTest, LambertKeepsTheZoneConstantsUntilTheNumberChanges) {
  const std::string maryland = Zone("MD   ");
  const std::string moved = With(maryland, 19, " 500000.0000");  // another false easting, same number
  const Grid first = Project(lambert, maryland, 39.2, 76.5);
  const Grid cached = Project(lambert, moved, 39.2, 76.5);  // same number: no rebuild, the old easting stays
  EXPECT_EQ(cached.east, first.east);
  EXPECT_EQ(cached.north, first.north);

  Project(lambert, Zone("VA N "), 38.5, 78);  // another zone, then back: rebuilt each time
  EXPECT_EQ(lambert.zoneNumber, 4501);
  const Grid rebuilt = Project(lambert, moved, 39.2, 76.5);
  EXPECT_NEAR(rebuilt.east, first.east + 100000.0, 1e-9);
  EXPECT_EQ(rebuilt.north, first.north);
  EXPECT_EQ(lambert.zoneNumber, 1900);
}

TEST_F(GeodesyTest, LambertZeroParallelLeavesStaleConstants) {
  const std::string maryland = Zone("MD   ");
  const Grid reference = Project(lambert, maryland, 39.2, 76.5);
  const double k = lambert.k;
  // Zone 9999: Maryland with the first parallel 0 and another false easting.
  const std::string broken = With(With(With(maryland, 7, "9999"), 45, "00:00"), 19, " 500000.0000");
  EXPECT_TRUE(Project(lambert, broken, 39.2, 76.5).Untouched());
  EXPECT_EQ(lambert.zoneNumber, 9999);
  EXPECT_EQ(lambert.eb, 500000.0);  // stored before the parallels were read
  EXPECT_EQ(lambert.k, k);
  // The next call for that zone skips the rebuild and works with Maryland's K, Rb and cone.
  const Grid stale = Project(lambert, broken, 39.2, 76.5);
  EXPECT_NEAR(stale.east, reference.east + 100000.0, 1e-9);
  EXPECT_EQ(stale.north, reference.north);
  EXPECT_EQ(stale.scale, reference.scale);
}

// Against PROJ (north, east) and GeographicLib's ConicProj (convergence, scale) for every Lambert
// zone of the table, points spread over each zone.
TEST_F(GeodesyTest, LambertAccuracyAgainstProj) {
  std::map<std::string, std::string> lines;
  Worst position, convergence, scale;
  for (const auto& r : ReadRows("spcs_vectors.txt", 1984)) {
    if (r[7] != "LC") continue;
    std::string& line = lines[r[0]];
    if (line.empty()) FindZoneLine("", r[0], line, SupportPath());
    ASSERT_EQ(ZoneKind(line), "LC") << r[0];
    const Grid g = Project(lambert, line, std::stod(r[1]), std::stod(r[2]));
    const std::string where = r[0] + " " + r[1] + " " + r[2];
    position.Note(std::max(std::fabs(g.north - std::stod(r[3])), std::fabs(g.east - std::stod(r[4]))), where);
    convergence.Note(std::fabs(g.convergence - RadOfDeg(std::stod(r[5]))), where);
    scale.Note(std::fabs(g.scale - std::stod(r[6])), where);
  }
  EXPECT_LT(position.value, 1e-4) << position.where;
  EXPECT_LT(convergence.value, 1e-9) << convergence.where;
  EXPECT_LT(scale.value, 1e-9) << scale.where;
}

}  // namespace
}  // namespace benchlog
