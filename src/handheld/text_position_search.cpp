#include "handheld/text_position_search.hpp"

#include <cmath>

#include "common/line_input.hpp"
#include "common/line_writer.hpp"
#include "common/print_line.hpp"
#include "common/text.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "handheld/hh_record.hpp"
#include "handheld/text_positions.hpp"

namespace benchlog {
namespace {

constexpr double kCloseSeconds = 15;

// What the lines of the current Description have told so far.
struct MarkState {
  std::string designation, condition, agency;
  std::string publishedLat, publishedLon;
  void Clear() { designation.clear(), condition.clear(), agency.clear(); }
};

bool ColumnsAre(std::string_view line, std::size_t start, std::string_view key) {
  return line.size() >= start - 1 + key.size() && line.substr(start - 1, key.size()) == key;
}

double AngleOf(std::string text) {
  double radians = 0;
  std::string error;
  DmsToRad(text, radians, error);
  return radians;
}

}  // namespace

double SecondsApart(const std::string& published, const std::string& found) {
  return std::fabs(DegOfRad(AngleOf(published) - AngleOf(Mid(found, 2))) * 3600);
}

void SearchTextPositions(const std::string& datasetPath, const std::string& hhPath, const std::string& reportPath,
                         Progress& progress) {
  LineReader dataset(datasetPath);
  LineWriter hh(hhPath);
  LineWriter report(reportPath);
  MarkState mark;
  std::string previous;
  std::string text, latitude, longitude;
  PrintLine reportLine;
  for (std::string_view line; dataset.ReadLine(line); previous.assign(line)) {
    if (!line.empty() && line[0] == '1') {
      mark.Clear();
      if (progress.max > progress.value) {
        ++progress.value;
        progress.Refresh();
      }
      continue;
    }
    if (ColumnsAre(line, 69, "HD_HELD")) continue;
    if (ColumnsAre(line, 10, "DESIGNATION")) mark.designation = Trim(Mid(line, 25, 30));
    if (ColumnsAre(line, 10, "NAD 83")) {
      mark.publishedLat = ReplaceAll(Mid(line, 25, 14), " ", "");
      mark.publishedLon = ReplaceAll(Mid(line, 46, 15), " ", "");
    }
    if (ColumnsAre(line, 10, "HISTORY")) {
      mark.agency = Mid(line, 50, 6);
      mark.condition = Mid(line, 33, 1);
    }
    if (!ColumnsAre(line, 8, "'")) continue;
    text.assign(previous).append(" ").append(Mid(line, 9));
    if (!FindPositionInText(text, latitude, longitude) || mark.designation.empty() || mark.condition != "G") continue;
    if (SecondsApart(mark.publishedLat, latitude) < kCloseSeconds &&
        SecondsApart(mark.publishedLon, longitude) < kCloseSeconds)
      hh.WriteLine(FormatHhRecord({"", mark.designation, latitude, longitude, "HH2", mark.agency}));
    report.Write(reportLine.Write("|" + mark.designation).Tab(40).Write("|" + latitude + "|" + longitude).Finish());
    mark.Clear();
  }
  hh.Close();
  report.Close();
}

}  // namespace benchlog
