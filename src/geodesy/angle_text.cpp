#include "geodesy/angle_text.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

#include "common/number_text.hpp"
#include "common/rounding.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "geodesy/angles.hpp"

namespace benchlog {
namespace {

constexpr char kDegreeSign = static_cast<char>(176);

// The seven significant digits that a single-precision value shows, as "%.7g" writes them:
// value = d0.d1...d6 x 10^exponent.
struct SevenDigits {
  char digits[7];
  int exponent;
  bool negative;
};

SevenDigits DigitsOf(float value) {
  char buffer[32];  // d.dddddde±xx
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, static_cast<double>(value),
                                     std::chars_format::scientific, 6);
  const char* text = buffer;
  SevenDigits out{};
  out.negative = value < 0;  // not -0
  if (*text == '-') ++text;
  out.digits[0] = text[0];
  std::copy(text + 2, text + 8, out.digits + 1);
  const char* e = text + 9;  // past the "e"
  std::from_chars(e + (*e == '+' ? 1 : 0), written.ptr, out.exponent);
  return out;
}

// Appends the seconds as Format writes them through "00" or "00.000..." (`places` zeros), rounded
// half away from zero. The 15 significant digits that Format rounds from are the seven shown
// digits followed by zeros, so rounding those seven digits gives the same text.
void AppendSeconds(std::string& out, const SevenDigits& value, int places) {
  const auto digitAt = [&](int weight) {  // the digit worth 10^weight
    const int k = value.exponent - weight;
    return k >= 0 && k < 7 ? value.digits[k] : '0';
  };
  const int top = std::max(value.exponent, 1);
  if (value.negative) out += '-';
  const std::size_t first = out.size();
  for (int weight = top; weight >= -places; --weight) out += digitAt(weight);
  if (digitAt(-places - 1) >= '5') {
    std::size_t i = out.size();
    while (i > first && out[i - 1] == '9') out[--i] = '0';
    if (i > first) ++out[i - 1];
    else out.insert(first, 1, '1');
  }
  if (places > 0) out.insert(out.end() - places, '.');
}

// Appends `value` with at least `width` digits, zero-filled, as Format(value, "00...") does.
void AppendInteger(std::string& out, int value, std::size_t width) {
  char buffer[16];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, value < 0 ? -value : value);
  const auto length = static_cast<std::size_t>(written.ptr - buffer);
  if (value < 0) out += '-';
  if (length < width) out.append(width - length, '0');
  out.append(buffer, length);
}

// The degrees: "000" when `zeroFill`, right-justified in three columns when `pad`, else "##0".
void AppendDegrees(std::string& out, bool negative, std::int16_t degrees, bool pad, bool zeroFill) {
  if (negative) out += '-';
  const std::size_t start = out.size();
  AppendInteger(out, degrees, zeroFill ? 3 : 1);
  const std::size_t length = out.size() - start;
  if (pad && !zeroFill && length < 3) out.insert(start, 3 - length, ' ');
}

// The seconds at or above which they roll into the minute: "59.9...95" read as a single.
float RollThreshold(int places) {
  static const std::array<float, 16> table = [] {
    std::array<float, 16> values{};
    for (std::size_t p = 0; p < values.size(); ++p)
      values[p] = static_cast<float>(Val("59." + std::string(p, '9') + "5"));
    return values;
  }();
  if (static_cast<std::size_t>(places) < table.size()) return table[static_cast<std::size_t>(places)];
  return static_cast<float>(Val("59." + std::string(static_cast<std::size_t>(places), '9') + "5"));
}

std::string InvalidAngle(const std::string& text) { return "<*** Invalid angle - " + text + " ***>"; }

// A field read as a number; a value beyond the double range is the run time's overflow.
double FieldValue(const std::string& field) {
  const double value = Val(field);
  if (!std::isfinite(value)) throw Overflow();
  return value;
}

bool HasRefusedCharacter(const std::string& text) {
  if (text.find_first_of("*#()") != std::string::npos) return true;
  return text.find('+', 1) != std::string::npos;
}

// The separator by priority, each counted only at position 2 or later; "" when none.
std::string ChooseSeparator(const std::string& text) {
  for (const char* candidate : {"-", " ", ",", ":", "."})
    if (InStr(text, candidate, 2) > 0) return candidate;
  return "";
}

struct Fields {
  std::string degrees, minutes, seconds;
};

// DDD.MMSSsss when the point stands before column 6, DDDMMSS.sss otherwise.
Fields PointedFields(const std::string& text) {
  const std::size_t p = InStr(text, ".");
  if (p < 6) return {Left(text, p - 1), Mid(text, p + 1, 2), Mid(text, p + 3, 2) + "." + Mid(text, p + 5)};
  return {Left(text, p - 5), Mid(text, p - 4, 2), Mid(text, p - 2)};
}

}  // namespace

