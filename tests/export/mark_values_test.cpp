// The working values of a mark: position texts, the projection by the zone's kind, the coordinate
// texts and their patterns, the combined factors and UTM (the picture flags show in the golden
// listings). The plane and UTM figures are those printed on the sample's data sheets
// (support/samples/sample.dat).
#include <gtest/gtest.h>

#include <cmath>

#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/runtime_failure.hpp"
#include "export/export_test_support.hpp"
#include "export/mark_values.hpp"
#include "fakes/test_paths.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/lambert.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"

namespace benchlog::testing {
namespace {

class MarkValuesTest : public ::testing::Test {
 protected:
  // GRS 80, as the shipped configuration has it.
  static ExportSetup Grs80Setup() {
    ExportSetup setup;
    setup.ellipsoid = {6378137.0, 0.00669438002290, 0.00669438002290 / (1 - 0.00669438002290)};
    return setup;
  }
  LambertZoneConstants lambert;

  static std::string ZoneLine(const std::string& key) {
    std::string line;
    FindZoneLine(key, "", line, SourceSupport());
    return line;
  }
  static MarkRecord Mark(const std::string& pid) {
    ParseResult parsed = Parse(pid, ExportFixtureLines("listings/fixture.dat"));
    EXPECT_EQ(parsed.ErrMsg, "") << pid;
    return parsed.record;
  }
};

struct SheetCase {
  const char* pid;
  const char* north;  // ";SPC NC" metres
  const char* east;
  const char* scale;
  const char* convergence;
  const char* spcCgf;  // "!SPC NC"
  const char* utmNorth;
  const char* utmEast;
  const char* utmScale;
  const char* utmConvergence;
  const char* utmCgf;
};

// The data sheets print the same quantities: SPC north, east, scale and convergence, the UTM zone
// 17 values and the combined factors. The sheets' elevation factors take a mean radius a little
// different from the Euler radius in the azimuth of 45 degrees, which moves the eighth decimal;
// the factor is therefore checked to the sheets within 5e-8. That still tells the heights apart:
// the export must take the ellipsoid height, or, when the sheet has none (FY3210), the
// orthometric plus the geoid height, and 30 m of height move the factor by some 5e-6.
TEST_F(MarkValuesTest, AgreeWithTheDataSheets) {
  const SheetCase cases[] = {
      {"DH7190", "258,933.619", "602,366.364", "0.99997800", "-0 02 46.9", "0.99995594", "3,994,980.736",
       "672,841.562", "0.99996811", "  1 07 51.3", "0.99994604"},
      {"EZ1203", "236,577.464", "605,145.595", "0.99993309", "-0 01 42.5", "0.99991455", "3,972,685.799",
       "676,078.601", "0.99998204", "  1 08 37.0", "0.99996350"},
      {"DL8724", "239,543.437", "605,403.346", "0.99993834", "-0 01 36.6", "0.99991675", "3,975,656.563",
       "676,275.617", "0.99998290", "  1 08 45.7", "0.99996131"},
      {"FY3210", "256,467.249", "598,626.165", "0.99997243", "-0 04 13.1", "0.99993613", "3,992,438.114",
       "669,152.857", "0.99995256", "  1 06 21.1", "0.99991627"},
      {"DH7198", "273,230.900", "617,561.728", "1.00001324", "0 03 03.9", "0.99999233", "4,009,588.032",
       "687,739.317", "1.00003429", "  1 14 03.3", "1.00001338"},
  };
  ExportSetup setup = Grs80Setup();
  setup.zoneLine = ZoneLine("NC   ");
  setup.utmAsked = true;
  setup.utmZoneText = "17";
  for (const SheetCase& c : cases) {
    const MarkRecord record = Mark(c.pid);
    MarkValues values;
    values.horizontal = HasHorizontalControl(record);
    ComputePlaneValues(setup, lambert, record, values);
    ComputeUtmValues(setup, record, values);
    EXPECT_EQ(Format(values.SpcNorth, "#,###,##0.000"), c.north) << c.pid;
    EXPECT_EQ(Format(values.SpcEast, "#,###,##0.000"), c.east) << c.pid;
    EXPECT_EQ(Format(values.SpcScale, "0.00000000"), c.scale) << c.pid;
    std::string convergence;
    RadToDms(values.SpcConvergence, convergence, kDmsBlank, 1, false, false);
    EXPECT_EQ(convergence, c.convergence) << c.pid;
    EXPECT_NEAR(Val(values.SpcCgfText), Val(c.spcCgf), 5e-8) << c.pid;
    EXPECT_EQ(values.UtmNorthText, c.utmNorth) << c.pid;
    EXPECT_EQ(values.UtmEastText, c.utmEast) << c.pid;
    EXPECT_EQ(values.UtmScaleText, c.utmScale) << c.pid;
    EXPECT_EQ(values.UtmConvText, c.utmConvergence) << c.pid;
    EXPECT_NEAR(Val(values.UtmCgfText), Val(c.utmCgf), 5e-8) << c.pid;
  }
}

TEST_F(MarkValuesTest, PositionTextsAndDegrees) {
  struct Case {
    const char *latitude, *latHemi, *longitude, *lonHemi;
    const char *latText, *lonText;
    double latDeg, lonDeg;
  };
  const Case cases[] = {
      {"385323.12345", "N", "0770215.12345", "W", "38 53 23.12345", "077 02 15.12345", 38.889756514,
       -77.037534292},
      {"335200.5    ", "S", "1511230      ", "E", "33 52 00.5", "151 12 30", -33.866805556, 151.208333333},
      // No position: the texts are blanks, trimmed away by the angle reading, and read as 0.
      {"", "", "", "", "", "", 0, 0},
  };
  for (const Case& c : cases) {
    MarkRecord record;
    record.Latitude = c.latitude;
    record.LatHemi = c.latHemi;
    record.Longitude = c.longitude;
    record.LonHemi = c.lonHemi;
    record.OrthoHeight = "171.204";
    MarkValues values;
    ComputePlaneValues(ExportSetup{}, lambert, record, values);
    EXPECT_EQ(values.LatText, c.latText);
    EXPECT_EQ(values.LonText, c.lonText);
    EXPECT_NEAR(values.LatDeg, c.latDeg, 1e-9) << c.latitude;
    EXPECT_NEAR(values.LonDeg, c.lonDeg, 1e-9) << c.longitude;
    EXPECT_GE(values.LatRadians, 0) << "the radians keep no sign for the hemisphere";
    EXPECT_EQ(values.Elevation, 171.204f);
  }
}

// With no projection (a zone of no known kind) the north and east stand as the mark before left
// them, so each pattern can be tried on a chosen value.
TEST_F(MarkValuesTest, CoordinateTextPatterns) {
  struct Case {
    const char* posSource;
    double factor, north, east;
    const char *northText, *eastText;  // nullptr: too wide, the export ends
  };
  const Case cases[] = {
      {"A", 1, 256467.2494, 598626.1651, "256467.249  ", "598626.165  "},
      {"A", 3937.0 / 1200.0, 256467.2494, 598626.1651, "841426.301  ", "1963992.677 "},
      {"A", 1, -1234.5, 0, "-1234.500   ", "0.000       "},
      {"A", 1, 1234567.8905, 12345678.9, "1234567.891 ", "12345678.900"},
      {"A", 1, 13706447.1, 1, nullptr, nullptr},  // "13706447.100 " has 13 characters
      {"S", 1, 256467.5, 598626.4, "256468      ", "598626      "},
      {"O", 1, 13706447.4, 1234567.5, "13706447    ", "1234568     "},
      {"S", 1, 1, 12345678, nullptr, nullptr},  // "12345678     " has 13 characters
      {"S", 1, 123456789, 1, nullptr, nullptr},
  };
  for (const Case& c : cases) {
    MarkRecord record;
    record.PosSource = c.posSource;
    MarkValues values;
    values.SpcNorth = c.north;  // metres
    values.SpcEast = c.east;
    ExportSetup setup = Grs80Setup();
    setup.zoneLine = "";
    setup.coordinateFactor = c.factor;
    if (!c.northText) {
      try {
        ComputePlaneValues(setup, lambert, record, values);
        ADD_FAILURE() << c.north << " " << c.east << " fit";
      } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.number, kInvalidProcedureCall);
      }
      continue;
    }
    ComputePlaneValues(setup, lambert, record, values);
    EXPECT_EQ(values.NorthText, c.northText) << c.north;
    EXPECT_EQ(values.EastText, c.eastText) << c.east;
  }
}

