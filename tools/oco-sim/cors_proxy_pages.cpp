#include "cors_proxy_pages.hpp"

#include <utility>

namespace ocosim {
namespace {

HttpAnswer TablePage(const std::string& title, const std::string& heading, const std::vector<std::string>& rows) {
  HttpAnswer answer;
  answer.body = "<HTML><HEAD><TITLE>" + title + "</TITLE></HEAD>\r\n<BODY>\r\n<TABLE>\r\n" + heading + "\r\n";
  for (const std::string& row : rows) answer.body += row + "\r\n";
  answer.body += "</TABLE>\r\n</BODY></HTML>\r\n";
  return answer;
}

std::string Cells(const std::vector<std::string>& values) {
  std::string row = "<TR>";
  for (const std::string& value : values) row += "<TD>" + value + "</TD>";
  return row + "</TR>";
}

}  // namespace

HttpAnswer CorsPidsPage(const SimDataset& dataset, const std::string& state) {
  std::vector<std::string> rows;
  for (const SimMark& mark : dataset.Marks())
    if (mark.cors && mark.state == state) rows.push_back(Cells({mark.pid}));
  return TablePage("CORS of " + state, "<TR><TH>PID</TH></TR>", rows);
}

HttpAnswer TownsPage(const std::vector<SimTown>& towns, const std::string& state) {
  std::vector<std::string> rows;
  for (const SimTown& town : towns) rows.push_back("  " + Cells({town.name, town.latitude, town.longitude, town.county}));
  return TablePage("Towns of " + state, "  <TR><TH>Town</TH><TH>Latitude</TH><TH>Longitude</TH><TH>County</TH></TR>",
                   rows);
}

HttpAnswer DiscrepancyPage(const SimDataset& dataset, const std::string& pid) {
  const SimMark* mark = dataset.Find(pid);
  std::vector<std::pair<std::string, std::string>> values = {
      {"UID", "0"}, {"DESIGNATION", "NULL"}, {"NAD 83 LAT", "NULL"}, {"NAD 83 LON", "NULL"},
      {"POS SOURCE", "NULL"}, {"POS QUALITY", "NULL"}, {"POS TECH", "NULL"}};
  if (mark) {
    values[0].second = std::to_string(100001 + (mark - dataset.Marks().data()));
    values[1].second = mark->designation;
    if (mark->hasPosition) {
      values[2].second = mark->latitude;
      values[3].second = mark->longitude;
      values[4].second = mark->positionSource;
    }
  }
  HttpAnswer answer;
  answer.body = "<HTML><HEAD><TITLE>Database values of " + pid + "</TITLE></HEAD><BODY><TABLE>";
  for (const auto& [key, value] : values) answer.body += Cells({key, value});
  answer.body += "</TABLE></BODY></HTML>";
  return answer;
}

}  // namespace ocosim