void RadToDms(double angle, std::string& text, std::int16_t formatCode, std::int16_t decimals, bool pad,
              bool zeroFill) {
  double value = angle * 180.0 / kPi;
  const bool negative = value < 0;
  if (negative) value = -value;
  std::int16_t degrees = CInt(std::floor(value));
  std::int16_t minutes = CInt(std::floor((value - degrees) * 60.0));
  float seconds = static_cast<float>(((value - degrees) * 60.0 - minutes) * 60.0);

  const int places = std::max<int>(0, decimals);
  // Runs of this are formatted a line at a time, so the text is built in place without
  // intermediate strings: most of it fits the string's own small buffer.
  std::string s;
  AppendSeconds(s, DigitsOf(seconds), places);
  double written = 0;
  std::from_chars(s.data(), s.data() + s.size(), written);
  // Single-precision seconds just below the threshold can still be written as 60: the text decides.
  if (seconds >= RollThreshold(places) || written >= 60.0) {
    seconds = 0.0f;
    s.clear();
    AppendSeconds(s, DigitsOf(seconds), places);
    minutes = AddInt16(minutes, 1);
    if (minutes == 60) {
      minutes = 0;
      degrees = AddInt16(degrees, 1);
    }
  }
  if (seconds == 0.0f && degrees == 360 && minutes == 0) degrees = 0;
  if (formatCode < kDmsPointed || formatCode > kDmsSymbols) return;

  text.clear();
  AppendDegrees(text, negative, degrees, pad, zeroFill);
  switch (formatCode) {
    case kDmsPointed:
      text += '.';
      AppendInteger(text, minutes, 2);
      for (const char c : s)
        if (c != '.') text += c;
      break;
    case kDmsBlank:
    case kDmsHyphen: {
      const char separator = formatCode == kDmsBlank ? ' ' : '-';
      text += separator;
      AppendInteger(text, minutes, 2);
      text += separator;
      text += s;
      break;
    }
    case kDmsPacked:
      AppendInteger(text, minutes, 2);
      text += s;
      break;
    default:  // kDmsSymbols
      text += kDegreeSign;
      AppendInteger(text, minutes, 2);
      text += '\'';
      text += s;
      text += '"';
      break;
  }
}

void DmsToRad(std::string& angleText, double& radians, std::string& errorText) {
  radians = 0.0;
  errorText.clear();
  angleText = Trim(angleText);
  try {
    if (HasRefusedCharacter(angleText)) {
      errorText = InvalidAngle(angleText);
      return;
    }
    const bool negative = StartsWith(angleText, "-");
    if (negative) angleText.erase(0, 1);

    const std::string separator = ChooseSeparator(angleText);
    Fields fields;
    if (separator.empty()) {
      if (angleText.size() < 5) {
        errorText = InvalidAngle(angleText);
        return;
      }
      fields = {Left(angleText, angleText.size() - 4), Mid(angleText, angleText.size() - 3, 2), Right(angleText, 2)};
    } else if (separator == ".") {
      fields = PointedFields(angleText);
    } else {
      const std::vector<std::string> parts = Split(angleText, separator);
      fields.degrees = parts[0];
      if (parts.size() > 1) fields.minutes = parts[1];
      if (parts.size() > 2) fields.seconds = parts[2];
    }

    const double degrees = FieldValue(fields.degrees);
    const double minutes = FieldValue(fields.minutes);
    const double seconds = FieldValue(fields.seconds);
    // Each test overwrites the one before, so the last failing one speaks.
    if (degrees >= 360) errorText = "<*** Invalid degrees input ***>";
    if (minutes >= 60) errorText = "<*** Invalid minutes input ***>";
    if (seconds >= 60) errorText = "<*** Invalid seconds input ***>";
    if (!errorText.empty()) return;

    double total = degrees + minutes / 60.0 + seconds / 3600.0;
    if (negative) total = -total;
    radians = RadOfDeg(total);
  } catch (const RuntimeFailure& failure) {
    errorText = failure.description;
  }
}

bool IsPackedAngle(std::string_view text, double maxDegrees) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto code = static_cast<unsigned char>(text[i]);
    if (text[i] == '/' || code < 46 || static_cast<unsigned char>(text[0]) > 57) return false;
  }
  const std::size_t point = InStr(text, ".");
  const std::size_t p = point == 0 ? text.size() + 1 : point;
  const std::size_t k = p > 5 ? p - 5 : 0;
  if (Val(Left(text, k)) > maxDegrees) return false;
  if (Val(Mid(text, k + 1, 2)) > 59) return false;
  return Val(Mid(text, k + 3, 2)) <= 59;
}

}  // namespace benchlog
