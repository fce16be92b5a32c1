// A mark's record and its flags, the export's small helpers, the listing lines the golden
// listings do not show, and the working values of a mark: position texts, the projection by the
// zone's kind, the coordinate texts and their patterns, the combined factors and UTM (the picture
// flags show in the golden listings). The plane and UTM figures are those printed on the sample's
// data sheets (support/samples/sample.dat).
#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <string>
#include <tuple>

#include "common/files.hpp"
#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/runtime_failure.hpp"
#include "common/test_support.hpp"
#include "common/text.hpp"
#include "export/export_names.hpp"
#include "export/export_test_support.hpp"
#include "export/listing_file.hpp"
#include "export/listing_lines.hpp"
#include "export/mark_values.hpp"
#include "fakes/temp_folder.hpp"
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

// The rows of tests/data/export/sheet_values.txt. The sheets' elevation factors take a mean
// radius a little different from the Euler radius in the azimuth of 45 degrees, which moves the
// eighth decimal; the factor is therefore checked to the sheets within 5e-8. That still tells the heights apart:
// the export must take the ellipsoid height, or, when the sheet has none (FY3210), the
// orthometric plus the geoid height, and 30 m of height move the factor by some 5e-6.
TEST_F(MarkValuesTest, AgreeWithTheDataSheets) {
  ExportSetup setup = Grs80Setup();
  setup.zoneLine = ZoneLine("NC   ");
  setup.utmAsked = true;
  setup.utmZoneText = "17";
  for (const auto& c : ReadRows("export/sheet_values.txt", 5, '|')) {
    const MarkRecord record = Mark(c[0]);
    MarkValues values;
    values.horizontal = HasHorizontalControl(record);
    ComputePlaneValues(setup, lambert, record, values);
    ComputeUtmValues(setup, record, values);
    std::string convergence;
    RadToDms(values.SpcConvergence, convergence, kDmsBlank, 1, false, false);
    EXPECT_EQ(Format(values.SpcNorth, "#,###,##0.000"), c[1]) << c[0];
    EXPECT_EQ(Format(values.SpcEast, "#,###,##0.000"), c[2]) << c[0];
    EXPECT_EQ(Format(values.SpcScale, "0.00000000"), c[3]) << c[0];
    EXPECT_EQ(convergence, c[4]) << c[0];
    EXPECT_NEAR(Val(values.SpcCgfText), Val(c[5]), 5e-8) << c[0];
    EXPECT_EQ(values.UtmNorthText, c[6]) << c[0];
    EXPECT_EQ(values.UtmEastText, c[7]) << c[0];
    EXPECT_EQ(values.UtmScaleText, c[8]) << c[0];
    EXPECT_EQ(values.UtmConvText, c[9]) << c[0];
    EXPECT_NEAR(Val(values.UtmCgfText), Val(c[10]), 5e-8) << c[0];
  }
}

TEST_F(MarkValuesTest, PositionTextsAndDegrees) {
  for (const auto& c : ReadRows("export/position_texts.txt", 3, '|')) {
    MarkRecord record;
    record.Latitude = c[0];
    record.LatHemi = c[1];
    record.Longitude = c[2];
    record.LonHemi = c[3];
    record.OrthoHeight = "171.204";
    MarkValues values;
    ComputePlaneValues(ExportSetup{}, lambert, record, values);
    EXPECT_EQ(values.LatText, c[4]);
    EXPECT_EQ(values.LonText, c[5]);
    EXPECT_NEAR(values.LatDeg, std::stod(c[6]), 1e-9) << c[0];
    EXPECT_NEAR(values.LonDeg, std::stod(c[7]), 1e-9) << c[2];
    EXPECT_GE(values.LatRadians, 0) << "the radians keep no sign for the hemisphere";
    EXPECT_EQ(values.Elevation, 171.204f);
  }
}

// With no projection (a zone of no known kind) the north and east stand as the mark before left
// them, so each pattern of tests/data/export/coordinate_texts.txt can be tried on a chosen value.
TEST_F(MarkValuesTest, CoordinateTextPatterns) {
  for (const auto& c : ReadRows("export/coordinate_texts.txt", 9, '|')) {
    MarkRecord record;
    record.PosSource = c[0];
    MarkValues values;
    values.SpcNorth = std::stod(c[2]);
    values.SpcEast = std::stod(c[3]);
    ExportSetup setup = Grs80Setup();
    setup.zoneLine = "";
    setup.coordinateFactor = c[1] == "feet" ? 3937.0 / 1200.0 : std::stod(c[1]);
    if (c[4] == "-") {
      EXPECT_EQ(FailureOf([&] { ComputePlaneValues(setup, lambert, record, values); }), kInvalidProcedureCall) << c[2];
      continue;
    }
    ComputePlaneValues(setup, lambert, record, values);
    EXPECT_EQ(values.NorthText, c[4]) << c[2];
    EXPECT_EQ(values.EastText, c[5]) << c[3];
  }
}

