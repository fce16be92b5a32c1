#include "common/format.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "common/runtime_failure.hpp"

namespace benchlog {
namespace {

bool IsPlaceholder(char c) { return c == '0' || c == '#'; }

// A pattern taken apart once: listings format the same few patterns hundreds of thousands of times.
struct CompiledPattern {
  std::string integerTokens;  // the integer section without its grouping commas
  bool grouping = false;
  std::size_t placeholders = 0;  // in the integer section
  std::size_t first = std::string::npos, last = std::string::npos;  // first and last placeholder
  bool literalsInside = false;   // a literal between the first and the last placeholder
  bool hasPoint = false;
  std::string fractionSection;
  int decimals = 0;
};

CompiledPattern CompilePattern(std::string_view pattern) {
  CompiledPattern compiled;
  const auto point = pattern.find('.');
  compiled.hasPoint = point != std::string_view::npos;
  for (char c : pattern.substr(0, point)) {
    if (c == ',') compiled.grouping = true;
    else compiled.integerTokens += c;
  }
  const std::string& tokens = compiled.integerTokens;
  for (char c : tokens) compiled.placeholders += IsPlaceholder(c) ? 1 : 0;
  compiled.first = tokens.find_first_of("0#");
  compiled.last = tokens.find_last_of("0#");
  for (std::size_t i = compiled.first; compiled.first != std::string::npos && i <= compiled.last; ++i)
    compiled.literalsInside = compiled.literalsInside || !IsPlaceholder(tokens[i]);
  if (compiled.hasPoint) compiled.fractionSection = std::string(pattern.substr(point + 1));
  for (char c : compiled.fractionSection) compiled.decimals += IsPlaceholder(c) ? 1 : 0;
  return compiled;
}

const CompiledPattern& Compiled(std::string_view pattern) {
  thread_local std::vector<std::pair<std::string, CompiledPattern>> cache;
  for (const auto& [text, compiled] : cache)
    if (text == pattern) return compiled;
  cache.emplace_back(std::string(pattern), CompilePattern(pattern));
  return cache.back().second;
}

// The magnitude's decimal digits rounded half away from zero to `decimals` places, from its
// 15-significant-digit form: `integer` without leading zeros (empty for zero) and the fraction
// digits in `fraction`. The buffer holds every digit a double can have (309 integer places, the
// last significant one 338 places behind the point); a pattern with more places than the buffer
// keeps gets zeros for the rest, which is what those digits are.
struct RoundedDigits {
  std::string_view integer, fraction;
  char buffer[512];
};

void Round(double magnitude, int decimals, RoundedDigits& out) {
  // A whole number of up to 15 digits is its own 15-digit form: nothing to round.
  if (magnitude < 1e15 && magnitude == std::floor(magnitude)) {
    const auto whole = static_cast<std::uint64_t>(magnitude);
    const auto written = std::to_chars(out.buffer, out.buffer + sizeof out.buffer, whole);
    out.integer = whole == 0 ? std::string_view() : std::string_view(out.buffer, written.ptr);
    out.fraction = std::string_view();
    return;
  }
  char scientific[64];  // d.dddddddddddddde±xx, with "." whatever the locale says
  const auto written =
      std::to_chars(scientific, scientific + sizeof scientific, magnitude, std::chars_format::scientific, 14);
  const char* e = std::find(scientific, written.ptr, 'e');
  char mantissa[15];
  mantissa[0] = scientific[0];
  std::copy(static_cast<const char*>(scientific + 2), e, mantissa + 1);
  int exponent = 0;
  std::from_chars(e + (e[1] == '+' ? 2 : 1), written.ptr, exponent);

  // The digits are `zeros` zeros, the 15 of the mantissa, then zeros; the point stands after
  // `pointAt` of them.
  int pointAt = exponent + 1;
  const int zeros = pointAt < 0 ? -pointAt : 0;
  pointAt = std::max(pointAt, 0);
  const auto digitAt = [&](int k) { return k < zeros || k - zeros >= 15 ? '0' : mantissa[k - zeros]; };
  const int keep = std::min(pointAt + decimals, static_cast<int>(sizeof out.buffer) - 2);
  char* digits = out.buffer + 1;  // room for a carry in front
  for (int k = 0; k < keep; ++k) digits[k] = digitAt(k);
  int length = keep;
  if (digitAt(keep) >= '5') {
    int i = keep - 1;
    for (; i >= 0 && digits[i] == '9'; --i) digits[i] = '0';
    if (i >= 0) {
      ++digits[i];
    } else {
      *--digits = '1';
      ++length;
      ++pointAt;
    }
  }
  int firstNonZero = 0;
  while (firstNonZero < pointAt && digits[firstNonZero] == '0') ++firstNonZero;
  out.integer = std::string_view(digits + firstNonZero, static_cast<std::size_t>(pointAt - firstNonZero));
  out.fraction = std::string_view(digits + pointAt, static_cast<std::size_t>(length - pointAt));
}

void AppendGrouped(std::string& out, std::string_view digits) {
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
    out += digits[i];
  }
}

// Lays the integer digits into the placeholders from the right; excess digits go out at the
// leftmost placeholder, "0" places with no digit show a zero, literals keep their places.
void AppendIntegerSection(std::string& out, const CompiledPattern& p, std::string_view digits) {
  const std::string& tokens = p.integerTokens;
  if (p.placeholders == 0) {  // ".00": the integer digits stand before the point
    out += tokens;
    out += digits;
    return;
  }
  const std::size_t count = digits.size();
  // What placeholder j (counted from the left) shows.
  const auto appendFill = [&](std::string& to, std::size_t j, char placeholder) {
    const std::size_t fromRight = p.placeholders - 1 - j;
    if (fromRight < count) {
      if (j == 0) to.append(digits.substr(0, count - fromRight));
      else to += digits[count - 1 - fromRight];
    } else if (placeholder == '0') {
      to += '0';
    }
  };
  std::size_t j = 0;
  if (p.grouping && !p.literalsInside) {
    std::string number;
    for (char c : tokens)
      if (IsPlaceholder(c)) appendFill(number, j++, c);
    out.append(tokens, 0, p.first);
    AppendGrouped(out, number);
    out.append(tokens, p.last + 1);
    return;
  }
  for (char c : tokens) {
    if (IsPlaceholder(c)) appendFill(out, j++, c);
    else out += c;
  }
}

// Fraction digit `place` (from 1); the places beyond the rounded digits are zeros.
char FractionDigit(std::string_view fraction, std::size_t place) {
  return place <= fraction.size() ? fraction[place - 1] : '0';
}

// Fraction digits into the fraction section's placeholders; trailing "#" places drop their zeros.
void AppendFractionSection(std::string& out, const CompiledPattern& p, std::string_view fraction) {
  const std::string& section = p.fractionSection;
  std::size_t shown = static_cast<std::size_t>(p.decimals);  // places shown, from the left
  for (std::size_t i = section.size(); i-- > 0 && shown > 0;) {
    if (!IsPlaceholder(section[i])) continue;
    if (section[i] != '#' || FractionDigit(fraction, shown) != '0') break;
    --shown;
  }
  std::size_t place = 0;
  for (char c : section) {
    if (!IsPlaceholder(c)) out += c;
    else if (place++ < shown) out += FractionDigit(fraction, place);
  }
}

}  // namespace

std::string Format(double value, std::string_view pattern) {
  if (!std::isfinite(value)) throw Overflow();
  const CompiledPattern& compiled = Compiled(pattern);
  RoundedDigits digits;
  Round(std::fabs(value), compiled.decimals, digits);

  std::string out;
  out.reserve(pattern.size() + digits.integer.size() + 8);
  if (value < 0) out += '-';
  AppendIntegerSection(out, compiled, digits.integer);
  if (compiled.hasPoint) {
    out += '.';
    AppendFractionSection(out, compiled, digits.fraction);
  }
  return out;
}

}  // namespace benchlog
