#pragma once
// The state of one run of ParseDescription over a Description's lines: the record being filled,
// the descriptive text built so far, the history rows, the pointer of the notes into them, and
// the name of the primary azimuth mark. Internal to the parser.
#include <memory>
#include <string>
#include <string_view>

#include "export/contributors.hpp"
#include "export/mark_record.hpp"
#include "export/parse_description.hpp"

namespace benchlog {

// `text` without its leading and trailing blanks, as a view into it.
inline std::string_view TrimmedView(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

inline bool Holds(std::string_view text, std::string_view phrase) {
  return text.find(phrase) != std::string_view::npos;
}

class DescriptionParser {
 public:
  DescriptionParser(MarkRecord& record, const ParseGroups& groups, const std::string& supportPath);

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
  void ReadHorizontalAdjustment(std::string_view line, std::string_view next);
  void ReadVerticalAdjustment(std::string_view line);
  void ReadSpcLabel(std::string_view line);
  void ReadBoxRow(std::string_view line);
  void ReadTextLine(std::string_view line);
  void ReadNoteHeader(std::string_view headerText, bool recoveryNote);

  const ContributorTable& Contributors();

  MarkRecord& record_;
  ParseGroups groups_;
  const std::string& supportPath_;
  std::shared_ptr<const ContributorTable> contributors_;  // read at the first need
  std::string text_;                // the descriptive text built so far
  std::string historyRows_;         // rows of kHistoryRowWidth characters
  std::size_t historyPointer_ = 0;  // 1-based row the last note was compared with; 0 before any
  std::string primaryAzimuthName_;  // from the ":UTM" line
};

}  // namespace benchlog
