#pragma once
// The fixed reports of the Listings menu: plain lists of marks made from the index alone, one
// line per mark (Designation, PID, County), sorted, under a title and a head line.
#include <functional>
#include <string>
#include <vector>

#include "session/mark_index.hpp"

namespace benchlog {

// Which index elements a report lists.
using ReportTest = std::function<bool(const std::string& element)>;

// One report: its title, the viewer's caption, and the title of the "None found!" box.
struct MarkReport {
  std::string title;
  std::string caption;
  std::string noneTitle;
  ReportTest test;
};

// Designation (30), two blanks, PID, two blanks, County (23); slices of a short element are shorter.
std::string ReportLine(const std::string& element);

// The lines of every element that passes, in order, then sorted by the whole line. A list of
// fewer than three lines keeps the index's order, as the system's sort leaves it.
std::vector<std::string> ReportLines(const MarkIndex& index, const ReportTest& test);

// The title, an empty line, the head line, then the report lines; CR LF between them.
std::string ReportText(const std::string& title, const std::vector<std::string>& lines);

// The reports with fixed tests.
MarkReport PhotoReport();
MarkReport SketchReport();
MarkReport PostedHeightsReport();
MarkReport NotPositionedReport();
MarkReport NotPhotographedReport();
// Marks not searched for in the last `years` years, counted back from `currentYear`; marks
// reported not found (condition "N") are left out, a mark without a last year counts as year 0.
MarkReport NotSearchedReport(int years, int currentYear);
// Marks not recovered ("N"), by the agency that reported them; an empty agency takes them all.
MarkReport NotRecoveredReport(const std::string& agency);

}  // namespace benchlog
