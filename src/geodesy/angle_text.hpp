#pragma once
// The text forms of an angle that the dataset, the dialogs and the listings use, and the reading of
// them back. Radians in and out; the sign is written once, in front of the degrees.
#include <cstdint>
#include <string>
#include <string_view>

namespace benchlog {

// Format codes of RadToDms, for 38 53 23.12345 with 5 decimals:
enum AngleFormat : std::int16_t {
  kDmsPointed = 1,  // "38.532312345": degrees, point, minutes, seconds without their point
  kDmsBlank = 2,    // "38 53 23.12345"
  kDmsHyphen = 3,   // "38-53-23.12345"
  kDmsPacked = 4,   // "385323.12345"
  kDmsSymbols = 5,  // "38°53'23.12345\"" with the degree sign of the code page (176)
};

// Writes `angle` (radians) into `text` as degrees, minutes and seconds in the form `formatCode`
// (1 to 5; any other code leaves `text` as it came), seconds with `decimals` places (0 or more).
// The seconds are single precision, so no more than about seven significant digits of them are
// meaningful. Seconds at or above 59.5 (0 decimals), 59.95 (1), 59.995 (2) ..., and any that would
// be written as 60, roll into the minute, minutes into the degree, and a whole 360 00 00 wraps to
// 0. `zeroFill` writes the degrees as "000"; else `pad` right-justifies them in three columns
// behind the sign; else "##0".
// Throws RuntimeFailure Overflow for degrees beyond the 16-bit range.
void RadToDms(double angle, std::string& text, std::int16_t formatCode, std::int16_t decimals, bool pad,
              bool zeroFill);

// Reads an angle text: "DD MM SS.s", "DD-MM-SS", "DD,MM,SS", "DDD:MM", "DDMMSS.s", "DD.MMSSs", a
// leading "-" for a negative angle. `angleText` is trimmed in place and loses its leading "-".
// On success `radians` holds the angle and `errorText` is empty; otherwise `errorText` says why
// ("<*** Invalid angle - TEXT ***>", "<*** Invalid degrees input ***>", minutes, seconds, or a
// run-time failure's own words) and `radians` is 0. Callers test the error text.
void DmsToRad(std::string& angleText, double& radians, std::string& errorText);

// True when a packed DDDMMSS.sss text looks like an angle: no character below "." or "/", a first
// character no higher than "9", degrees no more than `maxDegrees`, minutes and seconds no more than
// 59. Only the first character is held to the upper limit.
bool IsPackedAngle(std::string_view text, double maxDegrees);

}  // namespace benchlog
