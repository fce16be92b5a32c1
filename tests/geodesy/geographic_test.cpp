#include <gtest/gtest.h>

#include <cmath>

#include "fakes/fakes.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/geographic.hpp"
#include "geodesy_test_support.hpp"

namespace benchlog {
namespace {

using testing::GeodesyTest;
using testing::Grs80;
using testing::ReadRows;
using testing::ScriptedUi;
using testing::Worst;

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

TEST_F(GeodesyTest, InverseOfOnePointKeepsTheCallersAzimuths) {
  ScriptedUi ui;
  double forward = 123, back = 456, distance = -1;
  GeographicInverse(ellipsoid, RadOfDeg(38.9), RadOfDeg(77.0), RadOfDeg(38.9), RadOfDeg(77.0), forward, back, distance,
                    ui);
  EXPECT_EQ(distance, 0.0);
  EXPECT_EQ(forward, 123);
  EXPECT_EQ(back, 456);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(GeodesyTest, InverseAzimuthsOfTheCardinalDirections) {
  ScriptedUi ui;
  const double lat = RadOfDeg(39.0), lon = RadOfDeg(77.0), step = RadOfDeg(0.01);
  double forward = -1, back = -1, distance = -1;
  GeographicInverse(ellipsoid, lat, lon, lat - step, lon, forward, back, distance, ui);  // due south
  EXPECT_EQ(forward, kPi);
  EXPECT_EQ(back, 0.0);
  GeographicInverse(ellipsoid, lat, lon, lat + step, lon, forward, back, distance, ui);  // due north
  EXPECT_EQ(forward, 0.0);
  EXPECT_EQ(back, kPi);
}

TEST_F(GeodesyTest, ForwardLeavesTheBackAzimuthAlone) {
  ScriptedUi ui;
  double lat2 = 0, lon2 = 0, back = 7.0;
  GeographicForward(ellipsoid, RadOfDeg(38.9), RadOfDeg(77.0), lat2, lon2, RadOfDeg(30.0), back, 500.0, ui);
  EXPECT_EQ(back, 7.0);
}

TEST_F(GeodesyTest, ForwardFailureShowsItsMessageAndKeepsTheOutputs) {
  ScriptedUi ui;
  double lat2 = 11, lon2 = 22, back = 33;
  GeographicForward(ellipsoid, RadOfDeg(38.9), RadOfDeg(77.0), lat2, lon2, 0.5, back, 1e200, ui);  // s cubed overflows
  ASSERT_EQ(ui.messages.size(), 1u);
  EXPECT_EQ(ui.messages[0].text, "Overflow");
  EXPECT_EQ(ui.messages[0].title, "Geographic Forward");
  EXPECT_EQ(ui.messages[0].buttons, MsgButtons::Ok);
  EXPECT_EQ(lat2, 11);
  EXPECT_EQ(lon2, 22);
}

TEST_F(GeodesyTest, InverseFailureShowsItsMessageAndKeepsTheOutputs) {
  ellipsoid = {6378137.0, 2.0, 0.0};  // 1 - e2 sin^2 goes negative
  ScriptedUi ui;
  double forward = 1, back = 2, distance = 3;
  GeographicInverse(ellipsoid, RadOfDeg(80), RadOfDeg(77), RadOfDeg(80.1), RadOfDeg(77), forward, back, distance, ui);
  ASSERT_EQ(ui.messages.size(), 1u);
  EXPECT_EQ(ui.messages[0].text, "Invalid procedure call or argument");
  EXPECT_EQ(ui.messages[0].title, "Geographic Inverse");
  EXPECT_EQ(forward, 1);
  EXPECT_EQ(back, 2);
  EXPECT_EQ(distance, 3);
}

TEST_F(GeodesyTest, GeodeticToCartesian) {
  double x = 0, y = 0, z = 0;
  GeodeticToCartesian(ellipsoid, 0, 0, 0, x, y, z);
  EXPECT_DOUBLE_EQ(x, 6378137.0);
  EXPECT_EQ(y, 0.0);
  EXPECT_EQ(z, 0.0);
  GeodeticToCartesian(ellipsoid, 0, kHalfPi, 10.0, x, y, z);  // 90 degrees west: Y positive
  EXPECT_NEAR(x, 0.0, 1e-6);
  EXPECT_DOUBLE_EQ(y, 6378147.0);
  GeodeticToCartesian(ellipsoid, kHalfPi, 0, 0, x, y, z);  // the pole: the semi-minor axis of GRS 80
  EXPECT_NEAR(z, 6356752.31414, 1e-5);
}

// Against GeographicLib's GeodSolve on GRS 80: lines from 1 m to 10 km all over the globe.
TEST_F(GeodesyTest, AccuracyAgainstGeodSolve) {
  ScriptedUi ui;
  Worst inverseDistance, inverseAzimuth, forwardShort, forwardLongTo60, beyondTangentBound;
  int unwritten = 0;
  for (const auto& r : ReadRows("geodesic_vectors.txt", 260)) {
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
