// The rules of single lines, table by table: each case is a short Description built column by
// column and the fields it must give.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "export/export_test_support.hpp"

namespace benchlog {
namespace {

using testing::DataLine;
using testing::Field;
using testing::Parse;
using Lines = std::vector<std::string>;

const std::string P = "AB1234";

std::string PositionLine(const std::string& source) {
  return DataLine(P, {{8, "* NAD 83(1986)"}, {22, "-"}, {25, "36 03 42.56888"}, {39, "(N)"},
                      {46, "079 07 18.55999"}, {61, "(W)"}, {69, source}});
}

TEST(PositionLine, SourceWordDecidesSourceOrderAndType) {
  struct Case {
    std::string word, source, order, type;
  };
  // A NETWORK line before the position has set the order to "0".
  const Case cases[] = {
      {"ADJUSTED", "A", "0", ""},        {"GPS HAND HELD 1", "O", "4", "X"}, {"DGPS", "O", "4", "X"},
      {"HD_HELD1", "O", "4", "X"},       {"GPS HAND HELD 2", "O", "4", "W"}, {"AGPS", "O", "4", "W"},
      {"HD_HELD2", "O", "4", "W"},       {"SCALED", "S", "0", ""},           {"", "S", "0", ""},
      {"GPS HAND HELD", "S", "0", ""},
  };
  for (const auto& c : cases) {
    const auto result = Parse(P, {DataLine(P, {{10, "NETWORK"}}), PositionLine(c.word)});
    EXPECT_EQ(Field(result.record, "PosSource"), c.source) << c.word;
    EXPECT_EQ(Field(result.record, "HorizOrder"), c.order) << c.word;
    EXPECT_EQ(Field(result.record, "HorizType"), c.type) << c.word;
  }
}

TEST(PositionLine, OnlyStarredLinesAreRead) {
  const auto result = Parse(P, {DataLine(P, {{10, "NAD 83(1986)"}, {22, "-"}, {25, "36 03 42.56888"}})});
  EXPECT_EQ(Field(result.record, "Latitude"), "");
  EXPECT_EQ(Field(result.record, "HorizDatum"), "");
}

TEST(PositionLine, CoarseSeconds) {
  struct Case {
    std::string latitude, longitude, storedLatitude, storedLongitude;
  };
  const Case cases[] = {
      {"36 03 42.     ", "079 07 18.     ", "360342      ", "0790718      "},
      {"36 03 42.5    ", "079 07 18.5    ", "360342.5    ", "0790718.5    "},
      {"36 03 42      ", "079 07 18      ", "360342      ", "0790718      "},
      {"36 03 42.00000", "079 07 18.00000", "360342.00000", "0790718.00000"},
  };
  for (const auto& c : cases) {
    const auto result = Parse(P, {DataLine(P, {{8, "* NAD 83(2011)"}, {22, "-"}, {25, c.latitude}, {39, "(N)"},
                                               {46, c.longitude}, {61, "(W)"}})});
    EXPECT_EQ(*FieldText(result.record, "Latitude"), c.storedLatitude) << c.latitude;
    EXPECT_EQ(*FieldText(result.record, "Longitude"), c.storedLongitude) << c.longitude;
  }
}

TEST(HeightLine, SourceWordGivesSourceAndMethod) {
  struct Case {
    std::string word, source, method;
  };
  // The line before gave "A" and "N"; a word not in the table leaves them.
  const Case cases[] = {
      {"ADJUSTED", "A", "N"}, {"ADJ UNCH", "B", "N"}, {"POSTED", "P", "N"},  {"READJUST", "O", "N"},
      {"N HEIGHT", "U", "N"}, {"RESET", "R", "N"},    {"COMPUTED", "O", "N"}, {"LEVELING", "H", "N"},
      {"N LEVEL", "O", "N"},  {"GPS OBS", "S", "G"},  {"VERT ANG", "O", "T"}, {"SCALED", "S", ""},
      {"U HEIGHT", "U", "N"}, {"VERTCON", "V", ""},   {"HISTORIC", "A", "N"}, {"", "A", "N"},
  };
  for (const auto& c : cases) {
    const auto result =
        Parse(P, {DataLine(P, {{8, "* NAVD 88"}, {22, "-"}, {29, "  10.000"}, {69, "ADJUSTED"}}),
                  DataLine(P, {{8, "* NGVD 29"}, {22, "-"}, {29, "   9.876"}, {39, "(meters)"}, {69, c.word}})});
    EXPECT_EQ(Field(result.record, "HeightSource"), c.source) << c.word;
    EXPECT_EQ(Field(result.record, "HeightMethod"), c.method) << c.word;
    EXPECT_EQ(Field(result.record, "VertDatum"), "29") << c.word;
    EXPECT_EQ(Field(result.record, "OrthoHeight"), "9.876") << c.word;
  }
}

TEST(HeightLine, DatumOfEachKey) {
  struct Case {
    std::string key, datum;
  };
  const Case cases[] = {{"* NGVD 29", "29"}, {"* NAVD 88", "88"}, {"* ASVD02 ", "AS"},
                        {"* PRVD02 ", "PR"}, {"* GUVD04 ", "GU"}, {"* LOCAL TIDAL", "LT"}};
  for (const auto& c : cases) {
    const auto result = Parse(P, {DataLine(P, {{8, c.key}, {22, "-"}, {29, "   1.500"}})});
    EXPECT_EQ(Field(result.record, "VertDatum"), c.datum) << c.key;
    EXPECT_EQ(Field(result.record, "OrthoHeight"), "1.500") << c.key;
  }
}

TEST(OrderLines, HorizontalOrderWords) {
  struct Case {
    std::size_t column;
    std::string word, order;
  };
  const Case cases[] = {
      {25, "A", "A"},          {25, "B", "B"},     {25, "FIRST", "1"},          {25, "SECOND", "2"},
      {25, "SPECIAL", "2"},    {25, "THIRD", "3"}, {25, "FOURTH", ""},          {24, "FOURTH", "4"},
      {25, "SPECIAL (CORS)", "A"}, {25, "FIRST  CORS", "A"}, {25, "OTHER", ""},
  };
  for (const auto& c : cases) {
    const auto result = Parse(P, {DataLine(P, {{10, "HORZ ORDER  -"}, {c.column, c.word}})});
    EXPECT_EQ(Field(result.record, "HorizOrder"), c.order) << c.word << " at " << c.column;
  }
}

TEST(OrderLines, VerticalAndEllipsoidOrderAndClass) {
  struct Case {
    std::string line;  // from column 25
    std::string order, vertClass, ellipClass;
  };
  const Case cases[] = {
      {"FIRST     CLASS 0", "1", "0", "0"},  {"FIRST     CLASS I", "1", "1", "1"},
      {"SECOND    CLASS II", "2", "2", "2"}, {"THIRD ?", "3", "?", ""},
      {"THIRD ?   CLASS I", "3", "1", "1"},  {"FOURTH", "4", "", ""},
      {"  POSTED", "", "", ""},
  };
  for (const auto& c : cases) {
    const auto result = Parse(P, {DataLine(P, {{10, "VERT ORDER  -"}, {25, c.line}}),
                                  DataLine(P, {{10, "ELLP ORDER  -"}, {25, c.line}})});
    EXPECT_EQ(Field(result.record, "VertOrder"), c.order) << c.line;
    EXPECT_EQ(Field(result.record, "VertClass"), c.vertClass) << c.line;
    EXPECT_EQ(Field(result.record, "EllipOrder"), c.order) << c.line;
    EXPECT_EQ(Field(result.record, "EllipClass"), c.ellipClass) << c.line;
  }
}

TEST(NetworkLine, SetsOrderZeroAfterTheOrderLine) {
  const auto result = Parse(P, {DataLine(P, {{10, "HORZ ORDER  -"}, {25, "SECOND"}}),
                                DataLine(P, {{10, "NETWORK"}, {59, "1.11"}, {66, "2.22"}, {73, "3.33"}})});
  EXPECT_EQ(Field(result.record, "HorizOrder"), "0");
  EXPECT_EQ(Field(result.record, "NetworkH"), "3.33");
}

TEST(KeyedLines, ValuesNeedTheHyphenInColumn22) {
  struct Case {
    std::string key, value, field;
  };
  const Case cases[] = {{"LAPLACE CORR", "       -1.23", "Laplace"},
                        {"ELLIP HEIGHT", "       -30.1", "EllipHeight"},
                        {"GEOID HEIGHT", "       -30.2", "GeoidHeight"},
                        {"DYNAMIC HT", "        12.345", "DynamicHeight"},
                        {"MODELED GRAV", "     979,000.1", "ModeledGravity"}};
  for (const auto& c : cases) {
    const auto with = Parse(P, {DataLine(P, {{10, c.key}, {22, "-"}, {23, c.value}})});
    const auto without = Parse(P, {DataLine(P, {{10, c.key}, {22, " "}, {23, c.value}})});
    EXPECT_NE(Field(with.record, c.field), "") << c.key;
    EXPECT_EQ(Field(without.record, c.field), "") << c.key;
  }
}

TEST(HistoryLine, ConditionWords) {
  struct Case {
    std::string word, condition, lastDate, firstDate;
  };
  // A "GOOD" row of 1950 comes first.
  const Case cases[] = {
      {"GOOD", "G", "1990", ""},          {"POOR", "P", "1990", ""},
      {"MONUMENTED", "G", "1950", "1990"}, {"FIRST OBSERVED", "G", "1950", "1990"},
      {"MONUMENT", "S", "1990", ""},      {"FIRST SEEN", "S", "1990", ""},
      {"MARK NOT FOUND", "N", "1990", ""}, {"NOT RECOVERED", "N", "1990", ""},
      {"OTHER", "O", "1990", ""},         {"DESTROYED", "G", "1990", ""},
      {"SEE DESCRIPTION", "G", "1990", ""},
  };
  for (const auto& c : cases) {
    const auto result =
        Parse(P, {DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, "Date"}, {33, "Condition"}, {50, "Report By"}}),
                  DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, "1950"}, {33, "GOOD"}, {50, "OCO"}}),
                  DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, "1990"}, {33, c.word}, {50, "NCGS"}})});
    EXPECT_EQ(Field(result.record, "Condition"), c.condition) << c.word;
    EXPECT_EQ(Field(result.record, "LastDate"), c.lastDate) << c.word;
    EXPECT_EQ(Field(result.record, "FirstDate"), c.firstDate) << c.word;
    EXPECT_EQ(Field(result.record, "HistoryTable"), "1950    GOCO      1990    " + c.word.substr(0, 1) + "NCGS")
        << c.word;
  }
}

