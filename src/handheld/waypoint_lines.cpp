#include "handheld/waypoint_lines.hpp"

#include <cmath>
#include <vector>

#include "common/dates.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "common/text_checks.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "handheld/hh_record.hpp"

namespace benchlog {
namespace {

// The text from 5 characters behind `key` (its name, "=" and the opening quote) up to the next
// double quote, or to the end of the line when no quote follows.
std::string AttributeText(std::string_view line, std::string_view key) {
  const std::size_t start = InStr(line, key) + 5;
  const std::size_t quote = InStr(line, "\"", start);
  return quote == 0 ? Mid(line, start) : Mid(line, start, quote - start);
}

// The rest of a tag's line in capitals, cut before a "<" that stands past its first place.
std::string TagValue(std::string_view line, std::size_t tagLength) {
  const std::string rest = UCase(Mid(line, tagLength + 1));
  const std::size_t open = InStr(rest, "<");
  return open > 1 ? Left(rest, open - 1) : rest;
}

std::string PackedDegrees(std::string_view degrees, bool zeroFill) {
  std::string text;
  RadToDms(std::fabs(RadOfDeg(Val(degrees))), text, kDmsPacked, 1, false, zeroFill);
  return text;
}

std::string_view Field(const std::vector<std::string_view>& fields, std::size_t index) {
  return index < fields.size() ? fields[index] : std::string_view();
}

}  // namespace

bool IsWaypointPid(std::string_view text) {
  return text.size() == 6 && IsAllCapitals(text.substr(0, 2)) && IsNumeric(text.substr(2));
}

bool GpxReader::ReadLine(std::string_view rawLine, std::string& record) {
  const std::string line = LCase(Trim(rawLine));
  if (StartsWith(line, "<wpt ")) {
    latitude_ = AttributeText(line, "lat=");
    longitude_ = AttributeText(line, "lon=");
  } else if (StartsWith(line, "<name>")) {
    pid_ = TagValue(line, 6);
    if (!IsWaypointPid(pid_)) pid_.clear();
  } else if (StartsWith(line, "<cmt>")) {
    record = FormatHhRecord(
        {pid_, TagValue(line, 5), PackedDegrees(latitude_, false), PackedDegrees(longitude_, true), "HH2", agency_});
    return true;
  }
  return false;
}

GarminReader::Result GarminReader::ReadLine(std::string_view line, std::string& record) {
  const std::vector<std::string_view> fields = SplitViews(line, "\t");
  const std::string_view kind = fields[0];
  if (kind == "Grid") grid_ = Field(fields, 1);
  if (kind == "Datum") datum_ = Field(fields, 1);
  if (kind == "Header" && Field(fields, 1) == "Name" && Field(fields, 3) == "Type" && Field(fields, 4) == "Position")
    formatGood_ = true;
  if (kind != "Waypoint") return Result::kNone;

  if (grid_ != kGrid) return Result::kInvalidGrid;
  if (datum_ != "NAD83") return Result::kInvalidDatum;
  if (!formatGood_) return Result::kInvalidFormat;
  const std::string_view position = Field(fields, 4);
  const std::string latitude = ReplaceAll(Left(position, 11), " ", "");
  std::string longitude = ReplaceAll(Mid(position, 13), " ", "");
  if (longitude.size() == 9) longitude.insert(1, "0");
  const std::string name(Field(fields, 1));
  const std::string comment(Field(fields, 2));
  // A comment that the receiver filled with its date tells nothing of the mark.
  if (name.size() != 6 || IsDate(Left(comment, 9))) return Result::kNone;
  record = FormatHhRecord({name, UCase(comment), latitude, longitude, "HH2", agency_});
  return Result::kRecord;
}

}  // namespace benchlog