TEST_F(MarkValuesTest, EachZoneKindHasItsProjection) {
  struct Case {
    const char* zone;
    const char* latitude;
    const char* longitude;
  };
  for (const Case c : {Case{"NC   ", "360342.56888", "0790718.55999"}, Case{"DE   ", "390930.00000", "0753115.00000"},
                       Case{"AK 1 ", "572000.00000", "1343000.00000"}}) {
    MarkRecord record;
    record.Latitude = c.latitude;
    record.Longitude = c.longitude;
    MarkValues values;
    values.SpcNorth = values.SpcEast = values.SpcScale = -1;
    ExportSetup setup = Grs80Setup();
    setup.zoneLine = ZoneLine(c.zone);
    ComputePlaneValues(setup, lambert, record, values);
    EXPECT_NE(values.SpcNorth, -1) << c.zone;
    EXPECT_NE(values.SpcEast, -1) << c.zone;
    EXPECT_NEAR(values.SpcScale, 1, 0.001) << c.zone;
  }
}

TEST_F(MarkValuesTest, FactorsAndUtmStayWhenAMarkHasNone) {
  ExportSetup setup = Grs80Setup();
  setup.zoneLine = ZoneLine("NC   ");
  MarkValues values;
  const MarkRecord adjusted = Mark("DH7190");
  ComputePlaneValues(setup, lambert, adjusted, values);
  ComputeUtmValues(setup, adjusted, values);  // not asked for
  const std::string dh7190 = values.SpcCgfText;
  EXPECT_NEAR(Val(dh7190), 0.99995594, 5e-8);
  EXPECT_EQ(values.UtmNorthText, "");
  // A scaled position computes no combined factor: the one before stays.
  ComputePlaneValues(setup, lambert, Mark("FY0871"), values);
  EXPECT_EQ(values.SpcCgfText, dh7190);

  // UTM asked for, but a zone text that reads as 0 computes nothing.
  setup.utmAsked = true;
  for (const char* zone : {"", "00", "0.4", "abc"}) {
    setup.utmZoneText = zone;
    ComputeUtmValues(setup, adjusted, values);
    EXPECT_EQ(values.UtmNorthText, "") << zone;
  }
  // A zone is used as given, even one the mark does not lie in; vertical control gets whole metres.
  setup.utmZoneText = "17.5";  // rounds to the even 18
  values.horizontal = false;
  ComputeUtmValues(setup, Mark("FY0871"), values);
  EXPECT_EQ(values.UtmNorthText.find('.'), std::string::npos) << values.UtmNorthText;
  EXPECT_EQ(values.UtmCgfText, "") << "no adjusted position, no UTM combined factor";
  EXPECT_LT(values.UtmEast, 500000) << "west of zone 18's meridian";
  setup.utmZoneText = "99999";
  EXPECT_THROW(ComputeUtmValues(setup, adjusted, values), RuntimeFailure);
}

}  // namespace
}  // namespace benchlog::testing
