#include "mark_list_pages.hpp"

#include <cstdio>
#include <vector>

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace ocosim {
namespace {

using benchlog::Left;
using benchlog::Mid;

std::string Padded(std::string_view text, std::size_t width) {
  std::string out = Left(text, width);
  out.resize(width, ' ');
  return out;
}

std::string RecordLine(const std::string& prefix, const SimMark& mark) {
  std::string line = prefix + Padded(mark.pid, 6) + " " + mark.horzCode + " " + mark.vertCode + " ";
  line += Padded(mark.latitude, 11) + "|N " + Padded(mark.longitude, 12);
  line = Padded(line, 50) + "|" + Padded(mark.designation, 30);
  return line;
}

std::string Rule() { return "|----|------|-|-|-----------|---------------------|" + std::string(30, '-'); }

// The heading row: "PID" in column 7 and a flag column at 29 that is never "N".
std::string Heading(const std::string& first) {
  return Padded(first + "PID    H V LATITUDE   |F LONGITUDE", 50) + "|DESIGNATION";
}

HttpAnswer ListPage(const std::string& title, const std::string& headingStart, const std::vector<std::string>& records) {
  std::vector<std::string> lines = {" " + title, " " + std::to_string(records.size()) + " marks found.", "", Rule(),
                                    Heading(headingStart), Rule()};
  lines.insert(lines.end(), records.begin(), records.end());
  lines.push_back(Rule());
  lines.push_back(" End of list.");
  return HtmlPage("OCO mark list", lines);
}

std::string DistanceField(double miles) {
  char text[16];
  std::snprintf(text, sizeof text, miles < 99.95 ? "%4.1f" : "%4.0f", miles);
  return Left(text, 4);
}

}  // namespace

bool TypeKeeps(const std::string& typeCode, const SimMark& mark) {
  return !benchlog::StartsWith(typeCode, "COR") || mark.cors;
}

double PackedDegrees(const std::string& text) {
  const char hemisphere = text.empty() ? 'N' : text[0];
  const std::string digits = Mid(text, 2);
  const std::size_t point = benchlog::InStr(digits, ".");
  const std::size_t p = point == 0 ? digits.size() + 1 : point;
  const std::size_t k = p > 5 ? p - 5 : 0;
  const double degrees = benchlog::Val(Left(digits, k)) + benchlog::Val(Mid(digits, k + 1, 2)) / 60.0 +
                         benchlog::Val(Mid(digits, k + 3)) / 3600.0;
  return hemisphere == 'S' || hemisphere == 'E' ? -degrees : degrees;
}

HttpAnswer CountyListPage(const SimDataset& dataset, const benchlog::FipsIndex& fips, const std::string& state,
                          const std::string& fipsCode, const std::string& typeCode) {
  std::vector<std::string> records;
  for (const SimMark& mark : dataset.Marks()) {
    if (mark.state != state || !TypeKeeps(typeCode, mark)) continue;
    if (fips.LookUp(state, mark.county) == fipsCode) records.push_back(RecordLine("|....|", mark));
  }
  return ListPage("Marks of county " + fipsCode + ", " + state + ", type " + typeCode, "|    |", records);
}

HttpAnswer RadiusListPage(const SimDataset& dataset, const std::string& latitude, const std::string& longitude,
                          const std::string& miles, const std::string& typeCode) {
  const double centreLatitude = PackedDegrees(latitude);
  const double centreLongitude = PackedDegrees(longitude);
  const double radius = benchlog::Val(miles);
  std::vector<std::string> records;
  for (const SimMark& mark : dataset.Marks()) {
    if (!mark.hasPosition || !TypeKeeps(typeCode, mark)) continue;
    const double distance =
        DistanceMiles(centreLatitude, centreLongitude, mark.latitudeDegrees, mark.longitudeDegrees);
    if (distance <= radius) records.push_back(RecordLine("|" + DistanceField(distance) + "|", mark));
  }
  return ListPage("Marks within " + miles + " miles of " + latitude + " " + longitude + ", type " + typeCode,
                  "|dist|", records);
}

HttpAnswer ProjectListPage(const SimDataset& dataset, const std::string& projectId, const std::string& typeCode) {
  const std::string prefix = Left(projectId, 2);
  std::vector<std::string> records;
  for (const SimMark& mark : dataset.Marks())
    if (prefix.size() == 2 && benchlog::StartsWith(mark.pid, prefix) && TypeKeeps(typeCode, mark))
      records.push_back(RecordLine("|....|", mark));
  return ListPage("Marks of project " + projectId + ", type " + typeCode, "|    |", records);
}

}  // namespace ocosim
