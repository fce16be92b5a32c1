#include <gtest/gtest.h>

#include <string>

#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/format_padded.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

double Dms(double degrees, double minutes, double seconds) {
  return RadOfDeg(degrees + minutes / 60.0 + seconds / 3600.0);
}

std::string ToDms(double angle, int code, int decimals, bool pad = false, bool zeroFill = false) {
  std::string text = "untouched";
  RadToDms(angle, text, static_cast<std::int16_t>(code), static_cast<std::int16_t>(decimals), pad, zeroFill);
  return text;
}

TEST(RadToDms, FiveFormatCodes) {
  const double angle = Dms(38, 53, 23.12345);
  EXPECT_EQ(ToDms(angle, 1, 5), "38.532312345");
  EXPECT_EQ(ToDms(angle, 2, 5), "38 53 23.12345");
  EXPECT_EQ(ToDms(angle, 3, 5), "38-53-23.12345");
  EXPECT_EQ(ToDms(angle, 4, 5), "385323.12345");
  EXPECT_EQ(ToDms(angle, 5, 5), "38\xB0" "53'23.12345\"");
  EXPECT_EQ(ToDms(angle, 0, 5), "untouched");
  EXPECT_EQ(ToDms(angle, 6, 5), "untouched");
}

// Around the rollover threshold of every number of decimals: the text never shows 60 seconds, and
// DmsToRad reads back what was written.
TEST(RadToDms, RollsOverWhatWouldBeWrittenAsSixtySeconds) {
  for (const auto& r : testing::ReadRows("rad_to_dms_rollover.txt", 27)) {
    std::string text = ToDms(Dms(std::stod(r[0]), std::stod(r[1]), std::stod(r[2])), 3, std::stoi(r[3]));
    EXPECT_EQ(text, r[4]) << r[0] << " " << r[1] << " " << r[2] << " with " << r[3];
    double radians = 0;
    std::string error;
    DmsToRad(text, radians, error);
    EXPECT_EQ(error, "") << r[4];
  }
  // The two angles that were written with 60 seconds.
  EXPECT_EQ(ToDms(0.18063915349451318, 2, 0), "10 21 00");
  EXPECT_EQ(ToDms(0.18064155331705636, 2, 2), "10 21 00.00");
}

// Places beyond the single's seven digits are zeros, however many are asked for.
TEST(RadToDms, ThousandsOfDecimals) {
  EXPECT_EQ(ToDms(0.7, 2, 32767), "40 06 25.36437" + std::string(32767 - 5, '0'));
}

TEST(RadToDms, SignPadAndZeroFill) {
  EXPECT_EQ(ToDms(-Dms(5, 0, 0), 2, 1, true), "-  5 00 00.0");  // the sign stands before the blanks
  EXPECT_EQ(ToDms(-Dms(5, 0, 0), 2, 1, false, true), "-005 00 00.0");
  EXPECT_EQ(ToDms(-Dms(5, 0, 0), 2, 1, true, true), "-005 00 00.0");  // zero-fill beats pad
  EXPECT_EQ(ToDms(-Dms(5, 0, 0), 2, 1), "-5 00 00.0");
  EXPECT_EQ(ToDms(Dms(77, 2, 15), 2, 1, true), " 77 02 15.0");
  EXPECT_EQ(ToDms(Dms(123, 4, 5), 3, 0, true), "123-04-05");
  // The sign is decided before the rollover: a tiny negative angle keeps it.
  EXPECT_EQ(ToDms(-Dms(0, 0, 0.001), 2, 2), "-0 00 00.00");
  EXPECT_EQ(ToDms(-Dms(0, 0, 59.999), 4, 2), "-00100.00");
}

TEST(RadToDms, SecondsCarryNoMoreThanSinglePrecision) {
  // 23.1234567 as a single is 23.12346 to its seven significant digits.
  EXPECT_EQ(ToDms(Dms(38, 53, 23.1234567), 2, 7), "38 53 23.1234600");
}

TEST(DmsToRad, ReadsEveryFormAndRefusesWhatIsNoAngle) {
  for (const auto& r : testing::ReadRows("dms_to_rad_cases.txt", 27, '|')) {
    std::string text = r[0];
    double radians = -1;
    std::string error = "stale";
    DmsToRad(text, radians, error);
    EXPECT_EQ(text, r[1]) << r[0];
    EXPECT_EQ(error, r[2]) << r[0];
    EXPECT_NEAR(radians, RadOfDeg(std::stod(r[3])), 1e-14) << r[0];
  }
}

TEST(IsPackedAngle, Plausibility) {
  struct Case { const char* text; double maxDegrees; bool expected; };
  const Case cases[] = {
      {"0385323.1", 360, true},
      {"385323.1", 90, true},
      {"915323.1", 90, false},   // degrees over the limit
      {"0386023.1", 360, false}, // minutes 60
      {"0385360.1", 360, false}, // seconds 60
      {"38 5323", 360, false},   // a blank is below "."
      {"-385323", 360, false},
      {"38/5323", 360, false},
      {"A385323", 360, false},   // the first character above "9"
      {"38A5323.1", 360, true},  // a letter further on passes: only position 1 is held to "9"
      {"3853", 360, true},       // no point: no degrees, minutes 38, seconds 53
      {"5930", 360, true},
  };
  for (const auto& c : cases) EXPECT_EQ(IsPackedAngle(c.text, c.maxDegrees), c.expected) << c.text;
}

TEST(FormatPadded, RightJustifiesToThePatternLength) {
  EXPECT_EQ(FormatPadded(5.0, "##0"), "  5");
  EXPECT_EQ(FormatPadded(1234.5678, "#,##0.00"), "1,234.57");
  EXPECT_EQ(FormatPadded(12.5, "#0.000"), "12.500");
  EXPECT_EQ(FormatPadded(3.0, "#0.000"), " 3.000");
  EXPECT_EQ(FormatPadded(123456.0, "##0"), "123456");  // longer than the pattern: as it is
  EXPECT_EQ(FormatPadded("18", "#0"), "18");
  EXPECT_EQ(FormatPadded("01", "#0"), " 1");
  EXPECT_EQ(FormatPadded("1", "00"), "01");
  EXPECT_EQ(FormatPadded("   ", "#0"), "");
  EXPECT_EQ(FormatPadded("", "#0"), "");
}

}  // namespace
}  // namespace benchlog
