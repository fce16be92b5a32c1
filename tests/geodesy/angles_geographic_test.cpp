#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "common/text.hpp"
#include "fakes/fakes.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/ellipsoid.hpp"
#include "geodesy/format_padded.hpp"
#include "geodesy/geographic.hpp"
#include "geodesy/utm_zone.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

using testing::GeodesyTest;
using testing::Grs80;
using testing::ReadRows;
using testing::Worst;

double Dms(double degrees, double minutes, double seconds) {
  return RadOfDeg(degrees + minutes / 60.0 + seconds / 3600.0);
}

std::string ToDms(double angle, int code, int decimals, bool pad = false, bool zeroFill = false) {
  std::string text = "untouched";
  RadToDms(angle, text, static_cast<std::int16_t>(code), static_cast<std::int16_t>(decimals), pad, zeroFill);
  return text;
}

// Around the rollover threshold of every number of decimals: the text never shows 60 seconds, and
// DmsToRad reads back what was written.
TEST(RadToDms, RollsOverWhatWouldBeWrittenAsSixtySeconds) {
  for (const auto& r : testing::ReadRows("geodesy/rad_to_dms_rollover.txt", 27)) {
    std::string text = ToDms(Dms(std::stod(r[0]), std::stod(r[1]), std::stod(r[2])), 3, std::stoi(r[3]));
    EXPECT_EQ(text, r[4]) << r[0] << " " << r[1] << " " << r[2] << " with " << r[3];
    double radians = 0;
    std::string error;
    DmsToRad(text, radians, error);
    EXPECT_EQ(error, "") << r[4];
  }
}

// Places beyond the single's seven digits are zeros, however many are asked for.
TEST(RadToDms, ThousandsOfDecimals) {
  EXPECT_EQ(ToDms(0.7, 2, 32767), "40 06 25.36437" + std::string(32767 - 5, '0'));
}

TEST(DmsToRad, ReadsEveryFormAndRefusesWhatIsNoAngle) {
  for (const auto& r : testing::ReadRows("geodesy/dms_to_rad_cases.txt", 27, '|')) {
    std::string text = r[0];
    double radians = -1;
    std::string error = "stale";
    DmsToRad(text, radians, error);
    EXPECT_EQ(text, r[1]) << r[0];
    EXPECT_EQ(error, r[2]) << r[0];
    EXPECT_NEAR(radians, RadOfDeg(std::stod(r[3])), 1e-14) << r[0];
  }
}

// "d m s" with an optional "-", or radians.
double Angle(const std::string& text) {
  if (text.find(' ') == std::string::npos) return std::stod(text);
  std::istringstream fields(text);
  double degrees = 0, minutes = 0, seconds = 0;
  fields >> degrees >> minutes >> seconds;
  return (text[0] == '-' ? -1 : 1) * Dms(std::fabs(degrees), minutes, seconds);
}

std::string Digits(double value, int digits) {
  char text[40];
  std::snprintf(text, sizeof text, "%.*g", digits, value);
  return text;
}

// Five decimals, no "-0".
std::string Fixed(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.5f", value + 0.0);
  return text;
}

