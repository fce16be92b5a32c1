#include "common/number_text.hpp"

#include <cmath>
#include <cstdlib>
#include <string>

namespace benchlog {
namespace {

bool Skipped(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The characters of the number with the skipped ones removed, in a form strtod reads.
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
  if (number.empty()) return 0.0;
  return std::strtod(number.c_str(), nullptr);
}

bool IsNumeric(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return false;
  const auto last = text.find_last_not_of(' ');
  const std::string trimmed(text.substr(first, last - first + 1));
  char* end = nullptr;
  std::strtod(trimmed.c_str(), &end);
  const bool whole = end == trimmed.c_str() + trimmed.size();
  bool hasDigit = false;
  for (char c : trimmed) hasDigit = hasDigit || IsDigit(c);
  bool plain = true;  // refuse strtod's extras: hex, inf, nan
  for (char c : trimmed) plain = plain && (IsDigit(c) || c == '.' || c == '-' || c == '+' || c == 'e' || c == 'E');
  return whole && hasDigit && plain;
}

}  // namespace benchlog
