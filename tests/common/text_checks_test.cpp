#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/sort_by_column.hpp"
#include "common/text_checks.hpp"

namespace benchlog {
namespace {

using Lines = std::vector<std::string>;

TEST(SortByColumn, SortsByTheKeyFromTheColumnOn) {
  struct Case { Lines lines; std::size_t column; Lines expected; };
  const Case cases[] = {
      {{"zzB1", "aaA2", "mmB0"}, 3, {"aaA2", "mmB0", "zzB1"}},  // the text before the column plays no part
      {{"1 X", "2 A", "3 X", "4 A"}, 3, {"2 A", "4 A", "1 X", "3 X"}},  // equal keys keep their order
      {{"a", "B", "A"}, 1, {"A", "B", "a"}},  // by character code, capitals first
      {{"\xC9", "z", "Z"}, 1, {"Z", "z", "\xC9"}},  // codes above 127 after "z"
      {{"abcd", "ab", "abc"}, 3, {"ab", "abc", "abcd"}},  // a line shorter than the column has an empty key
      {{"b", "a"}, 1, {"b", "a"}},  // two lines are never sorted
      {{"b"}, 1, {"b"}},
      {{}, 1, {}},
  };
  for (const auto& c : cases) {
    Lines lines = c.lines;
    SortByColumn(lines, c.column);
    EXPECT_EQ(lines, c.expected);
  }
}

TEST(SortByColumn, KeepsTheOrderOfAnInsertionSortOnALargeInput) {
  Lines lines;
  for (int i = 0; i < 500; ++i) lines.push_back(std::to_string(i % 7) + "|" + std::to_string((i * 37) % 11));
  Lines expected = lines;
  // The insertion sort of the classic routine, run here as the reference.
  for (std::size_t i = 1; i < expected.size(); ++i) {
    const std::string line = expected[i];
    std::size_t j = i;
    while (j > 0 && expected[j - 1].substr(2) > line.substr(2)) {
      expected[j] = expected[j - 1];
      --j;
    }
    expected[j] = line;
  }
  SortByColumn(lines, 3);
  EXPECT_EQ(lines, expected);
}

TEST(TextChecks, CountDelimiters) {
  EXPECT_EQ(CountDelimiters("a,b,c", ","), 2u);
  EXPECT_EQ(CountDelimiters(",,,", ","), 3u);
  EXPECT_EQ(CountDelimiters("abc", ","), 0u);
  EXPECT_EQ(CountDelimiters("", ","), 0u);
  EXPECT_EQ(CountDelimiters("a||b||", "||"), 2u);
  EXPECT_EQ(CountDelimiters("a\tb", "\t"), 1u);
}

TEST(TextChecks, DecimalCount) {
  EXPECT_EQ(DecimalCount(" 12.345 "), 3u);
  EXPECT_EQ(DecimalCount("12"), 0u);
  EXPECT_EQ(DecimalCount("12."), 0u);
  EXPECT_EQ(DecimalCount(".5"), 1u);
  EXPECT_EQ(DecimalCount("1.2.3"), 3u);  // from the first point
}

TEST(TextChecks, StripHtmlTags) {
  EXPECT_EQ(StripHtmlTags("<html><Body>A<td>B</TD>\r\nC</body></HTML>"), "ABC");
  EXPECT_EQ(StripHtmlTags("<TABLE><TR><TH>PID</TH></TR></table>"), "PID");
  EXPECT_EQ(StripHtmlTags("<title>T</title><head></head><tbody>x</tbody>"), "Tx");
  EXPECT_EQ(StripHtmlTags("<TD class=x>A"), "<TD class=x>A");  // with attributes: stays
  EXPECT_EQ(StripHtmlTags("<P>A<BR>"), "<P>A<BR>");                // not in the list
  EXPECT_EQ(StripHtmlTags("A\rB\nC"), "A\rB\nC");                   // only CR LF pairs go
  EXPECT_EQ(StripHtmlTags("<TD<TD>>"), "<TD>");                     // one pass per tag
}

TEST(TextChecks, IsAllCapitals) {
  EXPECT_TRUE(IsAllCapitals(""));
  EXPECT_TRUE(IsAllCapitals("ABZ"));
  EXPECT_FALSE(IsAllCapitals("ABc"));
  EXPECT_FALSE(IsAllCapitals("AB C"));
  EXPECT_FALSE(IsAllCapitals("A1"));
  EXPECT_FALSE(IsAllCapitals("\xC9"));
}

}  // namespace
}  // namespace benchlog
