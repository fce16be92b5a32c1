#include "handheld/packed_angle.hpp"

#include "common/number_text.hpp"
#include "common/text.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"

namespace benchlog {
namespace {

// Takes every `letter` out of `text` and tells whether it was there.
bool TakeLetter(std::string& text, char letter, std::string& hemisphere) {
  if (text.find(letter) == std::string::npos) return false;
  hemisphere = std::string(1, letter);
  text = ReplaceAll(text, std::string(1, letter), "");
  return true;
}

bool IsSeparator(char c) { return c == ' ' || c == '-' || c == ','; }

char At(std::string_view text, std::size_t position) {  // 1-based; 0 past the end
  return position <= text.size() ? text[position - 1] : '\0';
}

}  // namespace

void SplitCombined(std::string_view combined, LineAngles& angles) {
  const std::string value(combined);  // the angles' own texts may be what `combined` views
  const std::size_t w = InStr(value, "W", 2);
  if (w == 0) {
    angles.latitude = angles.longitude = value;
    return;
  }
  angles.latitude = Left(value, w - 1);
  angles.longitude = Mid(value, w);
}

void TakeHemispheres(LineAngles& angles) {
  if (!TakeLetter(angles.latitude, 'N', angles.latHemisphere)) TakeLetter(angles.latitude, 'S', angles.latHemisphere);
  if (!TakeLetter(angles.longitude, 'E', angles.lonHemisphere)) TakeLetter(angles.longitude, 'W', angles.lonHemisphere);
}

std::string PackedFromDecimal(std::string_view degrees) {
  std::string text;
  RadToDms(RadOfDeg(Val(degrees)), text, kDmsPacked, 5, false, true);
  return text;
}

std::string PackLatitude(std::string_view latitude) {
  const char third = At(latitude, 3);
  if (third == '.') return PackedFromDecimal(latitude);
  if (IsSeparator(third)) return ReplaceAll(latitude, std::string(1, third), "");
  return std::string(latitude);
}

std::string PackLongitude(std::string_view longitude) {
  const char third = At(longitude, 3);
  const char fourth = At(longitude, 4);
  std::string text(longitude);
  if (third == '.' || fourth == '.') {
    text = PackedFromDecimal(longitude);
  } else {
    for (const char separator : {' ', '-', ','}) {
      if (third == separator || fourth == separator) {
        text = ReplaceAll(text, std::string(1, separator), "");
        break;
      }
    }
  }
  if (InStr(text, ".") == 7) text.insert(0, "0");
  return text;
}

void CutAngles(std::string_view order, std::string_view technique, LineAngles& angles) {
  if (order == "4") {
    std::size_t lat = 0, lon = 0;
    if (technique == "W") lat = 8, lon = 9;
    if (technique == "X") lat = 9, lon = 10;
    if (technique == "5") lat = 6, lon = 7;
    if (lat != 0) {
      angles.latitude = Left(angles.latitude, lat);
      angles.longitude = Left(angles.longitude, lon);
    }
  }
  angles.latitude = Trim(angles.latitude);
  angles.longitude = Trim(angles.longitude);
}

}  // namespace benchlog
