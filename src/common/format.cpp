#include "common/format.hpp"

#include <charconv>
#include <cmath>
#include <string>
#include <vector>

#include "common/runtime_failure.hpp"

namespace benchlog {
namespace {

bool IsPlaceholder(char c) { return c == '0' || c == '#'; }

// The magnitude's decimal digits rounded half away from zero to `decimals` places, from its
// 15-significant-digit form: integer digits without leading zeros ("" for zero) and exactly
// `decimals` fraction digits.
void RoundedDigits(double magnitude, int decimals, std::string& integer, std::string& fraction) {
  char buffer[64];
  // d.dddddddddddddde±xx, with "." whatever the locale says.
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::scientific, 14);
  const std::string text(buffer, written.ptr);
  const auto ePos = text.find('e');
  std::string digits = text.substr(0, 1) + text.substr(2, ePos - 2);
  const int exponent = std::stoi(text.substr(ePos + 1));
  // Position of the decimal point within `digits`: after (exponent + 1) digits.
  int pointAt = exponent + 1;
  if (pointAt < 0) {
    digits.insert(0, static_cast<std::size_t>(-pointAt), '0');
    pointAt = 0;
  }
  const int keep = pointAt + decimals;
  if (static_cast<int>(digits.size()) < keep) digits.append(static_cast<std::size_t>(keep) - digits.size(), '0');
  const bool roundUp = keep >= 0 && keep < static_cast<int>(digits.size()) && digits[static_cast<std::size_t>(keep)] >= '5';
  digits.resize(static_cast<std::size_t>(keep < 0 ? 0 : keep));
  if (roundUp) {
    int i = keep - 1;
    for (; i >= 0 && digits[static_cast<std::size_t>(i)] == '9'; --i) digits[static_cast<std::size_t>(i)] = '0';
    if (i >= 0) {
      ++digits[static_cast<std::size_t>(i)];
    } else {
      digits.insert(0, "1");
      ++pointAt;
    }
  }
  integer = digits.substr(0, static_cast<std::size_t>(pointAt));
  fraction = digits.substr(static_cast<std::size_t>(pointAt));
  const auto firstNonZero = integer.find_first_not_of('0');
  integer = firstNonZero == std::string::npos ? std::string() : integer.substr(firstNonZero);
}

std::string GroupThousands(const std::string& digits) {
  std::string out;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
    out += digits[i];
  }
  return out;
}

// Lays the integer digits into the integer section's placeholders from the right; excess digits
// go out at the leftmost placeholder, literals keep their places.
std::string IntegerSection(std::string_view section, const std::string& digits) {
  bool grouping = false;
  std::string tokens;  // the section without its grouping commas
  for (char c : section) {
    if (c == ',') grouping = true;
    else tokens += c;
  }
  std::size_t placeholders = 0;
  for (char c : tokens) placeholders += IsPlaceholder(c) ? 1 : 0;
  if (placeholders == 0) return tokens + digits;  // ".00": the integer digits stand before the point
  bool literalsInside = false;
  {
    const auto first = tokens.find_first_of("0#");
    const auto last = tokens.find_last_of("0#");
    for (std::size_t i = first; first != std::string::npos && i <= last; ++i)
      literalsInside = literalsInside || !IsPlaceholder(tokens[i]);
  }
  // Digits for each placeholder, zero-filled where the placeholder is "0".
  std::vector<std::string> fill(placeholders);
  std::size_t taken = 0;
  std::size_t index = placeholders;
  for (std::size_t t = tokens.size(); t-- > 0;) {
    if (!IsPlaceholder(tokens[t])) continue;
    --index;
    if (taken < digits.size()) {
      fill[index] = index == 0 ? digits.substr(0, digits.size() - taken) : std::string(1, digits[digits.size() - 1 - taken]);
      taken += fill[index].size();
    } else if (tokens[t] == '0') {
      fill[index] = "0";
    }
  }
  if (grouping && !literalsInside) {
    std::string number;
    for (const auto& f : fill) number += f;
    const auto first = tokens.find_first_of("0#");
    const auto last = tokens.find_last_of("0#");
    return tokens.substr(0, first) + GroupThousands(number) + tokens.substr(last + 1);
  }
  std::string out;
  index = 0;
  for (char c : tokens) out += IsPlaceholder(c) ? fill[index++] : std::string(1, c);
  return out;
}

// Fraction digits into the fraction section's placeholders; trailing "#" places drop their zeros.
std::string FractionSection(std::string_view section, std::string fraction) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < section.size(); ++i)
    if (IsPlaceholder(section[i])) places.push_back(i);
  std::vector<bool> shown(places.size(), true);
  for (std::size_t p = places.size(); p-- > 0;) {
    if (section[places[p]] != '#' || fraction[p] != '0') break;
    shown[p] = false;
  }
  std::string out;
  std::size_t p = 0;
  for (char c : section) {
    if (!IsPlaceholder(c)) {
      out += c;
      continue;
    }
    if (shown[p]) out += fraction[p];
    ++p;
  }
  return out;
}

}  // namespace

std::string Format(double value, std::string_view pattern) {
  if (!std::isfinite(value)) throw Overflow();
  const auto point = pattern.find('.');
  const std::string_view integerSection = pattern.substr(0, point);
  const std::string_view fractionSection = point == std::string_view::npos ? std::string_view() : pattern.substr(point + 1);
  int decimals = 0;
  for (char c : fractionSection) decimals += IsPlaceholder(c) ? 1 : 0;

  std::string integer, fraction;
  RoundedDigits(std::fabs(value), decimals, integer, fraction);

  std::string out = value < 0 ? "-" : "";
  out += IntegerSection(integerSection, integer);
  if (point != std::string_view::npos) out += '.' + FractionSection(fractionSection, fraction);
  return out;
}

}  // namespace benchlog
