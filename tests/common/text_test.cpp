#include <gtest/gtest.h>

#include "common/text.hpp"

namespace benchlog {
namespace {

TEST(Mid, SlicesCountFromOneAndNeverFail) {
  struct Case { const char* text; std::size_t start, length; const char* expected; };
  const Case cases[] = {
      {"ABCDEF", 1, 3, "ABC"}, {"ABCDEF", 4, 10, "DEF"}, {"ABCDEF", 7, 2, ""},
      {"ABCDEF", 100, 2, ""},  {"", 1, 5, ""},           {"ABCDEF", 0, 2, "AB"},
      {"ABCDEF", 6, 1, "F"},   {"ABCDEF", 2, 0, ""},
  };
  for (const auto& c : cases) EXPECT_EQ(Mid(c.text, c.start, c.length), c.expected) << c.text << " " << c.start;
  EXPECT_EQ(Mid("ABCDEF", 3), "CDEF");
  EXPECT_EQ(Right("ABC", 5), "ABC");
  EXPECT_EQ(Left("ABC", 2), "AB");
}

TEST(InStr, EmptyPatternIsFoundAtTheStart) {
  EXPECT_EQ(InStr("ABC", ""), 1u);
  EXPECT_EQ(InStr("ABC", "", 3), 3u);
  EXPECT_EQ(InStr("", ""), 1u);
  EXPECT_EQ(InStr("ABCABC", "BC"), 2u);
  EXPECT_EQ(InStr("ABCABC", "BC", 3), 5u);
  EXPECT_EQ(InStr("ABCABC", "bc"), 0u);  // case-sensitive
  EXPECT_EQ(InStrRev("ABCABC", "BC"), 5u);
}

TEST(Trim, RemovesBlanksOnly) {
  EXPECT_EQ(Trim("  A B  "), "A B");
  EXPECT_EQ(Trim("\tA "), "\tA");
  EXPECT_EQ(RTrim("   "), "");
  EXPECT_TRUE(IsBlank(""));
  EXPECT_TRUE(IsBlank("    "));
  EXPECT_FALSE(IsBlank("  .  "));
}

TEST(Split, KeepsEmptyLastElement) {
  EXPECT_EQ(Split("a,b,", ","), (std::vector<std::string>{"a", "b", ""}));
  EXPECT_EQ(Split("", ","), (std::vector<std::string>{""}));
  EXPECT_EQ(ReplaceAll("a\r\nb\r\n", "\r\n", " "), "a b ");
}

}  // namespace
}  // namespace benchlog