TEST(HistoryLine, AtMostFiftyRows) {
  Lines lines;
  for (int year = 1901; year <= 1960; ++year)
    lines.push_back(DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, std::to_string(year)}, {33, "GOOD"}, {50, "OCO"}}));
  const auto result = Parse(P, lines);
  const std::string table(*FieldText(result.record, "HistoryTable"));
  EXPECT_EQ(table.substr(49 * 18, 18), "1950    GOCO      ");
  EXPECT_EQ(Field(result.record, "LastDate"), "1960");
}

TEST(BoxScore, KindAndDistanceOfARow) {
  struct Case {
    std::string name;
    std::string distance;  // at column 52
    std::string approx;    // kilometres at column 60 after "APPROX." at 53
    std::string row;
  };
  const std::string az = "0102030.4";
  const Case cases[] = {
      {"HILL RM 3 AZ MARK", "  12.345", "", "AB0001A  12.345 M" + az + "HILL RM 3 AZ MARK"},
      {"HILL RM 1", "  22.140", "", "AB0001R  22.140 M" + az + "HILL RM 1"},
      {"HILL AZ MK", " 412.667", "", "AB0001Z 412.667 M" + az + "HILL AZ MK"},
      {"RM 1 TANK", "   6.280", "", "AB0001N   6.280 M" + az + "RM 1 TANK"},
      {"TOWN TANK", "", "18.0", "AB0001N     18.KM" + az + "TOWN TANK"},
      {"TOWN MAST", "", " 4.3", "AB0001N     4.3KM" + az + "TOWN MAST"},
      {"TOWN STACK", "", "", "AB0001N         M" + az + "TOWN STACK"},
  };
  for (const auto& c : cases) {
    std::string line = DataLine(P, {{8, "| AB0001"}, {17, c.name}, {68, az}, {78, "|"}});
    if (!c.distance.empty()) line.replace(51, c.distance.size(), c.distance);
    if (!c.approx.empty()) line.replace(52, 11, "APPROX." + c.approx);
    const auto result =
        Parse(P, {DataLine(P, {{8, ":UTM  17"}, {22, "-"}, {25, "HILL RM 3 AZ MARK"}, {66, "147 08 29.7"}}), line});
    EXPECT_EQ(Field(result.record, "BoxScore"), c.row) << c.name;
  }
}

