#pragma once
// What the index builder takes out of a Description's lines: the class flags, the name, the PID,
// the county, the position, the orders, the stability and satellite codes, the history, and the
// landmark rule applied when a Description is finished.
#include <string_view>

#include "session/index_record.hpp"

namespace benchlog {

// The line rules proper, for a line that may hold a key (below).
void ApplyKeyedLineRules(std::string_view line, IndexRecord& fields);

// Every key starts with "*" or "_" at column 8 (" " there for "  PID"), or with one of these letters
// at column 10; most lines of a Description (notes, box scores, recovery text) hold none, and the
// builder reads millions of lines. A new key's first letter goes here too.
inline bool MayHoldIndexKey(std::string_view line) {
  if (line.size() >= 8 && (line[7] == '*' || line[7] == '_')) return true;
  if (line.size() < 10) return false;
  switch (line[9]) {
    case 'C': case 'D': case 'F': case 'H': case 'N': case 'P': case 'S': case 'T': case 'V':
      return true;
    default:
      return false;
  }
}

// Applies the line rules to a data line (column 1 blank) in their fixed order; lines that match
// no key change nothing. All comparisons are exact and case-sensitive.
inline void ApplyIndexLineRules(std::string_view line, IndexRecord& fields) {
  if (MayHoldIndexKey(line)) ApplyKeyedLineRules(line, fields);
}

// A history line's effect: the last entry wins. "FIRST OBSERVED" and "MONUMENTED" set the first
// year; any other entry the last year and the condition code; the table's head line clears them.
void ApplyHistoryRule(std::string_view line, IndexRecord& fields);

// A Description with no stability letter whose name (the 35-column slice with its added blank)
// holds " SPIRE ", " TANK ", " MAST ", " TOWER ", " STACK ", " ANTENNA " or " BEACON " is a landmark:
// its StabilityCode becomes "L".
void ApplyLandmarkRule(IndexRecord& fields);

// Blanks every field for the next Description except Pid, Designation and County, which carry
// over until a line of the next Description replaces them.
void ResetForNextDescription(IndexRecord& fields);

}  // namespace benchlog