// A zone whose kind is none of "LC", "TM", "OM" projects nothing: north and east stay as they were.
TEST_F(MarkValuesTest, EachZoneKindHasItsProjection) {
  for (const auto& [zone, latitude, longitude, kind] :
       {std::tuple{"NC   ", "360342.56888", "0790718.55999", ""}, std::tuple{"DE   ", "390930.00000", "0753115.00000", ""},
        std::tuple{"AK 1 ", "572000.00000", "1343000.00000", ""}, std::tuple{"NC   ", "360342.56888", "0790718.55999", "ZZ"}}) {
    MarkRecord record;
    record.Latitude = latitude;
    record.Longitude = longitude;
    MarkValues values;
    values.SpcNorth = values.SpcEast = values.SpcScale = -1;
    ExportSetup setup = Grs80Setup();
    setup.zoneLine = ZoneLine(zone);
    if (*kind) setup.zoneLine.replace(224, 2, kind);
    ComputePlaneValues(setup, lambert, record, values);
    EXPECT_EQ(values.SpcNorth == -1, *kind != 0) << zone << kind;
    EXPECT_EQ(values.SpcEast == -1, *kind != 0) << zone << kind;
    EXPECT_NEAR(values.SpcScale, *kind ? -1 : 1, 0.001) << zone;
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

std::string Bool(bool value) { return value ? "1" : "0"; }

// A 4-wide field holding `value`, cleared when `clear` is "1".
FixedText<4> Stored(const std::string& value, const std::string& clear) {
  FixedText<4> field;
  field = value;
  if (clear == "1") field.Clear();
  return field;
}

TEST(ExportHelpers, GiveTheResultsOfTheCaseTable) {
  using Args = testing::CallArgs;
  const testing::CallTable calls = {
      {"FixedText", {2, [](const Args& a) {
         const FixedText<4> field = Stored(a[0], a[1]);
         return field.Str() + "|" + std::string(field.Trimmed()) + "|" + Bool(field.IsBlank());
       }}},
      {"FixedTextEquals", {3, [](const Args& a) { return Bool(Stored(a[0], a[1]) == a[2]); }}},
      {"ElevationInFeet", {1, [](const Args& a) {
         char text[32];
         std::snprintf(text, sizeof text, "%.9g", static_cast<double>(ElevationInFeet(std::stof(a[0]))));
         return std::string(text);
       }}},
      {"FieldText", {1, [](const Args& a) {
         MarkRecord record;
         record.Latitude = "360342.56888";
         record.Net = "ABTHPS";
         const auto text = FieldText(record, a[0]);
         return text ? std::string(*text) : "no field";
       }}},
      {"Control", {3, [](const Args& a) {
         MarkRecord record;
         record.HorizOrder = a[0];
         record.HorizType = a[1];
         record.VertOrder = a[2];
         return Bool(HasHorizontalControl(record)) + "|" + Bool(HasVerticalControl(record));
       }}},
      {"ExportNames", {1, [](const Args& a) {
         const ExportNames n = ExportNamesOf(a[0]);
         return Join({n.stem, n.hcl, n.vcl, n.gpkg, n.sa6, n.msf, n.err, n.gwp, n.des}, "|");
       }}},
  };
  testing::CheckCalls("export/cases.txt", 35, calls);
}

// Every field is named once, and the widths add up to the record's size, so no field is missing
// from the list of names and none is laid out wider than its width.
TEST(MarkRecord, EveryFieldIsNamedOnceWithItsWidth) {
  MarkRecord record;
  std::set<std::string> names;
  std::size_t total = 0;
  VisitFields(record, [&](std::string_view name, const auto& field) {
    EXPECT_TRUE(names.insert(std::string(name)).second) << name;
    total += field.View().size();
  });
  EXPECT_EQ(sizeof(MarkRecord), total);
}

TEST(MarkRecord, ClearBlanksEveryField) {
  MarkRecord record;
  VisitFields(record, [](std::string_view, auto& field) { field = std::string(7000, 'Q'); });
  ClearMarkRecord(record);
  VisitFields(record, [](std::string_view name, const auto& field) { EXPECT_TRUE(field.IsBlank()) << name; });
}

// What the golden listings do not show: a vertical line without elevation or plane coordinates,
// and the sort of lines in small letters and broken-off pieces.
MarkRecord Hillsboro() {
  MarkRecord r;
  r.Designation = "HILLSBORO";
  r.Pid = "FY3210";
  r.VertDatum = "88";
  r.VertOrder = "2";
  r.VertClass = "0";
  r.Stability = "A";
  r.SatSuitable = "Y";
  r.FirstDate = "19330612";
  r.LastDate = "2004";
  r.Condition = "N";
  return r;
}

TEST(ListingLines, VerticalLineWithoutElevationOrCoordinates) {
  MarkValues values;
  values.LatText = "36 03 42.56888";
  values.LonText = "079 07 18.55999";
  values.SpcNorth = 256467.2494;
  values.SpcEast = 598626.1651;
  values.PhotoFlag = "Y";
  values.SketchFlag = " ";
  const std::string head = "HILLSBORO                      FY3210  88        36 03 42.56  079 07 18.55 2 0  ";
  const std::string state = "A Y 1933 2004N Y  \r\n";  // from column 119
  // An elevation of 0 is left out, the coordinates stay.
  EXPECT_EQ(VerticalLine(Hillsboro(), "FY3210", values, 1.0, 1.0),
            head + "256467   598626   " + std::string(20, ' ') + state);
  // No plane coordinates: no elevation either.
  values.SpcNorth = 0;
  values.Elevation = 262.5f;
  EXPECT_EQ(VerticalLine(Hillsboro(), "FY3210", values, 1.0, 1.0), head + std::string(38, ' ') + state);
}

// Sorted by whole lines and character codes: the empty element, a line broken off with leading
// blanks, capitals before small letters; then name, then PID.
TEST(ListingFile, ClosingSortsAndHeads) {
  TempFolder folder;
  const std::string path = folder.File("list.hcl");
  {
    ListingFile file(path);
    file.Write("b 1 AB0002\r\nB 1 AB0003\r\nA 2 AB0001\r\n   tail\r\nA 1 AB0009\r\n");
    file.Finish("HEAD\r\n");
  }
  EXPECT_EQ(ReadWholeFile(path), "HEAD\r\n\r\n   tail\r\nA 1 AB0009\r\nA 2 AB0001\r\nB 1 AB0003\r\nb 1 AB0002\r\n");
}

}  // namespace
}  // namespace benchlog::testing
