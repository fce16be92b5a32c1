#pragma once
// Reading one Description into the working record of the export.
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "export/parser/mark_record.hpp"
#include "support_files/support_files.hpp"

namespace benchlog {

// The three groups of lines a caller may ask for; a group left out is skipped. The export asks
// for all three.
struct ParseGroups {
  bool wantPosition = true;  // positions, heights, orders and the phrases about them
  bool wantMark = true;      // attributes of the mark: name, place, marker, setting, stamping
  bool wantText = true;      // descriptive text and the history table
};

// Reads the Description of `pid` (six characters) from `lines`, beginning at index `start`
// (0-based), into `record`, which the caller has normally cleared with ClearMarkRecord.
// The scan takes every line whose columns 2 to 7 are the PID and ends at the first other line
// after one has matched; lines before the first match are passed over. Each line is recognised by
// its key (columns 8 to 16) and then searched for the phrases that any line may hold.
// `support` gives the tables of "Monument_Category.dat" and "Contrib.dat" (throws RuntimeFailure
// FileNotFound when one is needed and missing). On entry RecordKind becomes "R" and Epoch, Net and LastReporter are blanked.
// When no line carries the PID, `ErrMsg` becomes "Data not found!"; otherwise it is left alone.
void ParseDescription(std::string_view pid, std::span<const std::string> lines, std::size_t start,
                      const ParseGroups& groups, std::string& ErrMsg, MarkRecord& record,
                      SupportFiles& support);
// The same over lines held as views, e.g. into a file's text read whole.
void ParseDescription(std::string_view pid, std::span<const std::string_view> lines, std::size_t start,
                      const ParseGroups& groups, std::string& ErrMsg, MarkRecord& record,
                      SupportFiles& support);

}  // namespace benchlog
