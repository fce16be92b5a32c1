#include "dataset/dataset_text.hpp"

namespace benchlog {

bool IsForeignLine(std::string_view line) { return !IsHeaderLine(line) && !IsDataLine(line); }

bool IsBlankLine(std::string_view line) { return line.find_first_not_of(' ') == std::string_view::npos; }

std::string_view LinePid(std::string_view line) { return Columns(line, 2, 6); }

char LineMark(std::string_view line) { return ColumnChar(line, 8); }

bool IsPositionLine(std::string_view line) { return KeyAt(line, 8, "* NAD 83"); }

bool IsLongDatumLayout(std::string_view line) { return ColumnChar(line, 26) == '-'; }

std::string_view PositionLatitudeText(std::string_view line) {
  return Columns(line, IsLongDatumLayout(line) ? 29 : 25, 14);
}

std::string_view PositionLongitudeText(std::string_view line) {
  return Columns(line, IsLongDatumLayout(line) ? 47 : 46, 15);
}

bool IsHistoryLine(std::string_view line) { return KeyAt(line, 10, "HISTORY"); }

bool IsHistoryHeadLine(std::string_view line) { return IsHistoryLine(line) && KeyAt(line, 24, "Date"); }

std::string_view HistoryYear(std::string_view line) { return Columns(line, 24, 4); }

std::string_view HistoryCondition(std::string_view line) { return Columns(line, 33, std::string_view::npos); }

std::string_view HistoryAgency(std::string_view line) { return Columns(line, 50, 6); }

}  // namespace benchlog
