#include <gtest/gtest.h>

#include <cmath>

#include "support_files/towns_file.hpp"
#include "sample_lines.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog {
namespace {

constexpr double kSecond = 1.0 / 3600.0;

TEST(TownLine, ReadsTheColumnsThePlotReads) {
  struct Case { const char* line; const char* name; double latitude, longitude; };
  const Case cases[] = {
      // 36 04 40 = 36.0777..., 079 05 53 = 79.0980...
      {"HILLSBOROUGH                 3604400790553", "HILLSBOROUGH", 36 + 4 / 60.0 + 40 * kSecond,
       79 + 5 / 60.0 + 53 * kSecond},
      // West of 180: longitude counted on past 180 degrees.
      {"ATTU STATION                 5252491864438", "ATTU STATION", 52 + 52 / 60.0 + 49 * kSecond,
       186 + 44 / 60.0 + 38 * kSecond},
      // The name is cut at 28 characters; column 29 is not part of it.
      {"A NAME OF TWENTY-NINE LETTERS3000001000000", "A NAME OF TWENTY-NINE LETTER", 30, 100},
      // A short line reads as zeros where it lacks columns.
      {"SHORT", "SHORT", 0, 0},
      {"HALF LINE                    350000", "HALF LINE", 35, 0},
      {"", "", 0, 0},
  };
  for (const auto& c : cases) {
    const TownLine town = ReadTownLine(c.line);
    EXPECT_EQ(town.name, c.name) << c.line;
    EXPECT_NEAR(town.latitude, c.latitude, 1e-12) << c.line;
    EXPECT_NEAR(town.longitude, c.longitude, 1e-12) << c.line;
  }
}

TEST(TownLine, ExtentIsStrict) {
  TownLine town{"T", 36.0, 79.0};
  struct Case { double minLat, minLon, maxLat, maxLon; bool inside; };
  const Case cases[] = {
      {35, 78, 37, 80, true},  {36, 78, 37, 80, false}, {35, 78, 36, 80, false},
      {35, 79, 37, 80, false}, {35, 78, 37, 79, false}, {36.5, 78, 37, 80, false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(TownInExtent(town, c.minLat, c.minLon, c.maxLat, c.maxLon), c.inside)
        << c.minLat << " " << c.minLon << " " << c.maxLat << " " << c.maxLon;
  }
}

TEST(TownLine, ReadsTheFixtureFile) {
  std::vector<std::string> names;
  for (const auto& line : test::ReadLines(testing::TestData("support/") + kTownsFileName)) {
    names.push_back(ReadTownLine(line).name);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"ATTU STATION", "CHAPEL HILL", "HILLSBOROUGH"}));
}

std::vector<std::string> CommittedTowns() { return test::ReadLines(testing::SourceSupport() + kTownsFileName); }

TEST(CommittedTowns, SortedAndNoTwoAlikeInTheirFirst32Columns) {
  const auto lines = CommittedTowns();
  ASSERT_EQ(lines.size(), 32187u);  // every populated place of the Census table
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    ASSERT_EQ(line.size(), 42u) << line;
    EXPECT_EQ(line[28], ' ') << line;  // names end by column 28, so the plot shows them whole
    EXPECT_NE(line[0], ' ') << line;
    if (i > 0) {
      EXPECT_LT(lines[i - 1], line);  // ordinal, as the towns command sorts
      EXPECT_NE(lines[i - 1].substr(0, 32), line.substr(0, 32)) << line;
    }
  }
}

TEST(CommittedTowns, PositionsReadBackToTheSecond) {
  // Census positions in decimal degrees (us_places.csv), longitude positive west.
  struct Case { const char* line; double latitude, longitude; };
  const Case cases[] = {
      {"HILLSBOROUGH ", 36.077903, 79.097981},   {"CHAPEL HILL  ", 35.921285, 79.045126},
      {"ATTU STATION ", 52.880246, 360 - 173.256077}, {"EASTPORT     ", 44.910942, 67.009162},
      {"KEY WEST     ", 24.565061, 81.775539},   {"NEAH BAY     ", 48.360961, 124.611560},
      {"BROWNSVILLE  ", 25.995691, 97.450850},   {"ESPANOLA     ", 36.003957, 106.070130},
      {"UTQIAGVIK    ", 71.253862, 156.798249},  {"BEL AIR CDP, MD", 39.581259, 78.855471},
      {"BEL AIR TOWN, MD", 39.534942, 76.346323}, {"ANASCO       ", 18.285524, 67.140123},
  };
  const auto lines = CommittedTowns();
  for (const auto& c : cases) {
    std::vector<TownLine> found;
    for (const auto& line : lines) {
      if (line.rfind(c.line, 0) == 0) found.push_back(ReadTownLine(line));
    }
    bool near = false;
    for (const auto& town : found) {
      near = near || (std::fabs(town.latitude - c.latitude) <= 0.5 * kSecond + 1e-9 &&
                      std::fabs(town.longitude - c.longitude) <= 0.5 * kSecond + 1e-9);
    }
    EXPECT_TRUE(near) << c.line << ": " << found.size() << " lines, none at the position";
  }
}

}  // namespace
}  // namespace benchlog
