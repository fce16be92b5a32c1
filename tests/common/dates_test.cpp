#include <gtest/gtest.h>

#include "common/dates.hpp"

namespace benchlog {
namespace {

TEST(Dates, ReadsTheDateTextsOfDataSheets) {
  struct Case { const char* text; const char* expected; };
  const Case cases[] = {
      {"6/17/2004", "20040617"},     {"06/17/04", "20040617"},     {"05/01/03", "20030501"},
      {"05/12/29", "20290512"},      {"05/12/30", "19300512"},     {"6-17-2004", "20040617"},
      {"2004/6/17", "20040617"},     {"2004-06-17", "20040617"},   {"June 17, 2004", "20040617"},
      {"Jun 17 2004", "20040617"},   {"17 Jun 2004", "20040617"},  {"18-SEP-07", "20070918"},
      {"Sept 5, 2001", "20010905"},  {"June 1992", "19920601"},    {"JUNE 1992", "19920601"},
      {"6/1992", "19920601"},        {"2/29/2004", "20040229"},    {"2/29/2000", "20000229"},
      {"2004 June 17", "20040617"},  {"04 June 17", "20170604"},  // a year first needs 3 digits
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(IsDate(c.text)) << c.text;
    EXPECT_EQ(DateTextToYyyymmdd(c.text), c.expected) << c.text;
  }
}

// What is no date gives the zero date.
TEST(Dates, ImpossibleDaysAndOtherTextsAreNoDate) {
  const char* cases[] = {
      "2/29/2003", "2/30/2004", "2/29/1900",  // 1900 is no leap year
      "4/31/2004", "0/5/2004", "20040617", "", "1992", "June", "Junk 5, 2004", "6/17/2004 x",
      "6/17/2004 (approx)", "1/2/3/4",
  };
  for (const char* text : cases) {
    EXPECT_FALSE(IsDate(text)) << text;
    EXPECT_EQ(DateTextToYyyymmdd(text), "18991230") << text;
  }
}

TEST(Dates, FormatsAsYearMonthDay) {
  EXPECT_EQ(FormatYyyymmdd(Date{}), "18991230");
  EXPECT_EQ(FormatYyyymmdd(Date{2004, 6, 7}), "20040607");
}

}  // namespace
}  // namespace benchlog
