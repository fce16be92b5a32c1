#include <gtest/gtest.h>

#include <algorithm>

#include "common/number_text.hpp"
#include "common/text.hpp"
#include "sample_lines.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog {
namespace {

std::vector<std::string> Lines(const std::string& name) { return test::ReadLines(testing::SourceSupport() + name); }

TEST(SmallTables, EllipsoidsHoldTheirAxisAndFlattening) {
  struct Case { const char* name; double a, inverseFlattening; };
  const Case cases[] = {
      {"GRS 80", 6378137.0, 298.257222101}, {"WGS 84", 6378137.0, 298.257223563},
      {"CLARKE 1866", 6378206.4, 294.978698214}, {"INTL 1924", 6378388.0, 297.0},
  };
  const auto lines = Lines("Ellipsoid.dat");
  for (const auto& c : cases) {
    bool found = false;
    for (const auto& line : lines) {
      if (Trim(Mid(line, 1, 12)) != c.name) continue;
      found = true;
      EXPECT_DOUBLE_EQ(Val(Mid(line, 14, 14)), c.a) << line;
      EXPECT_DOUBLE_EQ(Val(Mid(line, 29, 15)), c.inverseFlattening) << line;
    }
    EXPECT_TRUE(found) << c.name;
  }
}

TEST(SmallTables, DatumsNameKnownEllipsoidsAndTheSampleRealizations) {
  std::vector<std::string> ellipsoids;
  for (const auto& line : Lines("Ellipsoid.dat")) ellipsoids.push_back(Trim(Mid(line, 1, 12)));
  std::vector<std::string> datums;
  for (const auto& line : Lines("Horizontal_Datum.dat")) {
    datums.push_back(Trim(Mid(line, 1, 18)));
    EXPECT_NE(std::find(ellipsoids.begin(), ellipsoids.end(), Trim(Mid(line, 20, 12))), ellipsoids.end()) << line;
  }
  for (const char* datum : {"NAD 83(1986)", "NAD 83(1993)", "NAD 83(2001)", "NAD 83(NSRS2007)", "NAD 83(2011)",
                            "NAD 27"}) {
    EXPECT_NE(std::find(datums.begin(), datums.end(), datum), datums.end()) << datum;
  }
}

}  // namespace
}  // namespace benchlog
