#pragma once
// The state of one run of ParseDescription over a Description's lines: the record being filled,
// the descriptive text built so far, the history rows, the pointer of the notes into them, and
// the name of the primary azimuth mark. Internal to the parser.
#include <memory>
#include <string>
#include <string_view>

#include "common/dates.hpp"
#include "support_files/contributors.hpp"
#include "export/parser/mark_record.hpp"
#include "export/parser/parse_description.hpp"

namespace benchlog {

// Columns `start` (1 or more) to `start + length - 1` of a line, shorter or empty past its end: the
// rule of the dataset text, inline here because the parser slices every line of every
// Description several times.
inline std::string_view Cols(std::string_view line, std::size_t start, std::size_t length) {
  const std::size_t from = start - 1;
  return from < line.size() ? line.substr(from, length) : std::string_view();
}
inline std::string_view ColsToEnd(std::string_view line, std::size_t start) {
  return Cols(line, start, std::string_view::npos);
}
// Column `column` (1 or more) of a line, '\0' past its end.
inline char Col(std::string_view line, std::size_t column) {
  return column <= line.size() ? line[column - 1] : '\0';
}
// True when `word` stands at `column`.
inline bool WordAt(std::string_view line, std::size_t column, std::string_view word) {
  return Cols(line, column, word.size()) == word;
}
inline bool IsBlankText(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

// `text` without its leading and trailing blanks, as a view into it.
inline std::string_view TrimmedView(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// A date as yyyymmdd into an eight-character field, the text FormatYyyymmdd gives, put together
// digit by digit: dates are stored for every Description.
inline void StoreYyyymmdd(FixedText<8>& field, const Date& date) {
  char text[8];
  int year = date.year;
  for (int i = 3; i >= 0; --i, year /= 10) text[i] = static_cast<char>('0' + year % 10);
  text[4] = static_cast<char>('0' + date.month / 10);
  text[5] = static_cast<char>('0' + date.month % 10);
  text[6] = static_cast<char>('0' + date.day / 10);
  text[7] = static_cast<char>('0' + date.day % 10);
  field = std::string_view(text, 8);
}

inline bool Holds(std::string_view text, std::string_view phrase) {
  return text.find(phrase) != std::string_view::npos;
}

class DescriptionParser {
 public:
  DescriptionParser(MarkRecord& record, const ParseGroups& groups, SupportFiles& support);

  // One line whose columns 2 to 7 are the PID; `next` is the line after it in the array ("" at
  // the end), which a wrapped note about the horizontal adjustment continues on.
  void ReadLine(std::string_view line, std::string_view next);
  // Stores the descriptive text and the history table, when the text group is wanted.
  void Finish();

 private:
  using Action = void (DescriptionParser::*)(std::string_view line);
  struct Key;
  static const Key* FindKey(std::string_view key);

  // Keyed lines (description_keys.cpp).
  void ReadKey(std::string_view line);
  void AddNet(char letter);
  void NetCbn(std::string_view) { AddNet('B'); }
  void NetCors(std::string_view) { AddNet('C'); }
  void NetFbn(std::string_view) { AddNet('A'); }
  void NetHtMod(std::string_view) { AddNet('H'); }
  void NetPacs(std::string_view) { AddNet('P'); }
  void NetSacs(std::string_view) { AddNet('S'); }
  void NetTidal(std::string_view) { AddNet('T'); }
  void ReadDesignation(std::string_view line);
  void ReadCorsId(std::string_view line);
  void ReadPid(std::string_view line);
  void ReadPosition(std::string_view line);
  void ReadEpoch(std::string_view line);
  void ReadHeight(std::string_view line);
  void ReadLaplace(std::string_view line);
  void ReadEllipsoidHeight(std::string_view line);
  void ReadGeoidHeight(std::string_view line);
  void ReadLocalAccuracy(std::string_view line);
  void ReadNetworkAccuracy(std::string_view line);
  void ReadDynamicHeight(std::string_view line);
  void ReadModeledGravity(std::string_view line);
  void ReadStateCounty(std::string_view line);
  void ReadQuad(std::string_view line);
  void ReadHorizontalOrder(std::string_view line);
  void ReadVerticalOrder(std::string_view line);
  void ReadEllipsoidOrder(std::string_view line);
  void ReadMarker(std::string_view line);
  void ReadSetting(std::string_view line);
  void ReadSpecialSetting(std::string_view line);
  void ReadStamping(std::string_view line);
  void ReadProjection(std::string_view line);
  void ReadLogo(std::string_view line);
  void ReadMagnetic(std::string_view line);
  void ReadStability(std::string_view line);
  void ReadSatelliteSuitability(std::string_view line);
  void ReadSatelliteDate(std::string_view line);
  void ReadHistory(std::string_view line);

  // Phrases, box score and descriptive text (description_phrases.cpp).
  void ReadPhrases(std::string_view line, std::string_view next);
  void ReadSentencePhrases(std::string_view line, std::string_view next);
  void ReadHorizontalAdjustment(std::string_view line, std::string_view next);
  void ReadVerticalAdjustment(std::string_view line);
  void ReadSpcLabel(std::string_view line);
  void ReadBoxRow(std::string_view line);
  void ReadTextLine(std::string_view line);
  void ReadNoteHeader(std::string_view headerText, bool recoveryNote);

  const ContributorTable& Contributors();

  MarkRecord& record_;
  ParseGroups groups_;
  SupportFiles& support_;
  std::shared_ptr<const ContributorTable> contributors_;  // read at the first need
  std::string text_;                // the descriptive text built so far
  std::string historyRows_;         // rows of kHistoryRowWidth characters
  std::size_t historyPointer_ = 0;  // 1-based row the last note was compared with; 0 before any
  std::string primaryAzimuthName_;  // from the ":UTM" line
  std::string scratch_;             // a history row being put together
  std::string boxRow_;              // the last box score row, stored into the record at the end
  bool boxRowRead_ = false;
};

}  // namespace benchlog
