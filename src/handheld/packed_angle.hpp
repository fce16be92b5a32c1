#pragma once
// The many ways a delimited file writes a latitude or a longitude, brought to the packed form of
// the HH record (DDMMSS.ss, DDDMMSS.ss) with the hemisphere apart.
#include <string>
#include <string_view>

namespace benchlog {

// A latitude and a longitude text of one line, and their hemisphere letters.
struct LineAngles {
  std::string latitude;
  std::string longitude;
  std::string latHemisphere = "N";
  std::string lonHemisphere = "W";
};

// A combined "LL" value: split before the first "W" that stands past the first character. A value
// without such a "W" (an east longitude, say) stays whole in the latitude and the longitude.
void SplitCombined(std::string_view value, LineAngles& angles);

// Takes a hemisphere letter out of the texts: a latitude holding "N" (else "S") gets that
// hemisphere and loses every such letter; a longitude holding "E" (else "W") likewise. A letter in
// the text beats the hemisphere column.
void TakeHemispheres(LineAngles& angles);

// Decimal degrees (the value read as a number) as packed degrees, minutes and seconds with five
// decimals and the degrees always three digits: 38.5 gives "0383000.00000".
std::string PackedFromDecimal(std::string_view degrees);

// The latitude in packed form, by its third character: "." decimal degrees; a blank, "-" or ","
// a separated form, whose separator is removed wherever it stands. Anything else stays as it is.
std::string PackLatitude(std::string_view latitude);

// The longitude in packed form, by its fourth and third characters ("." decimal degrees, else a
// blank, "-" or "," separator removed). A point at position 7 then gets a "0" in front of the
// text, which fills a two-digit degree field to three.
std::string PackLongitude(std::string_view longitude);

// The cut that sets the seconds' decimals: for order "4", technique "W" keeps 8 and 9 characters,
// "X" 9 and 10, "5" 6 and 7; anything else keeps all. A cut, not a rounding. Both are then trimmed.
void CutAngles(std::string_view order, std::string_view technique, LineAngles& angles);

}  // namespace benchlog
