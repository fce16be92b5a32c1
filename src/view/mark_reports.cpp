#include "view/mark_reports.hpp"

#include "common/number_text.hpp"
#include "common/sort_by_column.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

bool ColumnIs(const std::string& element, std::size_t column, const char* value) {
  return Mid(element, column, 1) == value;
}

// A mark found in a usable condition: good or disturbed ("G" or "S").
bool Recovered(const std::string& element) { return ColumnIs(element, 126, "G") || ColumnIs(element, 126, "S"); }

}  // namespace

std::string ReportLine(const std::string& element) {
  return Mid(element, 43, 30) + "  " + Mid(element, 1, 6) + "  " + Mid(element, 74, 23);
}

std::vector<std::string> ReportLines(const MarkIndex& index, const ReportTest& test) {
  std::vector<std::string> lines;
  for (const auto& element : index.Elements())
    if (test(element)) lines.push_back(ReportLine(element));
  SortByColumn(lines, 1);
  return lines;
}

std::string ReportText(const std::string& title, const std::vector<std::string>& lines) {
  return title + "\r\n\r\n" + "Station" + Space(25) + "PID     " + "County" + "\r\n" + Join(lines, "\r\n");
}

MarkReport PhotoReport() {
  return {"Photos", "Photo List", "View Photo List", [](const std::string& e) { return ColumnIs(e, 112, "Y"); }};
}

MarkReport SketchReport() {
  return {"Sketches", "Sketch List", "View Sketch List", [](const std::string& e) { return ColumnIs(e, 114, "Y"); }};
}

MarkReport PostedHeightsReport() {
  return {"Bench Marks With Posted Heights", "List of Bench Marks with Posted Heights", "View BMs With Posted Heights",
          [](const std::string& e) { return ColumnIs(e, 10, "P"); }};
}

MarkReport NotPositionedReport() {
  return {"Recovered Bench Marks Not Positioned", "List of Bench Marks Not Positioned", "Bench Marks not Positioned",
          [](const std::string& e) { return ColumnIs(e, 21, " ") && Recovered(e); }};
}

MarkReport NotPhotographedReport() {
  return {"Recovered Marks Not Photographed", "List of Marks Not Photographed", "Not Photographed Marks",
          [](const std::string& e) { return ColumnIs(e, 112, " ") && Recovered(e); }};
}

MarkReport NotSearchedReport(int years, int currentYear) {
  return {"Not Recently Searched For Marks",
          "List of Marks Not Searcher For in the Last" + std::to_string(years) + " Years", "View Not Searched For Marks",
          [years, currentYear](const std::string& e) {
            return !ColumnIs(e, 126, "N") && currentYear - Val(Mid(e, 121, 4)) >= years;
          }};
}

MarkReport NotRecoveredReport(const std::string& agency) {
  return {agency.empty() ? "Not Recovered Marks" : "Not Recovered List As Reported By " + agency,
          "List of Marks Not Recovered by " + agency, "View Not Recovered Marks by Agency",
          [agency](const std::string& e) {
            return ColumnIs(e, 126, "N") && (agency.empty() || agency == Trim(Mid(e, 128, 6)));
          }};
}

}  // namespace benchlog
