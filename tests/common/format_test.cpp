#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "common/format.hpp"
#include "test_support.hpp"

namespace benchlog {
namespace {

struct FormatCase {
  double value;
  const char* pattern;
  const char* expected;
};

void Check(const std::vector<FormatCase>& cases) {
  for (const auto& c : cases)
    EXPECT_EQ(Format(c.value, c.pattern), c.expected) << c.value << " by \"" << c.pattern << '"';
}

TEST(Format, IntegerPatterns) {
  Check({
      {7, "0000", "0007"}, {12.5, "0000", "0013"}, {-12.5, "0000", "-0013"}, {0, "0000", "0000"},
      {123456, "0000", "123456"}, {42, "0000000", "0000042"}, {0, "##0", "0"}, {-7.5, "##0", "-8"},
      {1234, "##0", "1234"}, {0, "#0", "0"}, {-0.5, "#0", "-1"}, {0, "#", ""}, {0.4, "#", ""}, {3, "#", "3"},
      {1e20, "0", "100000000000000000000"},
  });
}

TEST(Format, ThousandsGrouping) {
  Check({
      {1234567, "###,###,##0", "1,234,567"}, {0, "###,###,##0", "0"}, {999.5, "###,###,##0", "1,000"},
      {-1234, "###,###,##0", "-1,234"}, {1234567890, "###,###,##0", "1,234,567,890"},
      {0, "###,###", ""}, {999999.5, "###,###", "1,000,000"}, {-1234567, "##,###,###", "-1,234,567"},
      {1234.5678, "#,###,##0.000", "1,234.568"}, {0, "#,###,##0.000", "0.000"},
      {1234.5, "##,##0.000", "1,234.500"}, {-98765.4321, "##,##0.000", "-98,765.432"},
      {1234.5, "#0,000,000.000", "0,001,234.500"},  // seven forced digits, grouped
      {4123456.789, "#0,000,000.000", "4,123,456.789"}, {123456789.5, "#0,000,000.000", "123,456,789.500"},
  });
}

TEST(Format, DecimalPatterns) {
  Check({
      {12.3456, "#######0.000 ", "12.346 "}, {-0.0005, "#######0.000 ", "-0.001 "},
      {123456789.5, "#######0.000 ", "123456789.500 "}, {1234.4, "#######0    ", "1234    "},
      {38.8897569, "00.0000000000", "38.8897569000"}, {5.5, "00.0000000000", "05.5000000000"},
      {123.25, "00.0000000000", "123.2500000000"}, {-77.0123456789, "#000.0000000000", "-077.0123456789"},
      {0, "###0.00", "0.00"}, {1234.567, "###0.00", "1234.57"},
      {-0.001, "###0.00", "-0.00"},  // the sign stays on a value that rounds to zero
      {0.9996, "0.00000000", "0.99960000"}, {0.999999995, "0.00000000", "1.00000000"},
      {5, "00.", "05."}, {59.5, "00.", "60."}, {12.5, ".00", "12.50"},
  });
}

TEST(Format, SharpsInTheFractionDropTrailingZerosAndZeroHasNoIntegerPart) {
  Check({
      {12.5, "####.###", "12.5"}, {0.125, "####.###", ".125"}, {7, "####.###", "7."}, {0, "####.###", "."},
      {0.5, "#.##", ".5"}, {5, "#.##", "5."}, {1234567.5, "#,###,###.###", "1,234,567.5"},
  });
}

// Rounding works on the 15-significant-digit decimal form, half away from zero, so values whose
// binary form lies just below the half still round up.
TEST(Format, RoundsTheFifteenDigitFormHalfAwayFromZero) {
  Check({
      {2.675, "###0.00", "2.68"}, {1.005, "###0.00", "1.01"}, {-2.675, "###0.00", "-2.68"},
      {0.285, "0.00", "0.29"}, {1.0005, "####.###", "1.001"}, {38.12345678905, "00.0000000000", "38.1234567891"},
      {2.5, "0", "3"}, {-2.5, "0", "-3"}, {0.1 + 0.2, "0.0000000000000000", "0.3000000000000000"},
      {1.0 / 3.0, "0.000000000000000000", "0.333333333333333000"},
  });
}

// A pattern with more places than a double has digits writes the digits, then zeros.
TEST(Format, ThousandsOfPlaces) {
  for (std::size_t places : {509u, 600u, 5000u, 32767u}) {
    const std::string zeros = "0." + std::string(places, '0');
    EXPECT_EQ(Format(1.0 / 3.0, zeros), "0.333333333333333" + std::string(places - 15, '0')) << places;
    EXPECT_EQ(Format(-2.5e-300, zeros), "-0." + std::string(299, '0') + "25" + std::string(places - 301, '0'))
        << places;
    EXPECT_EQ(Format(1.5e300, zeros), "15" + std::string(299, '0') + "." + std::string(places, '0')) << places;
    EXPECT_EQ(Format(0.5, "#." + std::string(places, '#')), ".5") << places;
  }
}

TEST(Format, ANonFiniteValueOverflows) {
  for (double value : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(FailureOf([=] { Format(value, "0.00"); }), kOverflow) << value;
}

}  // namespace
}  // namespace benchlog