TEST(BoxScore, OnlyRowsWithAPidCountAndTheLastStays) {
  const auto result = Parse(P, {DataLine(P, {{8, "| PID"}, {17, "Reference Object"}, {54, "Distance"}}),
                                DataLine(P, {{8, "| AB0002"}, {17, "FIRST"}, {52, "   1.000"}, {68, "1"}}),
                                DataLine(P, {{8, "| AB"}, {17, "NO PID"}, {52, "   2.000"}, {68, "2"}}),
                                DataLine(P, {{8, "|-----------"}}), DataLine(P, {{8, "|"}})});
  // The pieces are joined as they stand: an azimuth cut short by the line's end moves the name.
  EXPECT_EQ(Field(result.record, "BoxScore"), "AB0002N   1.000 M1FIRST");
}

TEST(ProjectionLine, KindAmountAndUnit) {
  struct Case {
    std::string text, kind, amount, unit;
  };
  const Case cases[] = {{"PROJECTING 23 CENTIMETERS", "P", "23", "CM"},
                        {"PROJECTING 4 INCHES", "P", "4", "FT"},
                        {"RECESSED 12 CENTIMETERS", "R", "12", "CM"},
                        {"RECESSED 2 INCHES", "R", "2", "FT"},
                        {"FLUSH", "R", "", ""},
                        {"UNKNOWN", "", "", ""}};
  for (const auto& c : cases) {
    const auto result = Parse(P, {DataLine(P, {{8, "_PROJECTION: "}, {21, c.text}})});
    EXPECT_EQ(Field(result.record, "ProjectionKind"), c.kind) << c.text;
    EXPECT_EQ(Field(result.record, "ProjectionAmount"), c.amount) << c.text;
    EXPECT_EQ(Field(result.record, "ProjectionUnit"), c.unit) << c.text;
  }
}