TEST(AngleHelpers, GiveTheResultsOfTheCaseTable) {
  const testing::CallTable calls = {
      {"RadToDms", {5, [](const testing::CallArgs& a) {
         std::string text = "untouched";
         RadToDms(Angle(a[0]), text, static_cast<std::int16_t>(std::stoi(a[1])), static_cast<std::int16_t>(std::stoi(a[2])),
                  a[3] == "1", a[4] == "1");
         return text;
       }}},
      {"IsPackedAngle", {2, [](const testing::CallArgs& a) { return IsPackedAngle(a[0], std::stod(a[1])) ? "1" : "0"; }}},
      {"FormatPadded", {2, [](const testing::CallArgs& a) { return FormatPadded(std::stod(a[0]), a[1]); }}},
      {"FormatPaddedText", {2, [](const testing::CallArgs& a) { return FormatPadded(a[0], a[1]); }}},
      {"UtmZone", {2, [](const testing::CallArgs& a) {
         std::string line;
         auto zone = static_cast<std::int16_t>(std::stoi(a[1]));
         UtmZoneLine(line, RadOfDeg(std::stod(a[0])), zone);
         return std::to_string(zone) + "|" + Mid(line, 12, 3) + Mid(line, 101, 3);
       }}},
      {"ZoneFootUnit", {1, [](const testing::CallArgs& a) { return ZoneFootUnit(testing::Zone(a[0])); }}},
      {"RadOfDeg", {1, [](const testing::CallArgs& a) { return Digits(RadOfDeg(std::stod(a[0])), 17); }}},
      {"DegOfRad", {1, [](const testing::CallArgs& a) { return Digits(DegOfRad(Angle(a[0])), 17); }}},
      {"GridFeetPerMetre", {1, [](const testing::CallArgs& a) { return Digits(GridFeetPerMetre(a[0]), 15); }}},
      {"UtmZoneLine", {2, [](const testing::CallArgs& a) {
         std::string line;
         auto zone = static_cast<std::int16_t>(std::stoi(a[1]));
         UtmZoneLine(line, RadOfDeg(std::stod(a[0])), zone);
         return line;
       }}},
      {"FindZoneLine", {3, [](const testing::CallArgs& a) {
         std::string line = "stale";
         FindZoneLine(a[0], a[1], line, testing::TestData("geodesy/" + a[2] + "/"));
         return line;
       }}},
      {"IsometricLatitude", {2, [](const testing::CallArgs& a) {
         const Ellipsoid sphere{6371000.0, 0.0, 0.0};
         return Digits(IsometricLatitude(a[0] == "sphere" ? sphere : Grs80(), std::stod(a[1])), 14);
       }}},
      {"CombinedFactor", {3, [](const testing::CallArgs& a) {
         double elevation = -9, combined = -9;
         CombinedFactor(Grs80(), RadOfDeg(std::stod(a[0])), std::stod(a[1]), std::stod(a[2]), elevation, combined);
         return Digits(elevation, 13) + "|" + Digits(combined, 13);
       }}},
      {"GeodeticToCartesian", {3, [](const testing::CallArgs& a) {
         double x = -9, y = -9, z = -9;
         GeodeticToCartesian(Grs80(), RadOfDeg(std::stod(a[0])), RadOfDeg(std::stod(a[1])), std::stod(a[2]), x, y, z);
         return Fixed(x) + "|" + Fixed(y) + "|" + Fixed(z);
       }}},
      {"ArcSin", {1, [](const testing::CallArgs& a) { return Digits(ArcSin(std::stod(a[0])), 15); }}},
      {"AzDist", {2, [](const testing::CallArgs& a) {
         double angle = -9, distance = -9;
         AzDist(std::stod(a[0]), std::stod(a[1]), angle, distance);
         return Digits(angle, 17) + "|" + Digits(distance, 15);
       }}},
  };
  testing::CheckCalls("geodesy/cases.txt", 97, calls);
}

// Ground distance in metres between two positions a few centimetres apart.
double Separation(double lat1, double lon1, double lat2, double lon2) {
  const Ellipsoid e = Grs80();
  const double s = std::sin(lat1);
  const double w = std::sqrt(1 - e.e2 * s * s);
  const double meridian = e.a * (1 - e.e2) / (w * w * w);
  const double primeVertical = e.a / w;
  return std::hypot((lat2 - lat1) * meridian, (lon2 - lon1) * primeVertical * std::cos(lat1));
}

double AngleGap(double a, double b) {
  const double gap = std::fmod(std::fabs(a - b), kTwoPi);
  return std::min(gap, kTwoPi - gap);
}

// One point keeps the caller's azimuths, the forward problem the back azimuth; due south and due
// north give exact azimuths.
TEST_F(GeodesyTest, AzimuthsKeptOrExact) {
  const double lat = RadOfDeg(39.0), lon = RadOfDeg(77.0), step = RadOfDeg(0.01);
  double forward = 123, back = 456, distance = -1;
  GeographicInverse(ellipsoid, lat, lon, lat, lon, forward, back, distance, ui);
  EXPECT_EQ(distance, 0.0);
  EXPECT_EQ(forward, 123);
  EXPECT_EQ(back, 456);
  double lat2 = 0, lon2 = 0;
  GeographicForward(ellipsoid, lat, lon, lat2, lon2, RadOfDeg(30.0), back, 500.0, ui);
  EXPECT_EQ(back, 456);
  GeographicInverse(ellipsoid, lat, lon, lat - step, lon, forward, back, distance, ui);  // due south
  EXPECT_EQ(forward, kPi);
  EXPECT_EQ(back, 0.0);
  GeographicInverse(ellipsoid, lat, lon, lat + step, lon, forward, back, distance, ui);  // due north
  EXPECT_EQ(forward, 0.0);
  EXPECT_EQ(back, kPi);
  EXPECT_TRUE(ui.messages.empty());
}

