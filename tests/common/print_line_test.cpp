#include <gtest/gtest.h>

#include <functional>

#include "common/fit.hpp"
#include "common/print_line.hpp"

namespace benchlog {
namespace {

TEST(PrintLine, TabMovesToTheColumnOrToItOnANewLine) {
  struct Case { const char* name; std::function<void(PrintLine&)> build; const char* expected; };
  const Case cases[] = {
      {"items join", [](PrintLine& p) { p.Write("1").Write("23"); }, "123\r\n"},
      {"tab forward", [](PrintLine& p) { p.Write("AB").Tab(5).Write("C"); }, "AB  C\r\n"},
      {"tab to the current column", [](PrintLine& p) { p.Write("AB").Tab(3).Write("C"); }, "ABC\r\n"},
      {"tab past", [](PrintLine& p) { p.Write("ABCDEF").Tab(3).Write("X"); }, "ABCDEF\r\n  X\r\n"},
      {"tab back to 1", [](PrintLine& p) { p.Write("AB").Tab(1).Write("X"); }, "AB\r\nX\r\n"},
      {"tab 0 is tab 1", [](PrintLine& p) { p.Tab(0).Write("X"); }, "X\r\n"},
      {"tab at the end", [](PrintLine& p) { p.Write("A").Tab(4); }, "A  \r\n"},
      {"written line end", [](PrintLine& p) { p.Write("AB\r\nC").Tab(3).Write("D"); }, "AB\r\nC D\r\n"},
      {"empty", [](PrintLine&) {}, "\r\n"},
  };
  for (const auto& c : cases) {
    PrintLine line;
    c.build(line);
    EXPECT_EQ(line.Finish(), c.expected) << c.name;
  }
}

TEST(PrintLine, ColumnCountsFromOneAndFinishStartsAgain) {
  PrintLine line;
  EXPECT_EQ(line.Write("ABC").Column(), 4u);
  EXPECT_EQ(line.Tab(2).Column(), 2u);
  line.Finish();
  EXPECT_EQ(line.Column(), 1u);
  EXPECT_EQ(line.Write("Z").Finish(), "Z\r\n");
}

TEST(FitToWidth, BlanksNulsAndCrLfTrimsThenPadsOrCuts) {
  using namespace std::string_literals;
  struct Case { std::string value; std::size_t width; std::string expected; };
  const Case cases[] = {
      {"AB", 5, "AB   "},          {"  AB  ", 3, "AB "},      {"ABCDEF", 3, "ABC"},
      {"A\0B"s, 3, "A B"},         {"\0AB\0"s, 2, "AB"},      {"A\r\nB", 4, "A B "},
      {"\r\nAB", 3, "AB "},        {"A\rB", 3, "A\rB"},       {"A\nB", 3, "A\nB"},
      {"", 2, "  "},               {"ABC", 0, ""},            {"A\r\n\r\nB", 5, "A  B "},
  };
  for (const auto& c : cases) EXPECT_EQ(FitToWidth(c.value, c.width), c.expected) << c.value;
}

}  // namespace
}  // namespace benchlog
