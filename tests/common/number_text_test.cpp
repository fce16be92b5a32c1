#include <gtest/gtest.h>

#include <clocale>

#include "common/format.hpp"
#include "common/number_text.hpp"
#include "test_support.hpp"

namespace benchlog {
namespace {

TEST(Val, SkipsBlanksAndStopsAtTheFirstForeignCharacter) {
  struct Case { const char* text; double expected; };
  const Case cases[] = {
      {"12 34", 1234},     {"12X", 12},        {"   ", 0},          {"", 0},
      {"-3.5E2", -350},    {" - 1 2 . 5 ", -12.5}, {"1.2.3", 1.2},  {"\t7\n8", 78},
      {"12\r34", 12},      // CR is no blank
      {"1E", 1},           {"1E+", 1},         {"2D3", 2000},       {"1 e - 2x", 0.01},
      {"1e5e3", 100000},   {"1,234", 1},       {"+5", 5},           {"--5", 0},
      {".5", 0.5},         {"5-3", 5},         {"X12", 0},          {"E5", 0},
  };
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(Val(c.text), c.expected) << '"' << c.text << '"';
}

TEST(Val, ANumberBeyondTheDoubleRangeOverflows) {
  EXPECT_EQ(FailureOf([] { Val("1E400"); }), kOverflow);
  EXPECT_EQ(Val("1E-400"), 0);  // too small is no failure
}

TEST(IsNumeric, TheWholeTrimmedTextIsOneNumber) {
  struct Case { const char* text; bool expected; };
  const Case cases[] = {
      {"12", true},   {" 12 ", true}, {"-1.5E3", true}, {"+.5", true}, {"5.", true},  {"1D2", true},
      {"", false},    {"   ", false}, {"1 2", false},   {"12X", false}, {".", false}, {"-", false},
      {"1e", false},  {"0x1A", false}, {"inf", false},  {"nan", false}, {"1.2.3", false},
  };
  for (const auto& c : cases) EXPECT_EQ(IsNumeric(c.text), c.expected) << '"' << c.text << '"';
}

// A desktop toolkit sets the process locale from the user's; numbers in data files keep their ".".
TEST(NumberText, TheLocaleDoesNotChangeTheDecimalPoint) {
  ASSERT_NE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), nullptr) << "scripts/setup installs the de_DE.UTF-8 locale";
  const double value = Val("3.25");
  const bool numeric = IsNumeric("3.25");
  const std::string text = Format(1234.5, "#,##0.00");
  std::setlocale(LC_NUMERIC, "C");
  EXPECT_EQ(value, 3.25);
  EXPECT_TRUE(numeric);
  EXPECT_EQ(text, "1,234.50");
}

}  // namespace
}  // namespace benchlog