// A failure shows its message and keeps the outputs: s cubed overflows in the forward problem;
// 1 - e2 sin^2 goes negative in the inverse.
TEST_F(GeodesyTest, FailuresShowTheirMessageAndKeepTheOutputs) {
  double lat2 = 11, lon2 = 22, back = 33, forward = 1, distance = 3;
  GeographicForward(ellipsoid, RadOfDeg(38.9), RadOfDeg(77.0), lat2, lon2, 0.5, back, 1e200, ui);
  ellipsoid = {6378137.0, 2.0, 0.0};
  GeographicInverse(ellipsoid, RadOfDeg(80), RadOfDeg(77), RadOfDeg(80.1), RadOfDeg(77), forward, back, distance, ui);
  ASSERT_EQ(ui.messages.size(), 2u);
  EXPECT_EQ(ui.messages[0].text, "Overflow");
  EXPECT_EQ(ui.messages[0].title, "Geographic Forward");
  EXPECT_EQ(ui.messages[0].buttons, MsgButtons::Ok);
  EXPECT_EQ(ui.messages[1].text, "Invalid procedure call or argument");
  EXPECT_EQ(ui.messages[1].title, "Geographic Inverse");
  EXPECT_EQ(std::vector<double>({lat2, lon2, back, forward, distance}), std::vector<double>({11, 22, 33, 1, 3}));
}

// Against GeographicLib's GeodSolve on GRS 80: lines from 1 m to 10 km all over the globe.
TEST_F(GeodesyTest, AccuracyAgainstGeodSolve) {
  Worst inverseDistance, inverseAzimuth, forwardShort, forwardLongTo60, beyondTangentBound;
  int unwritten = 0;
  for (const auto& r : ReadRows("geodesy/geodesic_vectors.txt", 260)) {
    const double lat1 = RadOfDeg(std::stod(r[0])), lon1 = RadOfDeg(std::stod(r[1]));
    const double azimuth1 = RadOfDeg(std::stod(r[2])), distance = std::stod(r[3]);
    const double lat2 = RadOfDeg(std::stod(r[4])), lon2 = RadOfDeg(std::stod(r[5]));
    const double azimuth2 = RadOfDeg(std::stod(r[6]));
    const std::string where = r[0] + " " + r[1] + " az " + r[2] + " s " + r[3];

    double forward = NAN, back = NAN, s = 0;
    GeographicInverse(ellipsoid, lat1, lon1, lat2, lon2, forward, back, s, ui);
    inverseDistance.Note(std::fabs(s - distance), where);
    // On the equator an east-west chord has no north component at all: the azimuths stay unwritten.
    if (std::isnan(forward) || std::isnan(back)) {
      EXPECT_EQ(lat1, 0.0) << where;
      ++unwritten;
    } else {
      // As the sideways offset at the line's far end, in metres.
      inverseAzimuth.Note(AngleGap(forward, azimuth1) * distance, where);
      inverseAzimuth.Note(AngleGap(back, azimuth2 + kPi) * distance, where);
    }

    double lat = 0, lon = 0, unused = 0;
    GeographicForward(ellipsoid, lat1, lon1, lat, lon, azimuth1, unused, distance, ui);
    const double miss = Separation(lat2, lon2, lat, lon);
    if (distance <= 1000) forwardShort.Note(miss, where);
    if (distance > 1000 && std::fabs(lat1) <= RadOfDeg(60)) forwardLongTo60.Note(miss, where);
    // The tangent taken for the longitude difference d errs by d^3 / 3 along the parallel.
    const double d = std::fabs(lon2 - lon1);
    const double parallelRadius = 6378137.0 * std::cos(lat2);
    beyondTangentBound.Note(miss - 1.2 * d * d * d / 3 * parallelRadius, where);
  }
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(unwritten, 2);
  EXPECT_LT(inverseDistance.value, 1e-4) << inverseDistance.where;
  EXPECT_LT(inverseAzimuth.value, 1e-4) << inverseAzimuth.where;
  EXPECT_LT(forwardShort.value, 1e-3) << forwardShort.where;
  EXPECT_LT(forwardLongTo60.value, 0.05) << forwardLongTo60.where;
  // Beyond 60 degrees the tangent's error alone can pass 5 cm; nothing else may add a millimetre.
  EXPECT_LT(beyondTangentBound.value, 1e-3) << beyondTangentBound.where;
}

}  // namespace
}  // namespace benchlog
