#pragma once
// Reading the lines of a dataset file. A dataset is a run of Descriptions in fixed columns; every
// reader (the index builder, the compression, the export, the viewer) tells its lines apart with
// these functions, so the rules stand in one place. Columns count from 1; a slice past the end of
// a line is shorter or empty, so a short line simply fails the comparisons.
#include <cstddef>
#include <string_view>

namespace benchlog {

// The first seven columns of a header line: the digit one and six blanks.
inline constexpr std::string_view kHeaderMark = "1      ";

// Columns `start` to `start + length - 1` of a line, as a view; never fails (shorter or empty past
// the end). `start` 0 counts as 1.
inline std::string_view Columns(std::string_view line, std::size_t start, std::size_t length) {
  const std::size_t from = start == 0 ? 0 : start - 1;
  return from >= line.size() ? std::string_view() : line.substr(from, length);
}
// Column `column` of a line, or '\0' when the line is shorter.
inline char ColumnChar(std::string_view line, std::size_t column) {
  return column >= 1 && column <= line.size() ? line[column - 1] : '\0';
}

// True when `key` stands exactly at `column` (the slice of the key's own length equals it).
// Inline: the index builder asks this for every line of a dataset.
inline bool KeyAt(std::string_view line, std::size_t column, std::string_view key) {
  return Columns(line, column, key.size()) == key;
}

// A header line begins a new Description: columns 1 to 7 are exactly "1      ".
inline bool IsHeaderLine(std::string_view line) { return KeyAt(line, 1, kHeaderMark); }
// A data line (or a line of blanks) has a blank in column 1; only such lines are interpreted.
inline bool IsDataLine(std::string_view line) { return ColumnChar(line, 1) == ' '; }
// Neither a header nor a data line (an empty line too): not interpreted, but its length counts
// into the Description it stands in.
bool IsForeignLine(std::string_view line);
// A line that is empty or all blanks after trimming: what a deleted Description leaves.
bool IsBlankLine(std::string_view line);

// The PID of a data line, columns 2 to 7, and its line mark in column 8 ('\0' when short).
std::string_view LinePid(std::string_view line);
char LineMark(std::string_view line);

// The length a line counts for in byte offsets: its length plus 2 for the CR LF, whatever its
// real end was.
inline std::size_t CountedLength(std::string_view line) { return line.size() + 2; }

// The position line ("* NAD 83" at column 8) comes in two layouts: a short datum tag puts the
// hyphen in column 22 and the latitude at 25; a long tag ("NSRS2007") puts the hyphen in column
// 26 and shifts the latitude by four columns and the longitude by one.
bool IsPositionLine(std::string_view line);
bool IsLongDatumLayout(std::string_view line);  // column 26 is "-"
// The latitude text (14 characters, no hemisphere) and the longitude text (15 characters), as
// raw slices: a line cut short gives shorter texts.
std::string_view PositionLatitudeText(std::string_view line);
std::string_view PositionLongitudeText(std::string_view line);

// A history line ("HISTORY" at column 10) and its fields: the date (year in its first 4
// columns) at 24, the condition word at 33, the recovering agency at 50 (6 columns). The table's
// head line has "Date" where an entry has its year.
bool IsHistoryLine(std::string_view line);
bool IsHistoryHeadLine(std::string_view line);
std::string_view HistoryYear(std::string_view line);
std::string_view HistoryCondition(std::string_view line);  // from column 33 to the end
std::string_view HistoryAgency(std::string_view line);

}  // namespace benchlog
