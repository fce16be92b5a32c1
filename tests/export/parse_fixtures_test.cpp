// Whole Descriptions of tests/data/export/descriptions.dat (written by make_fixtures.py) and the
// record each must give, worked out from the extraction rules field by field. Fields not listed
// must stay blank.
#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <string>

#include "common/text.hpp"
#include "export/export_test_support.hpp"

namespace benchlog {
namespace {

using testing::ExportFixtureLines;
using testing::Field;
using testing::Parse;

using Expected = std::map<std::string, std::string>;

// The index of the line after the header line that opens the Description of `pid`.
std::size_t StartOf(const std::vector<std::string>& lines, const std::string& pid) {
  for (std::size_t i = 0; i + 1 < lines.size(); ++i)
    if (Left(lines[i], 1) == "1" && Mid(lines[i + 1], 2, 6) == pid) return i + 1;
  ADD_FAILURE() << "no Description " << pid;
  return 0;
}

void ExpectRecord(const std::string& pid, const Expected& expected) {
  const auto lines = ExportFixtureLines("descriptions.dat");
  const auto result = Parse(pid, lines, StartOf(lines, pid));
  EXPECT_EQ(result.ErrMsg, "") << pid;
  VisitFields(result.record, [&](std::string_view name, const auto&) {
    const auto found = expected.find(std::string(name));
    const std::string want = found == expected.end() ? "" : found->second;
    EXPECT_EQ(Field(result.record, std::string(name)), want) << pid << " " << name;
  });
  for (const auto& [name, value] : expected) EXPECT_TRUE(FieldText(result.record, name)) << name;
}

const std::string kCrLf2 = "\r\n\r\n";

// Adjusted station: six class lines (the sixth letter does not fit), the last of two height
// lines, the "??" day of the ellipsoid height, NETWORK after HORZ ORDER, a wrapped note on the
// horizontal adjustment, seven state plane lines with six labels, the primary azimuth mark, a
// box score ending in an approximate distance, and notes that each match their history row.
TEST(ParseFixtures, AdjustedStationWithEveryKindOfLine) {
  ExpectRecord(
      "AA1001",
      {{"RecordKind", "R"},
       {"Net", "ABTHP"},
       {"Designation", "HILLTOP TRIANGULATION STATION NUMBER TWO"},
       {"Pid", "AA1001"},
       {"State", "NC"},
       {"County", "ORANGE"},
       {"Quad", "HILLSBOROUGH"},
       {"QuadDate", "2019"},
       {"HorizDatum", "83"},
       {"DatumTag", "1986"},
       {"Latitude", "360342.56888"},
       {"LatHemi", "N"},
       {"Longitude", "0790718.55999"},
       {"LonHemi", "W"},
       {"PosSource", "A"},
       {"VertDatum", "88"},
       {"OrthoHeight", "262.012"},
       {"HeightSource", "A"},
       {"HeightMethod", "N"},
       {"Epoch", "2010.0000"},
       {"Laplace", " -3.40"},
       {"EllipHeight", "-30.12"},
       {"EllipDate", "20020601"},
       {"EllipSource", "A"},
       {"EllipMethod", "G"},
       {"GeoidModel", "12"},
       {"GeoidHeight", "-30.482"},
       {"GeoidSource", "A"},
       {"DynamicHeight", " 262.009"},
       {"ModeledGravity", "979779.6"},
       {"LocalN", "1.25"},
       {"LocalE", "1.40"},
       {"LocalH", "2.10"},
       {"HorizOrder", "0"},
       {"NetworkN", "0.80"},
       {"NetworkE", "0.75"},
       {"NetworkH", "1.90"},
       {"VertOrder", "1"},
       {"VertClass", "2"},
       {"EllipOrder", "4"},
       {"EllipClass", "1"},
       {"HorizType", "G"},
       {"AdjAgency", "OCO"},
       {"AdjDate", "19970201"},
       {"NoHorizCheck", "N"},
       {"SpecialStatus", "Y"},
       // Column 29 of the realistic sentence is inside "height": no agency of the table.
       {"VertAdjDate", "19910601"},
       {"NoVertCheck", "N"},
       {"DeflectionModel", "18"},
       {"EllipDatum", "83"},
       {"SpcZone1", "NC"},
       {"SpcZone2", "VA S"},
       {"SpcZone3", "SC"},
       {"SpcZone4", "TN"},
       {"SpcZone5", "GA E"},
       {"BoxScore", "AA1009N     18.KM1604006.7CHAPEL HILL UNIV OF NC TANK"},
       {"Superseded", "Y"},
       {"MarkerCode", "DB"},
       {"Category", "D"},
       {"SettingCode", "07"},
       {"Stamping", "HILLTOP 1933"},
       {"ProjectionKind", "P"},
       {"ProjectionAmount", "23"},
       {"ProjectionUnit", "CM"},
       {"Logo", "CCO"},
       {"Magnetic", "N"},
       {"Stability", "C"},
       {"SatSuitable", "Y"},
       {"SatDate", "20050312"},
       {"FirstDate", "1933"},
       {"FirstAgency", "CCO"},
       {"LastDate", "20040612"},
       {"LastAgency", "USPSQD"},
       {"Condition", "P"},  // "DESTROYED" leaves the condition of the row before
       {"LastReporter", "ABC"},
       {"HistoryTable",
        "1933    MCCO   RDH"
        "1954    GCCO   ELJ"
        "1961    GNCGS  WCF"
        "1985    PUSPSQDWKB"
        "20040612DUSPSQDABC"},
       {"DescriptiveText",
        "DESCRIBED BY COASTAL CONTROL OFFICE 1933 (RDH)\r\n"
        "ABOUT 1-1/2 MILES SOUTHWEST OF HILLSBORO. " +
            kCrLf2 + "ON THE HIGHEST PART. " + kCrLf2 +
            "RECOVERY NOTE BY COASTAL CONTROL OFFICE 1954 (ELJ)\r\n"
            "RECOVERED IN GOOD CONDITION. "
            "RECOVERY NOTE BY NORTH CAROLINA GEODETIC SURVEY 1961 (WCF)\r\n"
            "RECOVERY NOTE BY US POWER SQUADRON 1985 (WKB)\r\n"
            "RECOVERY NOTE BY US POWER SQUADRON 2004 (ABC)\r\n"
            "DESTROYED."}});
}

// CORS: long datum tag layout, a local tidal height after NAVD 88, a Laplace line without its
// hyphen, NETWORK before the CORS order, VLBI, the agency at column 29 of a vertical note with a
// date that is none, the antenna reference point, a special setting, a description note whose
// agency does not match its history row.
TEST(ParseFixtures, CorsWithLongDatumTag) {
  ExpectRecord("AA2002", {{"RecordKind", "R"},
                          {"Net", "C"},
                          {"Designation", "CHAPEL HILL CORS ARP"},
                          {"CorsId", "NCCH"},
                          {"Pid", "AA2002"},
                          {"State", "NC"},
                          {"County", "ORANGE COUNTY WITH A"},
                          {"Quad", "CHAPEL HILL"},
                          {"HorizDatum", "83"},
                          {"DatumTag", "NSRS20"},
                          {"Latitude", "355431.27711"},
                          {"LatHemi", "N"},
                          {"Longitude", "0790305.35271"},
                          {"LonHemi", "W"},
                          {"PosSource", "A"},
                          {"VertDatum", "LT"},
                          {"OrthoHeight", "3.456"},
                          {"HeightSource", "S"},
                          {"Epoch", "2002.00"},
                          {"EllipHeight", "100.578"},
                          {"EllipDate", "20080415"},
                          {"EllipSource", "A"},
                          {"EllipMethod", "G"},
                          {"GeoidModel", "EG96"},
                          {"GeoidHeight", "-33.54"},
                          {"GeoidSource", "A"},
                          {"HorizOrder", "A"},
                          {"NetworkN", "0.31"},
                          {"NetworkE", "0.27"},
                          {"NetworkH", "0.65"},
                          {"VertOrder", "2"},
                          {"VertClass", "0"},
                          {"EllipOrder", "1"},
                          {"EllipClass", "2"},
                          {"HorizType", "V"},
                          {"AdjAgency", "USGS"},
                          {"AdjDate", "20020304"},
                          {"VertAdjAgency", "OCO"},
                          {"VertAdjDate", "18991230"},
                          {"BoxScore", "AA2004R   9.870 M2101112.3NCCH RM 1"},
                          {"MarkerCode", "Z"},
                          {"SettingCode", "36"},
                          {"SettingText", "STEEL MAST ON ROOF OF THE PHYSIC"},
                          {"ProjectionKind", "R"},
                          {"ProjectionAmount", "2"},
                          {"ProjectionUnit", "FT"},
                          {"SatSuitable", "N"},
                          {"SatDate", "20020604"},
                          {"FirstDate", "20010315"},
                          {"FirstAgency", "OCO"},
                          {"LastDate", "2012"},
                          {"LastAgency", "NCGS"},
                          {"Condition", "N"},
                          {"LastReporter", "JDS"},
                          {"HistoryTable",
                           "20010315FOCO      "
                           "2008    GOCO   JDS"
                           "2012    MNCGS"},
                          {"DescriptiveText",
                           "DESCRIBED BY US GEOLOGICAL SURVEY 2001 (XYZ)\r\n"
                           "RECOVERY NOTE BY ORBIS CONTROL OFFICE 2008 (JDS)\r\n"}});
}

// The text of the hand-held mark: 70 lines of 72 characters each add 73 to the text, 5110 in
// all, of which the first 210 (two lines and 64 characters of the third) are cut.
std::string LongTextTail() {
  std::string text = "XXXXXXXZ ";
  for (int n = 4; n <= 70; ++n) {
    char number[8];
    std::snprintf(number, sizeof number, "%03d", n);
    text += "LINE " + std::string(number) + " " + std::string(62, 'X') + "Z ";
  }
  return text;
}

// Hand-held position with "." and five blanks as seconds, an order line after it, a DS marker
// that cannot change the type, a satellite date of neither form, and 4,900 characters of text.
TEST(ParseFixtures, HandHeldMarkWithLongText) {
  const std::string tail = LongTextTail();
  ASSERT_EQ(tail.size(), 4900u);
  ExpectRecord("AA3003", {{"RecordKind", "R"},
                          {"Designation", "HAND HELD MARK"},
                          {"Pid", "AA3003"},
                          {"HorizDatum", "83"},
                          {"DatumTag", "2011"},
                          {"Latitude", "360342"},
                          {"LatHemi", "N"},
                          {"Longitude", "0790718"},
                          {"LonHemi", "W"},
                          {"PosSource", "O"},
                          {"HorizOrder", "2"},
                          {"HorizType", "X"},
                          {"VertDatum", "AS"},
                          {"OrthoHeight", "12.5"},
                          {"HeightSource", "P"},
                          {"HeightMethod", "N"},
                          {"MarkerCode", "DS"},
                          {"Category", "D"},
                          {"SatDate", "18991230"},
                          {"LastDate", "1999"},
                          {"LastAgency", "OCO"},
                          {"Condition", "O"},
                          {"HistoryTable", "1990    MOCO      1999    OOCO"},
                          {"DescriptiveText", RTrim(tail)}});
}

// A position without datum tag: the "(" of "(N)" still makes the tag the text at column 17,
// here blanks and the hyphen. Scaled, so the DE marker gives the type.
TEST(ParseFixtures, ScaledPositionAndTraverseDisk) {
  ExpectRecord("AA4004", {{"RecordKind", "R"},
                          {"Pid", "AA4004"},
                          {"HorizDatum", "83"},
                          {"DatumTag", "-"},
                          {"Latitude", "350001.2"},
                          {"LatHemi", "N"},
                          {"Longitude", "0800002.3"},
                          {"LonHemi", "W"},
                          {"PosSource", "S"},
                          {"VertDatum", "PR"},
                          {"OrthoHeight", "7.25"},
                          {"HeightSource", "R"},
                          {"HeightMethod", "N"},
                          {"HorizOrder", "3"},
                          {"VertOrder", "3"},
                          {"VertClass", "?"},
                          {"MarkerCode", "DE"},
                          {"Category", "D"},
                          {"HorizType", "E"},
                          {"ProjectionKind", "R"}});
}

TEST(ParseFixtures, LandmarkFromTheCategoryFile) {
  ExpectRecord("AA5005", {{"RecordKind", "R"},
                          {"Pid", "AA5005"},
                          {"HorizDatum", "83"},
                          {"DatumTag", "1986"},
                          {"Latitude", "351011.12345"},
                          {"LatHemi", "N"},
                          {"Longitude", "0791011.12345"},
                          {"LonHemi", "W"},
                          {"PosSource", "A"},
                          {"VertDatum", "GU"},
                          {"OrthoHeight", "55.55"},
                          {"HeightSource", "S"},
                          {"HeightMethod", "G"},
                          {"HorizOrder", "B"},
                          {"MarkerCode", "57"},
                          {"Category", "L"},
                          {"HorizType", "I"}});
}

TEST(ParseFixtures, SecondHandHeldSourceKeepsItsType) {
  ExpectRecord("AA6006", {{"RecordKind", "R"},
                          {"Pid", "AA6006"},
                          {"HorizDatum", "83"},
                          {"DatumTag", "2011"},
                          {"Latitude", "352021.22222"},
                          {"LatHemi", "N"},
                          {"Longitude", "0792021.22222"},
                          {"LonHemi", "W"},
                          {"PosSource", "O"},
                          {"HorizOrder", "4"},
                          {"HorizType", "W"},
                          {"MarkerCode", "DS"},
                          {"Category", "D"}});
}

TEST(ParseFixtures, DerivedFlags) {
  const auto lines = ExportFixtureLines("descriptions.dat");
  struct Case {
    std::string pid;
    bool horizontal, vertical;
  };
  const Case cases[] = {{"AA1001", true, true},   {"AA2002", true, true},  {"AA3003", false, false},
                        {"AA4004", true, true},   {"AA5005", true, false}, {"AA6006", false, false}};
  for (const auto& c : cases) {
    const auto result = Parse(c.pid, lines, StartOf(lines, c.pid));
    EXPECT_EQ(HasHorizontalControl(result.record), c.horizontal) << c.pid;
    EXPECT_EQ(HasVerticalControl(result.record), c.vertical) << c.pid;
  }
}

TEST(ParseFixtures, MarkMissingFromTheLines) {
  const auto lines = ExportFixtureLines("descriptions.dat");
  const auto result = Parse("ZZ9999", lines);
  EXPECT_EQ(result.ErrMsg, "Data not found!");
  EXPECT_EQ(Field(result.record, "RecordKind"), "R");
  EXPECT_EQ(Field(result.record, "Pid"), "");
}

// Lines before the mark's first line are passed over; the scan ends at the first line of
// another PID after it, so the next Description's lines never reach the record.
TEST(ParseFixtures, ScanPassesOverEarlierLinesAndEndsAtTheNextDescription) {
  const auto lines = ExportFixtureLines("descriptions.dat");
  const auto fromStart = Parse("AA4004", lines, 0);
  EXPECT_EQ(fromStart.ErrMsg, "");
  EXPECT_EQ(Field(fromStart.record, "Pid"), "AA4004");
  EXPECT_EQ(Field(fromStart.record, "HorizOrder"), "3");
  EXPECT_EQ(Field(fromStart.record, "Latitude"), "350001.2");
  const auto past = Parse("AA1001", lines, StartOf(lines, "AA2002"));
  EXPECT_EQ(past.ErrMsg, "Data not found!");
}

}  // namespace
}  // namespace benchlog
