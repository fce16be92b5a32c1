#pragma once
// The waypoint files of hand-held receivers, read line by line into HH records of quality "HH2".
#include <string>
#include <string_view>

namespace benchlog {

// GPX: only tags that start their (trimmed, lower-cased) lines count. "<wpt " gives the position,
// "<name>" the PID (empty unless it passes the PID test), and "<cmt>" the designation, which
// writes the record. The angles are packed without hemisphere letters and without their sign.
class GpxReader {
 public:
  explicit GpxReader(std::string agency) : agency_(std::move(agency)) {}
  // True when the line completes a record, which is then in `record` (without CR LF).
  bool ReadLine(std::string_view line, std::string& record);

 private:
  std::string agency_;
  std::string latitude_, longitude_, pid_;
};

// True for a PID as a receiver's name may hold it: 6 characters, the first two capitals, the
// last four a number.
bool IsWaypointPid(std::string_view text);

// Garmin text export: "Grid", "Datum" and "Header" lines set the file's form, and each "Waypoint"
// line is checked against it before it gives a record.
class GarminReader {
 public:
  enum class Result { kNone, kRecord, kInvalidGrid, kInvalidDatum, kInvalidFormat };
  static constexpr const char* kGrid = "Lat/Lon hddd\xB0mm'ss.s\"";
  explicit GarminReader(std::string agency) : agency_(std::move(agency)) {}
  Result ReadLine(std::string_view line, std::string& record);

 private:
  std::string agency_;
  std::string grid_, datum_;
  bool formatGood_ = false;
};

}  // namespace benchlog
