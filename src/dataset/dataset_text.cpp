#include "dataset/dataset_text.hpp"

namespace benchlog {

std::string_view Columns(std::string_view line, std::size_t start, std::size_t length) {
  const std::size_t from = start == 0 ? 0 : start - 1;
  if (from >= line.size()) return {};
  return line.substr(from, length);
}

char ColumnChar(std::string_view line, std::size_t column) {
  return column >= 1 && column <= line.size() ? line[column - 1] : '\0';
}

bool KeyAt(std::string_view line, std::size_t column, std::string_view key) {
  return Columns(line, column, key.size()) == key;
}

bool IsHeaderLine(std::string_view line) { return KeyAt(line, 1, kHeaderMark); }

bool IsDataLine(std::string_view line) { return ColumnChar(line, 1) == ' '; }

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
