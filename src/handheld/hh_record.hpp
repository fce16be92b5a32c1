#pragma once
// The hand-held (HH) file: the text that carries positions observed with a hand-held receiver to
// the agency's submission process. One record a line, CR LF line ends, no header:
//   PID|designation|latitude|longitude|quality|agency
// e.g. "AA1234|OLD MILL|N391544.12|W0771234.56|HH1|LOCSUR". The angles are packed DDMMSS.ss
// (latitude) and DDDMMSS.ss (longitude), each behind its hemisphere letter where the writer has one;
// "HH1" carries two decimals of seconds, "HH2" one.
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

struct HhRecord {
  std::string pid;
  std::string designation;
  std::string latitude;   // with its hemisphere letter, as written
  std::string longitude;  // likewise
  std::string quality;    // "HH1" or "HH2"
  std::string agency;
};

// The record's line, without its CR LF.
std::string FormatHhRecord(const HhRecord& record);

// The fields of an HH line split at "|": 0 PID, 1 designation, 2 latitude, 3 longitude, 4 quality,
// 5 agency. A short line gives fewer fields; the reader decides what it needs.
std::vector<std::string> HhFields(std::string_view line);

// The HH file made from an input file: its path without the last extension, then "_hh.txt".
std::string HhPathFor(std::string_view inputPath);

// The quality a technique gives: "X" is "HH1", anything else "HH2".
std::string HhQuality(std::string_view technique);

// True for a mark's permanent identifier: 6 characters, two capitals and a number ("AA1234").
bool IsPid(std::string_view text);

}  // namespace benchlog