TEST(SettingLines, SpecialSettingTextOnlyForSpecialCodes) {
  struct Case {
    std::string code, settingCode;
    bool special;
  };
  const Case cases[] = {{"0", "00", true},   {"2", "02", true},   {"4", "04", true},  {"45", "45", true},
                        {"55", "55", true},  {"65", "65", true},  {"30", "30", true}, {"36", "36", true},
                        {"41", "41", true},  {"29", "29", false}, {"42", "42", false}, {"7", "07", false},
                        {"  ", "00", true}};
  for (const auto& c : cases) {
    const auto result = Parse(P, {DataLine(P, {{8, "_SETTING: "}, {18, c.code}, {21, "= TEXT"}}),
                                  DataLine(P, {{8, "_SP_SET: "}, {17, "STEEL ROD IN SLEEVE"}})});
    EXPECT_EQ(Field(result.record, "SettingCode"), c.settingCode) << c.code;
    EXPECT_EQ(Field(result.record, "SettingText"), c.special ? "STEEL ROD IN SLEEVE" : "") << c.code;
  }
}

TEST(SatelliteLines, SuitabilityAndDate) {
  struct Case {
    std::string word, suitable, date, satDate;
  };
  const Case cases[] = {
      {"SUITABLE FOR", "Y", "20050312", "20050312"},     {"NOT SUITABLE FOR", "N", "March 12, 2005", "20050312"},
      {"UNKNOWN", "", "3/12/2005", "20050312"},          {"SUITABLE", "Y", "2005", "18991230"},
      {"SUITABLE", "Y", "20051340", "18991230"},         {"SUITABLE", "Y", "", "18991230"},
  };
  for (const auto& c : cases) {
    const auto result =
        Parse(P, {DataLine(P, {{8, "_SATELLITE: THE SITE LOCATION WAS REPORTED AS"}, {54, c.word}}),
                  DataLine(P, {{8, "+SATELLITE: SATELLITE OBSERVATIONS -"}, {45, c.date}})});
    EXPECT_EQ(Field(result.record, "SatSuitable"), c.suitable) << c.word;
    EXPECT_EQ(Field(result.record, "SatDate"), c.satDate) << c.date;
  }
}

