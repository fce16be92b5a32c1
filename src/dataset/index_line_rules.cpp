#include "dataset/index_line_rules.hpp"

#include <string>

#include "common/fit.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "dataset/dataset_text.hpp"

namespace benchlog {
namespace {

void ApplyClassKeys(std::string_view line, IndexRecord& f) {
  if (KeyAt(line, 10, "CORS")) f.CorsFlag = "C";
  if (KeyAt(line, 10, "FBN")) f.BaseNetFlag = "F";
  if (KeyAt(line, 10, "CBN")) f.BaseNetFlag = "C";
  if (KeyAt(line, 10, "PACS")) f.AirportFlag = "P";
  if (KeyAt(line, 10, "SACS")) f.AirportFlag = "S";
  if (KeyAt(line, 10, "HT_MOD")) f.HeightModFlag = "H";
  if (KeyAt(line, 10, "TIDAL BM")) f.TidalFlag = "T";
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

// The keyed lines of which only the first that matches applies.
void ApplyFirstKeyedRule(std::string_view line, IndexRecord& f) {
  if (KeyAt(line, 10, "STATE/COUNTY")) {
    f.County = std::string(Columns(line, 28, 18));
  } else if (IsPositionLine(line)) {
    f.Latitude = std::string(PositionLatitudeText(line));
    f.Longitude = std::string(PositionLongitudeText(line));
  } else if (KeyAt(line, 10, "NETWORK")) {
    f.HorzOrder = "0";
  } else if (KeyAt(line, 10, "HORZ ORDER")) {
    ApplyHorzOrder(line, f);
  } else if (KeyAt(line, 10, "VERT ORDER")) {
    ApplyVertOrder(line, f);
  } else if (KeyAt(line, 8, "_MARKER:")) {
    const std::string_view code = Columns(line, 17, 2);
    if (IsNumeric(code) && code != "71") f.StabilityCode = "L";
  } else if (KeyAt(line, 8, "_STABILITY:")) {
    f.StabilityCode = std::string(Columns(line, 20, 1));
  } else if (KeyAt(line, 8, "_SATELLITE:")) {
    f.SatelliteFlag = InStr(line, "NOT SUITABLE", 20) > 0 ? "N" : "Y";
  } else if (IsHistoryLine(line)) {
    ApplyHistoryRule(line, f);
  }
}

}  // namespace

void ApplyIndexLineRules(std::string_view line, IndexRecord& f) {
  ApplyClassKeys(line, f);
  if (KeyAt(line, 10, "DESIGNATION")) f.Designation = std::string(Columns(line, 25, 35)) + " ";
  if (KeyAt(line, 8, "  PID") && !IsBlank(Columns(line, 25, 6))) f.Pid = std::string(Columns(line, 25, 6));
  ApplyFirstKeyedRule(line, f);
}

void ApplyHistoryRule(std::string_view line, IndexRecord& f) {
  if (KeyAt(line, 33, "FIRST OBSERVED") || KeyAt(line, 33, "MONUMENTED")) {
    f.FirstYear = std::string(HistoryYear(line));
    f.ConditionCode = "G";
  } else if (!IsHistoryHeadLine(line)) {
    f.LastYear = std::string(HistoryYear(line));
    f.ConditionCode = std::string(Columns(line, 33, 1));
    if (f.ConditionCode == "S") f.ConditionCode = "O";
    if (f.ConditionCode == "M") f.ConditionCode = "N";
  } else {
    f.LastYear = "    ";
    f.ConditionCode = " ";
  }
  f.RecoveredBy = FitToWidth(HistoryAgency(line), 6);
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

void ResetForNextDescription(IndexRecord& f) {
  IndexRecord fresh;
  fresh.Pid = std::move(f.Pid);
  fresh.Designation = std::move(f.Designation);
  fresh.County = std::move(f.County);
  f = std::move(fresh);
}

}  // namespace benchlog
