#pragma once
// What the index builder takes out of a Description's lines: the class flags, the name, the PID,
// the county, the position, the orders, the stability and satellite codes, the history, and the
// landmark rule applied when a Description is finished.
#include <string_view>

#include "session/index_record.hpp"

namespace benchlog {

// Applies the line rules to a data line (column 1 blank) in their fixed order; lines that match
// no key change nothing. All comparisons are exact and case-sensitive.
void ApplyIndexLineRules(std::string_view line, IndexRecord& fields);

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