TEST(Phrases, HorizontalAdjustment) {
  struct Case {
    std::string line, next, agency, date;
  };
  const std::string start = ".The horizontal coordinates were established by GPS and adjusted by the ";
  const Case cases[] = {
      {start + "Orbis Control Office in February 1997.", "", "OCO", "19970201"},
      {start, ".US Power Squadron in 3/4/1999.", "USPSQD", "19990304"},
      {start + "Orbis Control Office", ".in 1997.", "", ""},
      {start + "Geological Survey in the 1990s.", "", "USGS", ""},
      {".The horizontal coordinates and adjusted by OCO in 1997.", "", "", ""},
  };
  for (const auto& c : cases) {
    Lines lines = {DataLine(P, {{8, c.line}})};
    if (!c.next.empty()) lines.push_back(DataLine(P, {{8, c.next}}));
    const auto result = Parse(P, lines);
    EXPECT_EQ(Field(result.record, "AdjAgency"), c.agency) << c.line << c.next;
    EXPECT_EQ(Field(result.record, "AdjDate"), c.date) << c.line << c.next;
  }
}

TEST(Phrases, EveryLineIsSearched) {
  const auto result = Parse(
      P, {DataLine(P, {{8, ".This is a SPECIAL STATUS position."}}),
          DataLine(P, {{8, ".No horizontal observational check."}}),
          DataLine(P, {{8, ".No vertical observational check."}}),
          DataLine(P, {{10, "LAPLACE CORR-"}, {33, "-3.40"}, {40, "(seconds)"}, {56, "97"}, {69, "DEFLEC99"}}),
          DataLine(P, {{8, ".The ellipsoidal height is referenced to NAD 83"}}),
          DataLine(P, {{8, ";SPC NC"}, {22, "-"}}), DataLine(P, {{8, ";SPC NC"}, {22, "-"}}),
          DataLine(P, {{8, ";SPC VA N"}, {22, "-"}}), DataLine(P, {{34, "SUPERSEDED SURVEY CONTROL"}})});
  EXPECT_EQ(Field(result.record, "SpecialStatus"), "Y");
  EXPECT_EQ(Field(result.record, "NoHorizCheck"), "N");
  EXPECT_EQ(Field(result.record, "NoVertCheck"), "N");
  EXPECT_EQ(Field(result.record, "DeflectionModel"), "97");
  EXPECT_EQ(Field(result.record, "EllipDatum"), "83");
  EXPECT_EQ(Field(result.record, "SpcZone1"), "NC");
  EXPECT_EQ(Field(result.record, "SpcZone2"), "VA N");
  EXPECT_EQ(Field(result.record, "SpcZone3"), "");
  EXPECT_EQ(Field(result.record, "Superseded"), "Y");
}

TEST(Phrases, VlbiBeatsGpsOnTheSameLine) {
  const auto vlbi = Parse(P, {DataLine(P, {{8, ".established by GPS and established by VLBI"}})});
  EXPECT_EQ(Field(vlbi.record, "HorizType"), "V");
  const auto gps = Parse(P, {DataLine(P, {{8, ".established by VLBI"}}), DataLine(P, {{8, ".established by GPS"}})});
  EXPECT_EQ(Field(gps.record, "HorizType"), "G");
}

TEST(MarkerLine, TypeFromMarkerOnlyWhenNoneYet) {
  struct Case {
    std::string before;  // a line read before the marker line
    std::string code, markerCode, category, type;
  };
  const Case cases[] = {
      {"", "DS", "DS", "D", "F"},  {"", "DE", "DE", "D", "E"},  {"", "57", "57", "L", "I"},
      {"", "DB", "DB", "D", ""},   {"", "XQ", "XQ", "", ""},    {".established by GPS", "DS", "DS", "D", "G"},
      {"", "Z ", "Z", "O", ""},
  };
  for (const auto& c : cases) {
    Lines lines;
    if (!c.before.empty()) lines.push_back(DataLine(P, {{8, c.before}}));
    lines.push_back(DataLine(P, {{8, "_MARKER: "}, {17, c.code}, {20, "= SOME MARK"}}));
    const auto result = Parse(P, lines);
    EXPECT_EQ(Field(result.record, "MarkerCode"), c.markerCode) << c.code;
    EXPECT_EQ(Field(result.record, "Category"), c.category) << c.code;
    EXPECT_EQ(Field(result.record, "HorizType"), c.type) << c.code;
  }
}

