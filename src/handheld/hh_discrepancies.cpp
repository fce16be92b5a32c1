#include "handheld/hh_discrepancies.hpp"

#include <cmath>

#include "common/print_line.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "common/text_checks.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"

namespace benchlog {
namespace {

constexpr double kTenSeconds = 10.0 / 3600.0;  // degrees

class RecordReport {
 public:
  explicit RecordReport(std::string pid) : pid_(std::move(pid)) {}

  bool PidCleared() const { return pid_.empty(); }
  // A problem line under the record's PID, which is then cleared for the lines after it.
  void Problem(const std::string& text) {
    text_ += PrintLine().Write(pid_).Tab(8).Write(text).Finish();
    pid_.clear();
  }
  void Line(const std::string& text) { text_ += text + kCrLf; }
  std::string Text() && { return std::move(text_); }

 private:
  std::string pid_;
  std::string text_;
};

// An angle text without its hemisphere letter in radians; a text that is no angle reads as 0.
double AngleOf(const std::string& text) {
  std::string angle = Mid(text, 2);
  double radians = 0;
  std::string error;
  DmsToRad(angle, radians, error);
  return radians;
}

// The tests of one coordinate: its quality against the database's decimals, then its distance.
void TestPosition(RecordReport& report, const std::string& hhValue, const std::string& dbValue,
                  const std::string& quality, const char* caption, bool latitude) {
  const std::size_t limit = quality == "HH1" ? 2 : 1;
  if (DecimalCount(dbValue) >= limit && (latitude || !report.PidCleared()))
    report.Problem("HH quality equal to or less than DB quality.");
  if (std::abs(AngleOf(hhValue) - AngleOf(dbValue)) > RadOfDeg(kTenSeconds))
    report.Problem(caption + hhValue + ") is more that 10 seconds different from DB (" + dbValue + ")");
}

}  // namespace

std::string DiscrepancyQuery(const std::string& pid) { return "/CORS-Proxy/neighbors41/discrep_for_one?PID=" + pid; }

std::string DiscrepancyReportPath(const std::string& hhPath) {
  return Left(hhPath, hhPath.size() >= 4 ? hhPath.size() - 4 : 0) + ".rpt";
}

std::string RecordProblems(const std::vector<std::string>& fields, std::string_view answer) {
  RecordReport report(fields[0]);
  const std::vector<std::string> rows = Split(UCase(answer), "<TR>");
  for (std::size_t r = 1; r < rows.size(); ++r) {
    const std::vector<std::string> cells = Split(rows[r], "<TD>");
    if (cells.size() < 3) throw SubscriptOutOfRange();
    const std::string key = StripHtmlTags(cells[1]);
    std::string value = Trim(StripHtmlTags(cells[2]));
    if (value == "NULL") value.clear();
    if (key == "UID" && value == "0") {
      report.Line(fields[0] + " - PID not found in DB.");
      break;
    }
    if (key == "DESIGNATION" && fields[1] != value)
      report.Problem("HH designation (" + fields[1] + ") does not match DB value (" + value + ")");
    else if (key == "NAD 83 LAT")
      TestPosition(report, fields[2], value, fields[4], "HH 83 latitude (", true);
    else if (key == "NAD 83 LON")
      TestPosition(report, fields[3], value, fields[4], "HH 83 longitude (", false);
  }
  return std::move(report).Text();
}

}  // namespace benchlog
