#include "dataset/index_line_rules.hpp"

#include <string>

#include "common/fit.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "dataset/dataset_text.hpp"

namespace benchlog {
namespace {

// The keys are told apart by one column first (the builder reads every line of a dataset). No two
// keys can match the same line, so the order in which they are tried does not matter.
void ApplyClassKeys(std::string_view line, IndexRecord& f) {
  switch (ColumnChar(line, 10)) {
    case 'C':
      if (KeyAt(line, 10, "CORS")) f.CorsFlag = "C";
      if (KeyAt(line, 10, "CBN")) f.BaseNetFlag = "C";
      break;
    case 'F':
      if (KeyAt(line, 10, "FBN")) f.BaseNetFlag = "F";
      break;
    case 'P':
      if (KeyAt(line, 10, "PACS")) f.AirportFlag = "P";
      break;
    case 'S':
      if (KeyAt(line, 10, "SACS")) f.AirportFlag = "S";
      break;
    case 'H':
      if (KeyAt(line, 10, "HT_MOD")) f.HeightModFlag = "H";
      break;
    case 'T':
      if (KeyAt(line, 10, "TIDAL BM")) f.TidalFlag = "T";
      break;
    default:
      break;
  }
}

void ApplyHorzOrder(std::string_view line, IndexRecord& f) {
  // Each word is compared at column 25 with its own length, so "A" matches only an "A" there.
  static constexpr std::pair<std::string_view, const char*> kWords[] = {
      {"SPECIAL", "S"}, {"A", "A"}, {"B", "B"}, {"FIRST", "1"}, {"SECOND", "2"}, {"THIRD", "3"}};
  for (const auto& [word, code] : kWords)
    if (KeyAt(line, 25, word)) f.HorzOrder = code;
}

void ApplyVertOrder(std::string_view line, IndexRecord& f) {
  static constexpr std::pair<std::string_view, const char*> kWords[] = {
      {"FIRST", "1"}, {"SECOND", "2"}, {"THIRD", "3"}};
  for (const auto& [word, code] : kWords)
    if (KeyAt(line, 25, word)) f.VertOrder = code;
  if (KeyAt(line, 27, "POSTED")) f.VertOrder = "P";
}

// The keys at column 8, of which at most one matches.
bool ApplyColumn8Keys(std::string_view line, IndexRecord& f) {
  switch (ColumnChar(line, 8)) {
    case '*':
      if (!IsPositionLine(line)) return false;
      f.Latitude = std::string(PositionLatitudeText(line));
      f.Longitude = std::string(PositionLongitudeText(line));
      return true;
    case '_':
      if (KeyAt(line, 8, "_MARKER:")) {
        const std::string_view code = Columns(line, 17, 2);
        if (IsNumeric(code) && code != "71") f.StabilityCode = "L";
      } else if (KeyAt(line, 8, "_STABILITY:")) {
        f.StabilityCode = std::string(Columns(line, 20, 1));
      } else if (KeyAt(line, 8, "_SATELLITE:")) {
        f.SatelliteFlag = InStr(line, "NOT SUITABLE", 20) > 0 ? "N" : "Y";
      } else {
        return false;
      }
      return true;
    default:
      return false;
  }
}

// The keyed lines of which only the first that matches applies: the county, the position, the
// network accuracy, the orders, the marker, stability and satellite lines, the history.
void ApplyFirstKeyedRule(std::string_view line, IndexRecord& f) {
  if (ApplyColumn8Keys(line, f)) return;
  switch (ColumnChar(line, 10)) {
    case 'S':
      if (KeyAt(line, 10, "STATE/COUNTY")) f.County = std::string(Columns(line, 28, 18));
      break;
    case 'N':
      if (KeyAt(line, 10, "NETWORK")) f.HorzOrder = "0";
      break;
    case 'H':
      if (KeyAt(line, 10, "HORZ ORDER")) {
        ApplyHorzOrder(line, f);
      } else if (IsHistoryLine(line)) {
        ApplyHistoryRule(line, f);
      }
      break;
    case 'V':
      if (KeyAt(line, 10, "VERT ORDER")) ApplyVertOrder(line, f);
      break;
    default:
      break;
  }
}

}  // namespace

void ApplyKeyedLineRules(std::string_view line, IndexRecord& f) {
  ApplyClassKeys(line, f);
  const char column10 = ColumnChar(line, 10);
  if (column10 == 'D' && KeyAt(line, 10, "DESIGNATION")) f.Designation = std::string(Columns(line, 25, 35)) + " ";
  if (column10 == 'P' && KeyAt(line, 8, "  PID") && !IsBlank(Columns(line, 25, 6)))
    f.Pid = std::string(Columns(line, 25, 6));
  ApplyFirstKeyedRule(line, f);
}

void ApplyHistoryRule(std::string_view line, IndexRecord& f) {
  if (KeyAt(line, 33, "FIRST OBSERVED") || KeyAt(line, 33, "MONUMENTED")) {
    f.FirstYear.assign(HistoryYear(line));
    f.ConditionCode = "G";
  } else if (!IsHistoryHeadLine(line)) {
    f.LastYear.assign(HistoryYear(line));
    f.ConditionCode.assign(Columns(line, 33, 1));
    if (f.ConditionCode == "S") f.ConditionCode = "O";
    if (f.ConditionCode == "M") f.ConditionCode = "N";
  } else {
    f.LastYear = "    ";
    f.ConditionCode = " ";
  }
  f.RecoveredBy.clear();  // refilled in place: a history has a line for every visit
  AppendFitToWidth(f.RecoveredBy, HistoryAgency(line), 6);
}

void ApplyLandmarkRule(IndexRecord& f) {
  if (!IsBlank(f.StabilityCode)) return;
  static constexpr std::string_view kWords[] = {" SPIRE ", " TANK ", " MAST ", " TOWER ",
                                                " STACK ", " ANTENNA ", " BEACON "};
  for (const auto word : kWords) {
    if (InStr(f.Designation, word) > 0) {
      f.StabilityCode = "L";
      return;
    }
  }
}

// Every field but the PID, the designation and the county goes back to its blanks, in place, so
// that a dataset's thousands of Descriptions make no allocations here.
void ResetForNextDescription(IndexRecord& f) {
  static_assert(sizeof(IndexRecord) == 20 * sizeof(std::string) + sizeof(std::uint64_t),
                "a field added to IndexRecord must be reset here too");
  static const IndexRecord kFresh;
  for (std::string IndexRecord::*field :
       {&IndexRecord::HorzOrder, &IndexRecord::VertOrder, &IndexRecord::Latitude, &IndexRecord::Longitude,
        &IndexRecord::TidalFlag, &IndexRecord::BaseNetFlag, &IndexRecord::AirportFlag, &IndexRecord::CorsFlag,
        &IndexRecord::SatelliteFlag, &IndexRecord::HeightModFlag, &IndexRecord::StabilityCode,
        &IndexRecord::PhotoFlag, &IndexRecord::SketchFlag, &IndexRecord::FirstYear, &IndexRecord::LastYear,
        &IndexRecord::ConditionCode, &IndexRecord::RecoveredBy})
    f.*field = kFresh.*field;
  f.DescriptionOffset = kFresh.DescriptionOffset;
}

}  // namespace benchlog
