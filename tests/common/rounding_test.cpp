#include <gtest/gtest.h>

#include <cmath>

#include "common/rounding.hpp"
#include "test_support.hpp"

namespace benchlog {
namespace {

TEST(RoundHalfEven, HalvesGoToTheEvenNeighbour) {
  const std::pair<double, double> cases[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-2.5, -2}, {-1.5, -2}, {2.4, 2}, {-2.6, -3}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(RoundHalfEven(value), expected) << value;
}

TEST(CInt, RoundsHalfEvenAndOverflowsOutsideSixteenBits) {
  const std::pair<double, int> cases[] = {{2.5, 2}, {3.5, 4}, {-3.5, -4}, {32767.4, 32767}, {-32768.5, -32768}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(CInt(value), expected) << value;
  for (double value : {32767.5, -32768.6, 40000.0, std::nan("")})  // 32767.5 rounds to 32768
    EXPECT_EQ(FailureOf([=] { CInt(value); }), kOverflow) << value;
}

TEST(CLng, RoundsHalfEvenAndOverflowsOutsideThirtyTwoBits) {
  EXPECT_EQ(CLng(-2147483648.5), -2147483647 - 1);
  EXPECT_EQ(CLng(2147483646.5), 2147483646);
  EXPECT_EQ(CLng(70000.5), 70000);
  for (double value : {2147483647.5, -2147483648.6, 1e10})
    EXPECT_EQ(FailureOf([=] { CLng(value); }), kOverflow) << value;
}

TEST(AddInt16, OverflowsPastTheSixteenBitRange) {
  EXPECT_EQ(AddInt16(32000, 767), 32767);
  EXPECT_EQ(AddInt16(-32000, -768), -32768);
  EXPECT_EQ(FailureOf([] { AddInt16(32767, 1); }) + FailureOf([] { AddInt16(-32768, -1); }), 2 * kOverflow);
}

TEST(RuntimeFailure, CarriesTheClassicNumbersAndDescriptions) {
  struct Case { RuntimeFailure failure; int number; const char* description; };
  const Case cases[] = {
      {Overflow(), 6, "Overflow"}, {SubscriptOutOfRange(), 9, "Subscript out of range"},
      {DivisionByZero(), 11, "Division by zero"}, {TypeMismatch(), 13, "Type mismatch"},
      {FileNotFound(), 53, "File not found"}, {InvalidProcedureCall(), 5, "Invalid procedure call or argument"},
      {PathFileAccessError(), 75, "Path/File access error"}, {CancelError(), 32755, "Cancel was selected."},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(c.failure.number, c.number);
    EXPECT_EQ(c.failure.description, c.description);
    EXPECT_STREQ(c.failure.what(), c.description);
  }
}

}  // namespace
}  // namespace benchlog
