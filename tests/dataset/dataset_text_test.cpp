#include <gtest/gtest.h>

#include "dataset/dataset_text.hpp"

namespace benchlog {
namespace {

TEST(DatasetText, TellsHeaderDataAndForeignLinesApart) {
  struct Case {
    const char* line;
    bool header, data, foreign;
  };
  const Case cases[] = {
      {"1        Orbis Control Office", true, false, false},
      {"1      ", true, false, false},
      {"1", false, false, true},             // "1" alone
      {"1     X", false, false, true},       // five blanks only
      {"1\tOrbis", false, false, true},      // a tab is not a blank
      {" AB1234  PID         -  AB1234", false, true, false},
      {"      ", false, true, false},        // a line of blanks
      {"", false, false, true},              // empty: column 1 is no blank
      {"Retrieved 2024", false, false, true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(IsHeaderLine(c.line), c.header) << '"' << c.line << '"';
    EXPECT_EQ(IsDataLine(c.line), c.data) << '"' << c.line << '"';
    EXPECT_EQ(IsForeignLine(c.line), c.foreign) << '"' << c.line << '"';
  }
}

TEST(DatasetText, ReadsPidMarkAndKeysByColumn) {
  const std::string_view line = " AB1234_MARKER: DB = BENCH MARK DISK";
  EXPECT_EQ(LinePid(line), "AB1234");
  EXPECT_EQ(LineMark(line), '_');
  EXPECT_TRUE(KeyAt(line, 8, "_MARKER:"));
  EXPECT_FALSE(KeyAt(line, 9, "_MARKER:"));
  EXPECT_EQ(Columns(line, 17, 2), "DB");
  EXPECT_EQ(Columns(line, 28, 100), "MARK DISK");  // past the end: shorter
  EXPECT_EQ(Columns(line, 200, 3), "");
  EXPECT_EQ(LineMark(" AB12"), '\0');
  EXPECT_EQ(CountedLength(line), line.size() + 2);
  EXPECT_TRUE(IsBlankLine("     "));
  EXPECT_FALSE(IsBlankLine("   .  "));
}

TEST(DatasetText, PositionLineHasTwoLayouts) {
  struct Case {
    const char* line;
    bool longDatum;
    const char* latitude;
    const char* longitude;
  };
  const Case cases[] = {
      // hyphen in 22: latitude at 25, longitude at 46
      {" AB1234* NAD 83(2011)-  39 44 29.12345(N)    104 59 31.54321(W)     ADJUSTED", false, "39 44 29.12345",
       "104 59 31.54321"},
      // long tag, hyphen in 26: latitude at 29, longitude at 47
      {" AB1235* NAD 83(NSRS2007)-  39 39 10.43210(N) 105 05 52.76543(W)    ADJUSTED", true, "39 39 10.43210",
       "105 05 52.76543"},
      // a coarse position keeps its blanks
      {" AB1237* NAD 83(1986)-  47 36 05.1    (N)    122 20 10.2    (W)     SCALED", false, "47 36 05.1    ",
       "122 20 10.2    "},
      // cut short: shorter slices
      {" AB1236* NAD 83(1986)-  39 40 0", false, "39 40 0", ""},
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(IsPositionLine(c.line));
    EXPECT_EQ(IsLongDatumLayout(c.line), c.longDatum) << c.line;
    EXPECT_EQ(PositionLatitudeText(c.line), c.latitude) << c.line;
    EXPECT_EQ(PositionLongitudeText(c.line), c.longitude) << c.line;
  }
  EXPECT_FALSE(IsPositionLine(" AB1234* NAVD 88     -      1702.34   (meters)"));
}

TEST(DatasetText, HistoryLineFields) {
  const std::string_view head = " AB1234  HISTORY     - Date     Condition        Report By";
  const std::string_view entry = " AB1234  HISTORY     - 20120309 GOOD             COUSGS";
  EXPECT_TRUE(IsHistoryHeadLine(head));
  EXPECT_FALSE(IsHistoryHeadLine(entry));
  EXPECT_TRUE(IsHistoryLine(entry));
  EXPECT_EQ(HistoryYear(entry), "2012");
  EXPECT_EQ(HistoryCondition(entry).substr(0, 4), "GOOD");
  EXPECT_EQ(HistoryAgency(entry), "COUSGS");
  EXPECT_EQ(HistoryAgency(head), "Report");
}

}  // namespace
}  // namespace benchlog
