#include "handheld/text_positions.hpp"

#include <array>

#include "common/text.hpp"

namespace benchlog {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

enum Removed { kNothing, kHyphens, kBlanks, kBlanksAndApostrophes };

struct TextPattern {
  const char* image;
  std::size_t offset;  // the cut starts this far behind the match
  std::size_t length;
  Removed removed;
  bool letterInFront;  // the hemisphere letter goes in front; else the cut holds it
  bool zeroInFront = false;  // a two-digit degree field filled to three
};

// Tried in order; the first match wins. Some cuts are shorter than their patterns (the third
// longitude row loses its last digit), and that stands.
constexpr std::array<TextPattern, 9> kLatitudePatterns{{
    {"NDD-DD-DD.D", 0, 11, kHyphens, false},
    {"L DD DD DD.D", 2, 10, kBlanks, true},
    {" DD-DD-DD.D", 1, 10, kHyphens, true},
    {"NDD DD DD.D", 0, 11, kBlanksAndApostrophes, false},
    {" DD-DD-DD.DN", 1, 10, kHyphens, true},
    {" DD DD DD.DN", 1, 10, kBlanks, true},
    {"NDDDDDD.D ", 0, 9, kNothing, false},
    {"L  .  DD DD DD.D", 6, 10, kBlanksAndApostrophes, true},
    {"L  . DD DD DD.D", 5, 10, kBlanksAndApostrophes, true},
}};

constexpr std::array<TextPattern, 9> kLongitudePatterns{{
    {"WDDD-DD-DD.D", 0, 12, kHyphens, false},
    {"LO DD DD DD.D", 3, 10, kBlanks, true, true},
    {" DDD-DD-DD.D", 1, 10, kHyphens, true},
    {"WDDD DD DD.D", 0, 12, kBlanksAndApostrophes, false},
    {" DDD-DD-DD.DW", 1, 11, kHyphens, true},
    {" DDD DD DD.DW", 1, 11, kBlanks, true},
    {"WDDDDDDD.D", 0, 10, kNothing, false},
    {"LON .  DDD DD DD.D", 7, 11, kBlanksAndApostrophes, true},
    {"LON . DDD DD DD.D", 6, 11, kBlanksAndApostrophes, true},
}};

std::string Remove(std::string text, Removed removed) {
  if (removed == kHyphens) return ReplaceAll(text, "-", "");
  if (removed == kBlanks || removed == kBlanksAndApostrophes) text = ReplaceAll(text, " ", "");
  if (removed == kBlanksAndApostrophes) text = ReplaceAll(text, "'", "");
  return text;
}

template <std::size_t N>
std::string FindInImage(std::string_view text, std::string_view image, const std::array<TextPattern, N>& patterns,
                        const char* letter) {
  for (const TextPattern& pattern : patterns) {
    const std::size_t at = InStr(image, pattern.image);
    if (at == 0) continue;
    std::string cut = Mid(text, at + pattern.offset, pattern.length);
    if (pattern.zeroInFront) cut.insert(0, "0");
    cut = Remove(cut, pattern.removed);
    return pattern.letterInFront ? letter + cut : cut;
  }
  return "";
}

}  // namespace

std::string PatternImage(std::string_view text) {
  std::string image(text.size(), ' ');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (IsDigit(c)) image[i] = 'D';
    else if (c == 'N' || c == 'W' || c == 'L' || c == 'O' || c == ' ' || c == '-' || c == '.') image[i] = c;
  }
  return image;
}

std::string FindLatitudeInText(std::string_view text) {
  return FindInImage(text, PatternImage(text), kLatitudePatterns, "N");
}

std::string FindLongitudeInText(std::string_view text) {
  return FindInImage(text, PatternImage(text), kLongitudePatterns, "W");
}

bool FindPositionInText(std::string_view text, std::string& latitude, std::string& longitude) {
  latitude.clear();
  longitude.clear();
  // Every pattern ends in seconds with a decimal, "DD.D": most text lines have none, and need no search.
  bool secondsFound = false;
  for (std::size_t i = 2; i + 1 < text.size() && !secondsFound; ++i)
    secondsFound = text[i] == '.' && IsDigit(text[i - 1]) && IsDigit(text[i - 2]) && IsDigit(text[i + 1]);
  if (!secondsFound) return false;
  const std::string image = PatternImage(text);
  latitude = FindInImage(text, image, kLatitudePatterns, "N");
  if (latitude.empty()) return false;
  longitude = FindInImage(text, image, kLongitudePatterns, "W");
  return !longitude.empty();
}

}  // namespace benchlog
