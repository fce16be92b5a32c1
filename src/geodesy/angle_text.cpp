#include "geodesy/angle_text.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/rounding.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/format_padded.hpp"

namespace benchlog {
namespace {

constexpr char kDegreeSign = static_cast<char>(176);

// A single-precision value as the decimal number its seven significant digits show, so that
// formatting never brings out digits the single does not hold.
double SingleAsDecimal(float value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.7g", static_cast<double>(value));
  return std::strtod(buffer, nullptr);
}

std::string SecondsText(float seconds, int decimals) {
  if (decimals == 0) return Format(SingleAsDecimal(seconds), "00");
  return Format(SingleAsDecimal(seconds), "00." + std::string(static_cast<std::size_t>(decimals), '0'));
}

std::string DegreesText(const std::string& sign, std::int16_t degrees, bool pad, bool zeroFill) {
  if (zeroFill) return sign + Format(degrees, "000");
  if (pad) return sign + FormatPadded(static_cast<double>(degrees), "##0");
  return sign + Format(degrees, "##0");
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
  std::string sign;
  if (value < 0) {
    value = -value;
    sign = "-";
  }
  std::int16_t degrees = CInt(std::floor(value));
  std::int16_t minutes = CInt(std::floor((value - degrees) * 60.0));
  float seconds = static_cast<float>(((value - degrees) * 60.0 - minutes) * 60.0);

  const int places = std::max<int>(0, decimals);
  const std::string nines(static_cast<std::size_t>(places), '9');
  const float threshold = static_cast<float>(Val("59." + nines + "5"));
  std::string s = SecondsText(seconds, places);
  // Single-precision seconds just below the threshold can still be written as 60: the text decides.
  if (seconds >= threshold || Val(s) >= 60.0) {
    seconds = 0.0f;
    s = SecondsText(seconds, places);
    minutes = AddInt16(minutes, 1);
    if (minutes == 60) {
      minutes = 0;
      degrees = AddInt16(degrees, 1);
    }
  }
  if (seconds == 0.0f && degrees == 360 && minutes == 0) degrees = 0;

  const std::string d = DegreesText(sign, degrees, pad, zeroFill);
  const std::string m = Format(minutes, "00");
  switch (formatCode) {
    case kDmsPointed: text = d + "." + m + ReplaceAll(s, ".", ""); break;
    case kDmsBlank: text = d + " " + m + " " + s; break;
    case kDmsHyphen: text = d + "-" + m + "-" + s; break;
    case kDmsPacked: text = d + m + s; break;
    case kDmsSymbols: text = d + kDegreeSign + m + "'" + s + "\""; break;
    default: break;
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