TEST(Groups, LinesOfAGroupLeftOutAreSkipped) {
  const Lines lines = {
      DataLine(P, {{10, "DESIGNATION -"}, {25, "HILL"}}),
      DataLine(P, {{10, "STATE/COUNTY-"}, {25, "NC/WAKE"}}),
      PositionLine("ADJUSTED"),
      DataLine(P, {{8, "_MARKER: "}, {17, "57"}, {20, "= WATER TANK"}}),
      DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, "1990"}, {33, "GOOD"}, {50, "OCO"}}),
      DataLine(P, {{8, "'DESCRIBED BY ORBIS CONTROL OFFICE 1990 (AB)"}}),
  };
  struct Case {
    ParseGroups groups;
    std::string designation, state, latitude, markerCode, type, lastDate, text, history;
  };
  const std::string text = "DESCRIBED BY ORBIS CONTROL OFFICE 1990 (AB)";
  const Case cases[] = {
      {{true, true, true}, "HILL", "NC", "360342.56888", "57", "I", "1990", text, "1990    GOCO   AB"},
      {{false, true, true}, "HILL", "NC", "", "57", "", "1990", text, "1990    GOCO   AB"},
      {{true, false, true}, "HILL", "", "360342.56888", "", "", "1990", text, "1990    GOCO   AB"},
      {{true, true, false}, "HILL", "NC", "360342.56888", "57", "I", "1990", "", ""},
  };
  for (const auto& c : cases) {
    const auto result = Parse(P, lines, 0, c.groups);
    EXPECT_EQ(Field(result.record, "Designation"), c.designation);
    EXPECT_EQ(Field(result.record, "State"), c.state);
    EXPECT_EQ(Field(result.record, "Latitude"), c.latitude);
    EXPECT_EQ(Field(result.record, "MarkerCode"), c.markerCode);
    EXPECT_EQ(Field(result.record, "HorizType"), c.type);
    EXPECT_EQ(Field(result.record, "LastDate"), c.lastDate);
    EXPECT_EQ(Field(result.record, "DescriptiveText"), c.text + (c.text.empty() ? "" : "\r\n"));
    EXPECT_EQ(Field(result.record, "HistoryTable"), c.history);
  }
}

// A landmark read with the position group alone: the marker's code is not taken, so the type
// stays; with both groups the category gives "I".
TEST(Groups, MarkerTypeNeedsThePositionGroup) {
  const Lines lines = {DataLine(P, {{8, "_MARKER: "}, {17, "57"}, {20, "= WATER TANK"}})};
  EXPECT_EQ(Field(Parse(P, lines, 0, {true, true, true}).record, "HorizType"), "I");
  EXPECT_EQ(Field(Parse(P, lines, 0, {false, true, true}).record, "HorizType"), "");
  EXPECT_EQ(Field(Parse(P, lines, 0, {true, false, true}).record, "HorizType"), "");
}

TEST(ParseDescription, EntryBlanksEpochNetAndReporterOnly) {
  MarkRecord record;
  record.Net = "XY";
  record.Epoch = "1997.0";
  record.LastReporter = "ABC";
  record.Quad = "OLD QUAD";
  std::string ErrMsg = "untouched";
  const std::vector<std::string> lines = {DataLine(P, {{10, "CBN"}, {22, "-"}})};
  ParseDescription(P, lines, 0, {}, ErrMsg, record, testing::SourceSupportFiles());
  EXPECT_EQ(ErrMsg, "untouched");
  EXPECT_EQ(Field(record, "RecordKind"), "R");
  EXPECT_EQ(Field(record, "Net"), "B");
  EXPECT_EQ(Field(record, "Epoch"), "");
  EXPECT_EQ(Field(record, "LastReporter"), "");
  EXPECT_EQ(Field(record, "Quad"), "OLD QUAD");
}

