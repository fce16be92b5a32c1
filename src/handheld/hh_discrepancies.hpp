#pragma once
// What the agency's database says against the records of an HH file before it is submitted: one
// answer of the service's discrep_for_one page a record, turned into the lines of the report.
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

inline constexpr const char* kDiscrepancyReportHead = "PID              PROBLEM";

// The service's path and query for one PID.
std::string DiscrepancyQuery(const std::string& pid);

// The report of an HH file: its path less the last four characters, then ".rpt".
std::string DiscrepancyReportPath(const std::string& hhPath);

// The report lines (each with CR LF) of one record, `fields` being its line split at "|" with at
// least five fields, and `answer` the service's page for its PID. The page is a table of rows
// "<TR><TD>key</TD><TD>value</TD>"; a value "NULL" is empty. Problems, in the order of the rows:
//   UID "0"      "<PID> - PID not found in DB.", and the rows after it are not read;
//   DESIGNATION  the record's designation differs from the database's;
//   NAD 83 LAT   the database's value has as many decimals of seconds as the record's quality
//   NAD 83 LON   gives, or more (2 for HH1, 1 for the others); or the two lie more than 10
//                seconds apart.
// A problem line is the PID, blanks to column 8 and the text; the record's PID stands on its first
// problem line only. The longitude's quality line is left out once the PID has been cleared.
// A row without a value cell fails as SubscriptOutOfRange.
std::string RecordProblems(const std::vector<std::string>& fields, std::string_view answer);

}  // namespace benchlog
