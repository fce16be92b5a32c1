// The listing lines item by item at their print positions, the headings, the feet of the
// elevations, and the closing of a listing: sort, heading and the empty line.
#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

#include "common/files.hpp"
#include "export/listing_file.hpp"
#include "export/listing_lines.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog::testing {
namespace {

// A printed line from (column, text) pieces in order, blanks between them, CR LF at the end.
std::string Columns(std::initializer_list<std::pair<std::size_t, std::string>> pieces) {
  std::string line;
  for (const auto& [column, text] : pieces) {
    EXPECT_LE(line.size() + 1, column) << text;
    line.resize(column - 1, ' ');
    line += text;
  }
  return line + "\r\n";
}

MarkRecord Hillsboro() {
  MarkRecord r;
  r.Designation = "HILLSBORO";
  r.Pid = "FY3210";
  r.HorizDatum = "83";
  r.DatumTag = "2001";
  r.HorizOrder = "1";
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

MarkValues HillsboroValues() {
  MarkValues v;
  v.LatText = "36 03 42.56888";
  v.LonText = "079 07 18.55999";
  v.NorthText = "841426.298  ";
  v.EastText = "1963992.675 ";
  v.SpcNorth = 256467.2494;
  v.SpcEast = 598626.1651;
  v.Elevation = 262.5f;
  v.PhotoFlag = "Y";
  v.SketchFlag = " ";
  return v;
}

TEST(ListingLines, HorizontalItemsAtTheirColumns) {
  EXPECT_EQ(HorizontalLine(Hillsboro(), "FY3210", HillsboroValues()),
            Columns({{1, "HILLSBORO"}, {32, "FY3210"}, {40, "83(2001  )"}, {55, "36 03 42.56888"},
                     {71, "079 07 18.55999"}, {88, "1"}, {91, "841426.298  1963992.675 "}, {116, "A"},
                     {118, "Y"}, {120, "1933"}, {125, "2004"}, {129, "N"}, {131, "Y"}, {133, " "}}));
}

TEST(ListingLines, TheNameTakesThirtyColumns) {
  MarkRecord record = Hillsboro();
  record.Designation = "CHAPEL HILL WATER TREATMENT PLANT TANK 2";
  const std::string line = HorizontalLine(record, "XA1001", HillsboroValues());
  EXPECT_EQ(line.substr(0, 39), "CHAPEL HILL WATER TREATMENT PL XA1001  ");
}

TEST(ListingLines, VerticalItemsAtTheirColumns) {
  struct Case {
    const char* name;
    double north, east;
    float elevation;
    std::string expected;
  };
  const std::string head = Columns({{1, "HILLSBORO"}, {32, "FY3210"}, {40, "88"}, {50, "36 03 42.56"},
                                    {63, "079 07 18.55"}, {76, "2 0"}});
  const std::string state = "A Y 1933 2004N Y  \r\n";  // from column 119
  const std::string start = head.substr(0, head.size() - 2);
  const Case cases[] = {
      {"CoordinatesAndElevation", 256467.2494, 598626.1651, 262.5f,
       start + std::string(80 - start.size(), ' ') + "256467   598626   262.500 " + std::string(118 - 106, ' ') + state},
      // An elevation of 0 is left out, the coordinates stay.
      {"NoElevation", 256467.2494, 598626.1651, 0.0f,
       start + std::string(80 - start.size(), ' ') + "256467   598626   " + std::string(118 - 98, ' ') + state},
      // No plane coordinates: no elevation either.
      {"NoCoordinates", 0, 598626.1651, 262.5f, start + std::string(118 - start.size(), ' ') + state},
      // A northing of 10 characters pushes the east to column 91; the elevation's Tab(99) then
      // breaks the line and the elevation starts a new one at column 99.
      {"WideNorthingBreaks", 13706447.4, 2127201.2, 200.123f,
       start + std::string(80 - start.size(), ' ') + "13706447  2127201  \r\n" + std::string(98, ' ') + "200.123 " +
           std::string(118 - 106, ' ') + state},
  };
  for (const Case& c : cases) {
    MarkValues values = HillsboroValues();
    values.SpcNorth = c.north;
    values.SpcEast = c.east;
    values.Elevation = c.elevation;
    EXPECT_EQ(VerticalLine(Hillsboro(), "FY3210", values, 1.0, 1.0), c.expected) << c.name;
  }
}

TEST(ListingLines, VerticalCoordinatesInTheListingsUnit) {
  const std::string line = VerticalLine(Hillsboro(), "FY3210", HillsboroValues(), 3937.0 / 1200.0, 1.0);
  EXPECT_EQ(line.substr(80, 26), "841426   1963993  262.500 ");
}

TEST(ListingLines, ElevationsInFeetInSinglePrecision) {
  struct Case {
    float metres;
    float feet;  // metres times 3937, then divided by 1200, each in single precision
  };
  for (const Case c : {Case{148.531f, 487.30545f}, Case{262.0f, 859.5783f}, Case{-1.5f, -4.92125f}}) {
    EXPECT_FLOAT_EQ(ElevationInFeet(c.metres), c.feet) << c.metres;
  }
  EXPECT_EQ(ElevationInFeet(148.531f), static_cast<float>(static_cast<float>(148.531f * 3937.0f) / 1200.0f));
}

TEST(ListingLines, Headings) {
  EXPECT_EQ(HorizontalHeading(true),
            Columns({{1, "DESIGNATION"}, {32, "PID"}, {40, "DATUM"}, {55, "LATITUDE"}, {71, "LONGITUDE"}, {88, "O"},
                     {91, "NORTH (FT)"}, {103, "EAST (FT)"}, {116, "M G SET  REC C P S"}}));
  EXPECT_EQ(HorizontalHeading(false).substr(90, 25), "NORTH (M)   EAST (M)     ");
  EXPECT_EQ(VerticalHeading(true, true),
            Columns({{1, "DESIGNATION"}, {32, "PID"}, {40, "DATUM"}, {50, "LATITUDE"}, {63, "LONGITUDE"},
                     {76, "O C"}, {81, "NORTH FT"}, {90, "EAST FT"}, {100, "88-ELEV (FEET)     M G SET  REC C P S"}}));
  EXPECT_EQ(VerticalHeading(false, false).substr(80), "NORTH M  EAST M    88-ELEV (METERS)   M G SET  REC C P S\r\n");
  // The column letters stand over their items: M at 119, C at 132 of the vertical line.
  EXPECT_EQ(VerticalHeading(false, true)[118], 'M');
  EXPECT_EQ(VerticalHeading(false, false)[131], 'C');
  EXPECT_EQ(HorizontalHeading(false)[132], 'S');
}

TEST(ListingFile, ClosingSortsAndHeads) {
  struct Case {
    const char* name;
    std::string written;
    std::string expected;
  };
  const std::string heading = "HEAD\r\n";
  const Case cases[] = {
      {"Empty", "", ""},
      // One mark: two elements, never sorted; the empty one stands last.
      {"OneMark", "ZULU\r\n", "HEAD\r\nZULU\r\n\r\n"},
      // By whole lines and character codes: the empty element, a line broken off with leading
      // blanks, capitals before small letters; then name, then PID.
      {"Several", "b 1 AB0002\r\nB 1 AB0003\r\nA 2 AB0001\r\n   tail\r\nA 1 AB0009\r\n",
       "HEAD\r\n\r\n   tail\r\nA 1 AB0009\r\nA 2 AB0001\r\nB 1 AB0003\r\nb 1 AB0002\r\n"},
  };
  for (const Case& c : cases) {
    TempFolder folder;
    const std::string path = folder.File("list.hcl");
    {
      ListingFile file(path);
      if (!c.written.empty()) file.Write(c.written);
      file.Finish(heading);
    }
    EXPECT_EQ(ReadWholeFile(path), c.expected) << c.name;
  }
}

}  // namespace
}  // namespace benchlog::testing
