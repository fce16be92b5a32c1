#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <map>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/transverse_mercator.hpp"
#include "geodesy/zone_table.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

using testing::GeodesyTest;
using testing::SupportPath;

class ZoneLookup : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = (std::filesystem::temp_directory_path() / "benchlog_zone_lookup/").string();
    std::filesystem::create_directories(folder_);
    WriteWholeFile(folder_ + kZoneTableFile,
                   "AAAAA 0001 first\r\nBBBBB 0002 second\r\nCCCCC 0003 third\r\nBBBBB 0004 fourth\r\n");
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }
  std::string Find(const std::string& key, const std::string& number) {
    std::string line = "stale";
    FindZoneLine(key, number, line, folder_);
    return line;
  }
  std::string folder_;
};

TEST_F(ZoneLookup, FirstLineWhoseKeyOrNumberMatches) {
  EXPECT_EQ(Find("CCCCC", ""), "CCCCC 0003 third");
  EXPECT_EQ(Find("BBBBB", ""), "BBBBB 0002 second");   // the first of two
  EXPECT_EQ(Find("ZZZZZ", "0003"), "CCCCC 0003 third"); // the number alone finds it
  EXPECT_EQ(Find("CCCCC", "0001"), "AAAAA 0001 first"); // or, not and: the earlier line wins
  EXPECT_EQ(Find("ZZZZZ", ""), "");                     // no match: empty
  EXPECT_EQ(Find("CCCC", ""), "");                      // the texts must fill the columns
  EXPECT_EQ(Find("", ""), "");
}

TEST_F(ZoneLookup, MissingTableIsTheFileError) {
  std::string line;
  try {
    FindZoneLine("AAAAA", "", line, folder_ + "absent/");
    FAIL() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kFileNotFound);
  }
}

TEST(ZoneTable, FootFactors) {
  EXPECT_DOUBLE_EQ(GridFeetPerMetre("iFT"), 1 / 0.3048);
  EXPECT_EQ(GridFeetPerMetre("iFT"), 1000.0 / 304.79999999999995);
  EXPECT_EQ(GridFeetPerMetre("sFT"), 3937.0 / 1200.0);
  EXPECT_EQ(GridFeetPerMetre("   "), 3937.0 / 1200.0);
  EXPECT_EQ(kFeetPerMetre, 3.28083333333333);
}

std::vector<std::string> TableLines() {
  LineReader reader(SupportPath() + kZoneTableFile);
  std::vector<std::string> lines;
  for (std::string line; reader.ReadLine(line);) lines.push_back(line);
  return lines;
}

TEST(ZoneTable, EveryZoneHasOneFullLine) {
  const auto lines = TableLines();
  ASSERT_EQ(lines.size(), 124u);
  std::map<std::string, int> kinds;
  std::map<std::string, int> keys;
  for (const auto& line : lines) {
    EXPECT_EQ(line.size(), 226u) << line.substr(0, 10);
    EXPECT_EQ(line[5], ' ');
    EXPECT_TRUE(IsNumeric(Mid(line, 7, 4))) << line.substr(0, 10);
    const std::string unit = ZoneFootUnit(line);
    EXPECT_TRUE(unit == "sFT" || unit == "iFT" || unit == "   ") << line.substr(0, 10);
    ++kinds[ZoneKind(line)];
    ++keys[line.substr(0, 5)];
  }
  EXPECT_EQ(kinds["LC"], 69);
  EXPECT_EQ(kinds["TM"], 54);
  EXPECT_EQ(kinds["OM"], 1);
  EXPECT_EQ(keys.size(), lines.size());  // every key finds its own zone
}

