#include "common/plain_number.hpp"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace benchlog {
namespace {

constexpr int kSignificantDigits = 15;

// Drops the trailing zeros of a digit string, keeping at least one digit.
std::string WithoutTrailingZeros(std::string digits) {
  while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
  return digits;
}

}  // namespace

std::string PlainNumber(double value) {
  if (value == 0) return "0";
  // "d.dddddddddddddde+XX": the 15 significant digits, rounded once, and the decimal exponent.
  // to_chars, unlike printf, writes "." whatever the locale says.
  char buffer[40];
  const auto written =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, kSignificantDigits - 1);
  std::string text(buffer, written.ptr);
  const bool negative = text[0] == '-';
  if (negative) text.erase(0, 1);
  const std::size_t e = text.find('e');
  const int exponent = std::atoi(text.c_str() + e + 1);
  const std::string digits = WithoutTrailingZeros(text.substr(0, 1) + text.substr(2, e - 2));

  std::string out;
  if (exponent >= kSignificantDigits || exponent < -4) {
    out = digits.substr(0, 1);
    if (digits.size() > 1) out += "." + digits.substr(1);
    char tail[16];
    std::snprintf(tail, sizeof tail, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    out += tail;
  } else if (exponent < 0) {
    out = "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  } else {
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    out = digits.size() <= whole ? digits + std::string(whole - digits.size(), '0')
                                 : digits.substr(0, whole) + "." + digits.substr(whole);
  }
  return negative ? "-" + out : out;
}

}  // namespace benchlog
