#include "sim_dataset.hpp"

#include <algorithm>
#include <cmath>

#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "dataset/dataset_text.hpp"
#include "dataset/index_line_rules.hpp"
#include "session/index_record.hpp"

namespace ocosim {
namespace {

using benchlog::Columns;
using benchlog::KeyAt;

std::string WithoutBlanks(std::string_view text) { return benchlog::ReplaceAll(text, " ", ""); }

// The hemisphere letters and source word of a position line; the columns move with the layout.
void ReadPosition(std::string_view line, const benchlog::IndexRecord& fields, SimMark& mark) {
  const bool longTag = benchlog::IsLongDatumLayout(line);
  const char north = benchlog::ColumnChar(line, longTag ? 44 : 40);
  const char west = benchlog::ColumnChar(line, longTag ? 63 : 62);
  const std::string& lat = fields.Latitude;  // "DD MM SS.sssss"
  const std::string& lon = fields.Longitude;  // "DDD MM SS.sssss"
  mark.hasPosition = !benchlog::IsBlank(lat) && !benchlog::IsBlank(lon);
  mark.latitude = std::string(1, north == 'S' ? 'S' : 'N') + WithoutBlanks(lat);
  mark.longitude = std::string(1, west == 'E' ? 'E' : 'W') + WithoutBlanks(lon);
  const double latitude = benchlog::Val(Columns(lat, 1, 2)) + benchlog::Val(Columns(lat, 4, 2)) / 60.0 +
                          benchlog::Val(Columns(lat, 7, 8)) / 3600.0;
  const double longitude = benchlog::Val(Columns(lon, 1, 3)) + benchlog::Val(Columns(lon, 5, 2)) / 60.0 +
                           benchlog::Val(Columns(lon, 8, 8)) / 3600.0;
  mark.latitudeDegrees = north == 'S' ? -latitude : latitude;
  mark.longitudeDegrees = west == 'E' ? -longitude : longitude;
  mark.positionSource = benchlog::Trim(benchlog::Mid(line, 69));
}

// The facts that the index record does not keep: state, full county name, quad, hemispheres.
void ReadOwnKeys(std::string_view line, const benchlog::IndexRecord& fields, SimMark& mark) {
  if (KeyAt(line, 10, "STATE/COUNTY")) {
    mark.state = std::string(Columns(line, 25, 2));
    mark.county = benchlog::Trim(benchlog::Mid(line, 28));
  } else if (KeyAt(line, 10, "USGS QUAD")) {
    const std::string quad = benchlog::Mid(line, 25);
    mark.quad = benchlog::Trim(quad.substr(0, quad.find('(')));
  } else if (benchlog::IsPositionLine(line) && !mark.hasPosition) {
    ReadPosition(line, fields, mark);
  }
}

SimMark Finish(SimMark mark, const benchlog::IndexRecord& fields) {
  if (!fields.Pid.empty()) mark.pid = fields.Pid;
  mark.designation = benchlog::Trim(fields.Designation);
  mark.horzCode = benchlog::IsBlank(fields.HorzOrder) ? '.' : fields.HorzOrder[0];
  mark.vertCode = benchlog::IsBlank(fields.VertOrder) ? '.' : fields.VertOrder[0];
  mark.cors = fields.CorsFlag == "C";
  return mark;
}

}  // namespace

SimDataset SimDataset::Read(const std::string& path) {
  SimDataset dataset;
  benchlog::LineReader reader(path);
  std::string_view line;
  SimMark mark;
  benchlog::IndexRecord fields;
  bool inDescription = false;
  while (reader.ReadLine(line)) {
    if (benchlog::IsHeaderLine(line)) {
      if (inDescription) dataset.marks_.push_back(Finish(std::move(mark), fields));
      mark = SimMark();
      fields = benchlog::IndexRecord();
      inDescription = true;
    } else if (!inDescription) {
      continue;
    } else if (benchlog::IsDataLine(line)) {
      if (mark.pid.empty() && !benchlog::IsBlank(benchlog::LinePid(line))) mark.pid = benchlog::LinePid(line);
      benchlog::ApplyIndexLineRules(line, fields);
      ReadOwnKeys(line, fields, mark);
    }
    mark.lines.emplace_back(line);
  }
  if (inDescription) dataset.marks_.push_back(Finish(std::move(mark), fields));
  return dataset;
}

const SimMark* SimDataset::Find(const std::string& pid) const {
  for (const SimMark& mark : marks_)
    if (mark.pid == pid) return &mark;
  return nullptr;
}

double DistanceMiles(double latitude1, double longitude1, double latitude2, double longitude2) {
  constexpr double kRadiusMiles = 3958.8;
  constexpr double kRadiansPerDegree = 3.14159265358979323846 / 180.0;
  const double p1 = latitude1 * kRadiansPerDegree;
  const double p2 = latitude2 * kRadiansPerDegree;
  const double dp = p2 - p1;
  const double dl = (longitude2 - longitude1) * kRadiansPerDegree;
  const double h = std::sin(dp / 2) * std::sin(dp / 2) + std::cos(p1) * std::cos(p2) * std::sin(dl / 2) * std::sin(dl / 2);
  return 2 * kRadiusMiles * std::asin(std::min(1.0, std::sqrt(h)));
}

}  // namespace ocosim
