#pragma once
// Latitudes and longitudes written in the free text of a Description, found by fixed patterns.
// The text is first mapped to a pattern image, in which every digit is "D", the letters "N", "W",
// "L", "O", the blank, "-" and "." stand, and every other character is a blank; the patterns are
// then plain substrings of that image.
#include <string>
#include <string_view>

namespace benchlog {

std::string PatternImage(std::string_view text);

// The first latitude pattern that the text holds, cut from the text and packed behind "N"
// ("N391544.5"); empty when none matches.
std::string FindLatitudeInText(std::string_view text);
// Likewise the longitude, behind "W" ("W0771234.5").
std::string FindLongitudeInText(std::string_view text);

// Both at once, as the search of a Description's text needs them: true when both are found, and
// then `latitude` and `longitude` hold them.
bool FindPositionInText(std::string_view text, std::string& latitude, std::string& longitude);

}  // namespace benchlog
