#include "common/number_text.hpp"

#include <charconv>
#include <string>

#include "common/runtime_failure.hpp"

namespace benchlog {
namespace {

bool Skipped(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The characters of the number with the skipped ones removed, the exponent letter as "e".
std::string NumberCharacters(std::string_view text) {
  std::string number;
  enum { kSign, kMantissa, kExponentSign, kExponent } stage = kSign;
  bool point = false;
  bool exponentDigits = false;
  std::size_t beforeExponent = 0;
  for (char c : text) {
    if (Skipped(c)) continue;
    if (stage == kSign && (c == '-' || c == '+')) {
      number += c;
      stage = kMantissa;
    } else if ((stage == kSign || stage == kMantissa) && (IsDigit(c) || (c == '.' && !point))) {
      point = point || c == '.';
      number += c;
      stage = kMantissa;
    } else if ((stage == kSign || stage == kMantissa) && (c == 'E' || c == 'e' || c == 'D' || c == 'd')) {
      beforeExponent = number.size();
      number += 'e';
      stage = kExponentSign;
    } else if (stage == kExponentSign && (c == '-' || c == '+')) {
      number += c;
      stage = kExponent;
    } else if ((stage == kExponentSign || stage == kExponent) && IsDigit(c)) {
      number += c;
      exponentDigits = true;
      stage = kExponent;
    } else {
      break;
    }
  }
  if ((stage == kExponentSign || stage == kExponent) && !exponentDigits) number.resize(beforeExponent);
  return number;
}

}  // namespace

double Val(std::string_view text) {
  const std::string number = NumberCharacters(text);
  // from_chars reads the same whatever the process locale says about decimal points.
  const std::size_t from = !number.empty() && number[0] == '+' ? 1 : 0;
  double value = 0.0;
  const auto [end, error] = std::from_chars(number.data() + from, number.data() + number.size(), value);
  if (error == std::errc::result_out_of_range) {
    const auto e = number.find('e');
    if (e != std::string::npos && e + 1 < number.size() && number[e + 1] == '-') return 0.0;  // too small
    throw Overflow();
  }
  return error == std::errc() ? value : 0.0;
}

bool IsNumeric(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return false;
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  std::size_t i = 0;
  auto digits = [&] {
    const std::size_t start = i;
    while (i < text.size() && IsDigit(text[i])) ++i;
    return i - start;
  };
  if (text[i] == '+' || text[i] == '-') ++i;
  std::size_t mantissa = digits();
  if (i < text.size() && text[i] == '.') {
    ++i;
    mantissa += digits();
  }
  if (mantissa == 0) return false;
  if (i < text.size() && (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
    ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    if (digits() == 0) return false;
  }
  return i == text.size();
}

}  // namespace benchlog
