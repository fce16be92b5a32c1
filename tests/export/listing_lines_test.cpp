// What the golden listings (golden_listings_test.cpp) do not show: a vertical line without
// elevation or plane coordinates, and the sort of lines in small letters and broken-off pieces.
#include <gtest/gtest.h>

#include "common/files.hpp"
#include "export/listing_file.hpp"
#include "export/listing_lines.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog::testing {
namespace {

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