TEST(ZoneTable, LinesReadAsTheirZonesAreDefined) {
  std::string line;
  FindZoneLine("MD   ", "", line, SupportPath());
  EXPECT_EQ(line.substr(0, 10), "MD    1900");
  EXPECT_EQ(Mid(line, 12, 6), "077:00");
  EXPECT_EQ(ZoneField(line, 19, 12), 400000.0);
  EXPECT_EQ(ZoneField(line, 32, 12), 0.0);
  EXPECT_EQ(Mid(line, 45, 5) + Mid(line, 51, 5) + Mid(line, 57, 5), "39:2738:1837:40");
  EXPECT_EQ(ZoneFootUnit(line) + ZoneKind(line), "sFTLC");
  EXPECT_NEAR(ZoneAngleField(line, 45, 5), RadOfDeg(39.45), 1e-15);

  FindZoneLine("", "4204", line, SupportPath());  // Texas South Central by its number
  EXPECT_EQ(line.substr(0, 5), "TX SC");
  EXPECT_EQ(ZoneField(line, 19, 12), 600000.0);
  EXPECT_EQ(ZoneField(line, 32, 12), 4000000.0);

  FindZoneLine("AL W ", "", line, SupportPath());
  EXPECT_EQ(ZoneField(line, 19, 12), 15000.0);  // 1 - 1/15000
  EXPECT_EQ(ZoneField(line, 60, 12), 600000.0);
  EXPECT_EQ(Mid(line, 101, 6), "087:30");
  EXPECT_EQ(Mid(line, 93, 5), "30:00");
  EXPECT_EQ(ZoneKind(line), "TM");

  FindZoneLine("MI N ", "", line, SupportPath());
  EXPECT_EQ(ZoneFootUnit(line), "iFT");
  EXPECT_EQ(ZoneField(line, 19, 12), 8000000.0);
  FindZoneLine("AK 10", "", line, SupportPath());
  EXPECT_EQ(Mid(line, 12, 6), "176:00");
  EXPECT_EQ(ZoneFootUnit(line), "   ");
  FindZoneLine("AK 1 ", "", line, SupportPath());
  EXPECT_EQ(ZoneKind(line), "OM");
  EXPECT_EQ(ZoneField(line, 123, 13), -5000000.0);
  EXPECT_EQ(ZoneField(line, 137, 12), 5000000.0);
  EXPECT_NEAR(ZoneField(line, 150, 18), std::atan(-0.75), 1e-15);  // the grid turns by the axis azimuth
}

// The meridional arc of GRS 80 from the equator by Simpson's rule, independent of the series.
double ArcByQuadrature(double latitude) {
  const double a = 6378137.0, e2 = 0.00669438002290;
  const int steps = 2000;
  const double h = latitude / steps;
  double sum = 0;
  for (int i = 0; i <= steps; ++i) {
    const double s = std::sin(i * h);
    const double m = a * (1 - e2) / std::pow(1 - e2 * s * s, 1.5);
    sum += m * (i == 0 || i == steps ? 1 : (i % 2 ? 4 : 2));
  }
  return sum * h / 3;
}

TEST(ZoneTable, ArcAtOriginOfEveryTransverseMercatorZone) {
  for (const auto& line : TableLines()) {
    if (ZoneKind(line) != "TM") continue;
    const double denominator = ZoneField(line, 19, 12);
    const double k0 = (denominator - 1) / denominator;
    const double origin = RadOfDeg(ZoneField(line, 93, 2) + ZoneField(line, 96, 2) / 60.0);
    EXPECT_NEAR(ZoneField(line, 46, 13), k0 * ArcByQuadrature(origin), 1e-4) << line.substr(0, 10);
  }
}

TEST_F(GeodesyTest, ScaleDenominatorGivesTheCentralScale) {
  struct Case { const char* key; double k0; };
  const Case cases[] = {{"AL W ", 1 - 1.0 / 15000}, {"AK 2 ", 0.9999}, {"HI 5 ", 1.0}, {"RI   ", 1 - 1.0 / 160000}};
  for (const auto& c : cases) {
    std::string line;
    FindZoneLine(c.key, "", line, SupportPath());
    double north = 0, east = 0, convergence = 1, scale = 0;
    // The central meridian exactly as the routine forms it: (degrees + minutes / 60) / (180 / pi).
    const double cm = (ZoneField(line, 101, 3) + ZoneField(line, 105, 2) / 60.0) / (180.0 / kPi);
    TmForward(ellipsoid, line, RadOfDeg(40), cm, north, east, convergence, scale);
    EXPECT_DOUBLE_EQ(scale, c.k0) << c.key;
    EXPECT_EQ(convergence, 0.0) << c.key;
    EXPECT_EQ(east, ZoneField(line, 60, 12)) << c.key;
  }
}

}  // namespace
}  // namespace benchlog