TEST(ParseDescription, StopsAtTheFirstLineOfAnotherPid) {
  const Lines lines = {DataLine("ZZ0001", {{10, "PID         -"}, {25, "ZZ0001"}}),
                       DataLine(P, {{10, "PID         -"}, {25, P}}),
                       DataLine("ZZ0002", {{10, "CBN"}}),
                       DataLine(P, {{10, "FBN"}, {22, "-"}})};
  const auto result = Parse(P, lines);
  EXPECT_EQ(result.ErrMsg, "");
  EXPECT_EQ(Field(result.record, "Pid"), P);
  EXPECT_EQ(Field(result.record, "Net"), "");
  const auto fromIndex = Parse(P, lines, 3);
  EXPECT_EQ(Field(fromIndex.record, "Net"), "A");
  EXPECT_EQ(Field(fromIndex.record, "Pid"), "");
  EXPECT_EQ(Parse(P, lines, 4).ErrMsg, "Data not found!");
  EXPECT_EQ(Parse(P, {}).ErrMsg, "Data not found!");
}

TEST(DescriptiveText, NotesComparedWithTheirHistoryRows) {
  const Lines history = {
      DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, "1950"}, {33, "MONUMENTED"}, {50, "OCO"}}),
      DataLine(P, {{10, "HISTORY"}, {22, "-"}, {24, "1960"}, {33, "GOOD"}, {50, "USPSQD"}}),
  };
  struct Case {
    std::vector<std::string> notes;
    std::string table, reporter;
  };
  const Case cases[] = {
      // A recovery note with no description note before it is compared with the first row.
      {{"RECOVERY NOTE BY ORBIS CONTROL OFFICE 1950 (AB)"}, "1950    MOCO   AB 1960    GUSPSQD", "AB"},
      {{"RECOVERY NOTE BY ORBIS CONTROL OFFICE 1960 (AB)"}, "1950    MOCO      1960    GUSPSQD", ""},
      {{"DESCRIBED BY ORBIS CONTROL OFFICE 1950 (JOHNSON)", "RECOVERY NOTE BY US POWER SQUADRON 1960 (KL)"},
       "1950    MOCO   JOH1960    GUSPSQDKL", "KL"},
      {{"DESCRIBED BY ORBIS CONTROL OFFICE 1951 (JO)"}, "1950    MOCO      1960    GUSPSQD", ""},
      {{"DESCRIBED BY ORBIS CONTROL OFFICE 1950 (JO)", "RECOVERY NOTE BY US POWER SQUADRON 1960 (KL)",
        "RECOVERY NOTE BY US POWER SQUADRON 1960 (MN)"},
       "1950    MOCO   JO 1960    GUSPSQDKL", "KL"},
      {{"DESCRIBED BY ORBIS CONTROL OFFICE 1950 (JO)", "DESCRIBED BY ORBIS CONTROL OFFICE 1950 (PQ)"},
       "1950    MOCO   PQ 1960    GUSPSQD", ""},
  };
  for (const auto& c : cases) {
    Lines lines = history;
    for (const auto& note : c.notes) lines.push_back(DataLine(P, {{8, "'"}, {9, note}}));
    const auto result = Parse(P, lines);
    EXPECT_EQ(Field(result.record, "HistoryTable"), c.table) << c.notes.back();
    EXPECT_EQ(Field(result.record, "LastReporter"), c.reporter) << c.notes.back();
  }
}

TEST(DescriptiveText, ParagraphsAndStationRecovery) {
  const auto result =
      Parse(P, {DataLine(P, {{8, "'"}, {9, "  FIRST LINE  "}}), DataLine(P, {{8, "'"}, {80, " "}}),
                DataLine(P, {{8, "'"}, {9, "SECOND"}}), DataLine(P, {{34, "STATION RECOVERY (1999)"}}),
                DataLine(P, {{8, "'"}, {9, "THIRD"}, {81, "CUT"}}), DataLine(P, {{8, "'"}})});
  EXPECT_EQ(*FieldText(result.record, "DescriptiveText"),
            "FIRST LINE \r\n\r\nSECOND \r\n\r\nTHIRD \r\n\r\n" + std::string(4900 - 36, ' '));
}

}  // namespace
}  // namespace benchlog
