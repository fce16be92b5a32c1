// The keyed lines of a Description: each line's key (columns 8 to 16) chooses what it gives the
// record.
#include <algorithm>
#include <array>
#include <optional>

#include "common/dates.hpp"
#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "dataset/dataset_text.hpp"
#include "export/description_parser.hpp"
#include "export/fit_text.hpp"
#include "export/monument_category.hpp"

namespace benchlog {

enum class KeyGroup { kAny, kPosition, kMark, kMarkOrPosition };

struct DescriptionParser::Key {
  std::string_view text;  // the nine characters of columns 8 to 16
  KeyGroup group;
  bool needsHyphen;       // the line counts only with "-" in column 22
  Action action;
};

namespace {

using P = DescriptionParser;

// A word that starts at column 69, where position and height lines name their source.
bool SourceIs(std::string_view line, std::string_view word) { return KeyAt(line, 69, word); }

// The text of `date` as yyyymmdd when it reads as a date.
std::optional<std::string> DateAsYyyymmdd(std::string_view text) {
  const auto date = ReadDate(text);
  if (!date) return std::nullopt;
  return FormatYyyymmdd(*date);
}

}  // namespace

const DescriptionParser::Key* DescriptionParser::FindKey(std::string_view key) {
  using G = KeyGroup;
  static const auto keys = [] {
    std::array<Key, 42> table{{
        {"  CBN    ", G::kAny, false, &P::NetCbn},
        {"  CORS   ", G::kAny, false, &P::NetCors},
        {"  FBN    ", G::kAny, false, &P::NetFbn},
        {"  HT_MOD ", G::kAny, false, &P::NetHtMod},
        {"  PACS   ", G::kAny, false, &P::NetPacs},
        {"  SACS   ", G::kAny, false, &P::NetSacs},
        {"  TIDAL B", G::kAny, false, &P::NetTidal},
        {"  DESIGNA", G::kAny, false, &P::ReadDesignation},
        {"  CORS_ID", G::kAny, false, &P::ReadCorsId},
        {"  PID    ", G::kAny, false, &P::ReadPid},
        {"* NAD 83(", G::kPosition, false, &P::ReadPosition},
        {"* NAD 83 ", G::kPosition, false, &P::ReadPosition},
        {"  EPOCH D", G::kPosition, false, &P::ReadEpoch},
        {"* NGVD 29", G::kPosition, false, &P::ReadHeight},
        {"* NAVD 88", G::kPosition, false, &P::ReadHeight},
        {"* ASVD02 ", G::kPosition, false, &P::ReadHeight},
        {"* PRVD02 ", G::kPosition, false, &P::ReadHeight},
        {"* GUVD04 ", G::kPosition, false, &P::ReadHeight},
        {"* LOCAL T", G::kPosition, false, &P::ReadHeight},
        {"  LAPLACE", G::kPosition, true, &P::ReadLaplace},
        {"  ELLIP H", G::kPosition, true, &P::ReadEllipsoidHeight},
        {"  GEOID H", G::kPosition, true, &P::ReadGeoidHeight},
        {"  LOCAL  ", G::kAny, false, &P::ReadLocalAccuracy},
        {"  NETWORK", G::kAny, false, &P::ReadNetworkAccuracy},
        {"  DYNAMIC", G::kPosition, true, &P::ReadDynamicHeight},
        {"  MODELED", G::kPosition, true, &P::ReadModeledGravity},
        {"  STATE/C", G::kMark, false, &P::ReadStateCounty},
        {"  USGS QU", G::kMark, false, &P::ReadQuad},
        {"  HORZ OR", G::kPosition, false, &P::ReadHorizontalOrder},
        {"  VERT OR", G::kPosition, false, &P::ReadVerticalOrder},
        {"  ELLP OR", G::kPosition, false, &P::ReadEllipsoidOrder},
        {"_MARKER: ", G::kMarkOrPosition, false, &P::ReadMarker},
        {"_SETTING:", G::kMark, false, &P::ReadSetting},
        {"_SP_SET: ", G::kMark, false, &P::ReadSpecialSetting},
        {"_STAMPING", G::kMark, false, &P::ReadStamping},
        {"_PROJECTI", G::kMark, false, &P::ReadProjection},
        {"_MARK LOG", G::kMark, false, &P::ReadLogo},
        {"_MAGNETIC", G::kMark, false, &P::ReadMagnetic},
        {"_STABILIT", G::kMark, false, &P::ReadStability},
        {"_SATELLIT", G::kMark, false, &P::ReadSatelliteSuitability},
        {"+SATELLIT", G::kMark, false, &P::ReadSatelliteDate},
        {"  HISTORY", G::kAny, false, &P::ReadHistory},
    }};
    // The keys are distinct, so looking them up in sorted order finds what the top-to-bottom
    // comparison would.
    std::sort(table.begin(), table.end(), [](const Key& a, const Key& b) { return a.text < b.text; });
    return table;
  }();
  const auto found = std::lower_bound(keys.begin(), keys.end(), key,
                                      [](const Key& entry, std::string_view k) { return entry.text < k; });
  return found != keys.end() && found->text == key ? &*found : nullptr;
}

void DescriptionParser::ReadKey(std::string_view line) {
  const Key* key = FindKey(Columns(line, 8, 9));
  if (!key) return;
  const bool wanted = key->group == KeyGroup::kAny ||
                      (key->group == KeyGroup::kPosition && groups_.wantPosition) ||
                      (key->group == KeyGroup::kMark && groups_.wantMark) ||
                      (key->group == KeyGroup::kMarkOrPosition && (groups_.wantMark || groups_.wantPosition));
  if (!wanted || (key->needsHyphen && ColumnChar(line, 22) != '-')) return;
  (this->*key->action)(line);
}

void DescriptionParser::AddNet(char letter) {
  std::string net(record_.Net.Trimmed());
  net += letter;
  record_.Net = net;
}

void DescriptionParser::ReadDesignation(std::string_view line) { record_.Designation = Columns(line, 25, 40); }
void DescriptionParser::ReadCorsId(std::string_view line) { record_.CorsId = Columns(line, 25, 4); }
void DescriptionParser::ReadPid(std::string_view line) { record_.Pid = Columns(line, 25, 6); }
void DescriptionParser::ReadEpoch(std::string_view line) { record_.Epoch = Columns(line, 31, 9); }
void DescriptionParser::ReadLaplace(std::string_view line) { record_.Laplace = Columns(line, 32, 6); }
void DescriptionParser::ReadDynamicHeight(std::string_view line) { record_.DynamicHeight = Columns(line, 31, 8); }

void DescriptionParser::ReadPosition(std::string_view line) {
  record_.HorizDatum = "83";
  if (Holds(line, "(")) {
    std::string_view tag = Columns(line, 17, 6);
    tag = tag.substr(0, tag.find(')'));
    record_.DatumTag = FitText(tag, 6);
  }
  // The long datum tag ("NSRS2007") moves the hyphen to column 26 and the latitude four columns
  // and the longitude one column to the right.
  const bool longTag = ColumnChar(line, 26) == '-';
  const std::size_t lat = longTag ? 29 : 25;
  const std::size_t lon = longTag ? 47 : 46;
  std::string latitude(Columns(line, lat, 2));
  latitude += Columns(line, lat + 3, 2);
  latitude += Columns(line, lat + 6, 8);
  std::string longitude(Columns(line, lon, 3));
  longitude += Columns(line, lon + 4, 2);
  longitude += Columns(line, lon + 7, 8);
  record_.Latitude = latitude;
  record_.LatHemi = Columns(line, lat + 15, 1);
  record_.Longitude = longitude;
  record_.LonHemi = Columns(line, lon + 16, 1);
  // Seconds of "." and five blanks: a coarse position whose point counts as absent too.
  if (record_.Latitude.View().substr(6, 6) == ".     ") record_.Latitude = record_.Latitude.View().substr(0, 6);
  if (record_.Longitude.View().substr(7, 6) == ".     ") record_.Longitude = record_.Longitude.View().substr(0, 7);

  if (SourceIs(line, "ADJUSTED")) {
    record_.PosSource = "A";
  } else if (SourceIs(line, "GPS HAND HELD 1") || SourceIs(line, "DGPS") || SourceIs(line, "HD_HELD1")) {
    record_.PosSource = "O";
    record_.HorizOrder = "4";
    record_.HorizType = "X";
  } else if (SourceIs(line, "GPS HAND HELD 2") || SourceIs(line, "AGPS") || SourceIs(line, "HD_HELD2")) {
    record_.PosSource = "O";
    record_.HorizOrder = "4";
    record_.HorizType = "W";
  } else {
    record_.PosSource = "S";
  }
}

void DescriptionParser::ReadHeight(std::string_view line) {
  struct Datum {
    std::string_view key, code;
  };
  static constexpr std::array<Datum, 6> kDatums{{{"* NGVD 29", "29"},
                                                 {"* NAVD 88", "88"},
                                                 {"* ASVD02 ", "AS"},
                                                 {"* PRVD02 ", "PR"},
                                                 {"* GUVD04 ", "GU"},
                                                 {"* LOCAL T", "LT"}}};
  for (const auto& datum : kDatums)
    if (KeyAt(line, 8, datum.key)) record_.VertDatum = datum.code;
  record_.OrthoHeight = TrimmedView(Columns(line, ColumnChar(line, 26) == '-' ? 33 : 29, 8));

  // The source word: the height's source letter and its method ("" sets the method blank).
  struct Source {
    std::string_view word, source, method;
  };
  static constexpr std::array<Source, 14> kSources{{{"ADJUSTED", "A", "N"},
                                                    {"ADJ UNCH", "B", "N"},
                                                    {"POSTED", "P", "N"},
                                                    {"READJUST", "O", "N"},
                                                    {"N HEIGHT", "U", "N"},
                                                    {"RESET", "R", "N"},
                                                    {"COMPUTED", "O", "N"},
                                                    {"LEVELING", "H", "N"},
                                                    {"N LEVEL", "O", "N"},
                                                    {"GPS OBS", "S", "G"},
                                                    {"VERT ANG", "O", "T"},
                                                    {"SCALED", "S", ""},
                                                    {"U HEIGHT", "U", "N"},
                                                    {"VERTCON", "V", ""}}};
  for (const auto& source : kSources) {
    if (SourceIs(line, source.word)) {
      record_.HeightSource = source.source;
      record_.HeightMethod = source.method;
      return;
    }
  }
}

void DescriptionParser::ReadEllipsoidHeight(std::string_view line) {
  record_.EllipHeight = TrimmedView(Columns(line, 26, 13));
  std::string date(Columns(line, 59, 8));
  if (!IsBlankLine(date)) {
    // An unknown day is written "??"; the height then counts as observed on the first.
    if (Columns(line, 62, 2) == "??") date.replace(3, 2, "01");
    if (const auto yyyymmdd = DateAsYyyymmdd(date)) record_.EllipDate = *yyyymmdd;
  }
  if (KeyAt(line, 69, "GPS OBS")) {
    record_.EllipSource = "A";
    record_.EllipMethod = "G";
  }
}

void DescriptionParser::ReadGeoidHeight(std::string_view line) {
  if (Columns(line, 69, 5) == "EGM96") {
    record_.GeoidModel = "EG96";
  } else {
    std::string model(Columns(line, 74, 2));
    model += "  ";
    record_.GeoidModel = model;
  }
  record_.GeoidHeight = TrimmedView(Columns(line, 26, 13));
  record_.GeoidSource = "A";
}

void DescriptionParser::ReadLocalAccuracy(std::string_view line) {
  if (Columns(line, 18, 7) != "AVERAGE") return;
  record_.LocalN = Columns(line, 59, 4);
  record_.LocalE = Columns(line, 66, 4);
  record_.LocalH = Columns(line, 73, 4);
}

void DescriptionParser::ReadNetworkAccuracy(std::string_view line) {
  record_.HorizOrder = "0";
  record_.NetworkN = Columns(line, 59, 4);
  record_.NetworkE = Columns(line, 66, 4);
  record_.NetworkH = Columns(line, 73, 4);
}

void DescriptionParser::ReadModeledGravity(std::string_view line) {
  record_.ModeledGravity = ReplaceAll(Columns(line, 28, 9), ",", "");
}

void DescriptionParser::ReadStateCounty(std::string_view line) {
  record_.State = Columns(line, 25, 2);
  record_.County = Columns(line, 28, 20);
}

void DescriptionParser::ReadQuad(std::string_view line) {
  const std::string_view text = TrimmedView(Columns(line, 25, std::string_view::npos));
  const auto open = text.find('(');
  if (open == std::string_view::npos) {
    record_.Quad = text;
    return;
  }
  record_.QuadDate = text.substr(open + 1, 4);
  record_.Quad = TrimmedView(text.substr(0, open));
}

void DescriptionParser::ReadHorizontalOrder(std::string_view line) {
  const char first = ColumnChar(line, 25);
  if (first == 'A') record_.HorizOrder = "A";
  if (first == 'B') record_.HorizOrder = "B";
  if (Columns(line, 25, 2) == "FI") record_.HorizOrder = "1";
  if (first == 'S') record_.HorizOrder = "2";
  if (first == 'T') record_.HorizOrder = "3";
  // One column to the left of the others: "FOURTH" at column 25 is not seen here.
  if (Columns(line, 24, 2) == "FO") record_.HorizOrder = "4";
  if (Holds(line, "CORS")) record_.HorizOrder = "A";
}

namespace {

// The order word at column 25 and the class at column 41 of a vertical or ellipsoid order line.
void ReadOrderAndClass(std::string_view line, FixedText<1>& order, FixedText<1>& orderClass, bool unknownClass) {
  const std::string_view word = Columns(line, 25, 2);
  const char first = ColumnChar(line, 25);
  if (word == "FI") order = "1";
  if (first == 'S') order = "2";
  if (first == 'T') order = "3";
  if (word == "FO") order = "4";
  if (ColumnChar(line, 41) == '0') {
    orderClass = "0";
  } else if (Columns(line, 41, 2) == "II") {
    orderClass = "2";
  } else if (ColumnChar(line, 41) == 'I') {
    orderClass = "1";
  } else if (unknownClass && ColumnChar(line, 31) == '?') {
    orderClass = "?";
  }
}

}  // namespace

void DescriptionParser::ReadVerticalOrder(std::string_view line) {
  ReadOrderAndClass(line, record_.VertOrder, record_.VertClass, true);
}

void DescriptionParser::ReadEllipsoidOrder(std::string_view line) {
  ReadOrderAndClass(line, record_.EllipOrder, record_.EllipClass, false);
}

void DescriptionParser::ReadMarker(std::string_view line) {
  if (groups_.wantMark) {
    static constexpr std::string_view kAntenna = "ANTENNA REFERENCE POINT";
    if (line.find(kAntenna, 1) != std::string_view::npos) {
      record_.MarkerCode = "Z ";
      record_.SettingCode = "00";
      record_.SettingText = kAntenna;
    } else {
      const std::string code = RTrim(Columns(line, 17, 2));
      record_.MarkerCode = code;
      record_.Category = MonumentCategory(supportPath_, code);
    }
  }
  if (groups_.wantPosition && record_.HorizType.IsBlank()) {
    if (record_.MarkerCode == "DS") {
      record_.HorizType = "F";
    } else if (record_.MarkerCode == "DE") {
      record_.HorizType = "E";
    } else if (record_.Category == "L") {
      record_.HorizType = "I";
    }
  }
}

void DescriptionParser::ReadSetting(std::string_view line) {
  record_.SettingCode = Format(Val(Columns(line, 18, 2)), "00");
}

void DescriptionParser::ReadSpecialSetting(std::string_view line) {
  const std::string_view code = record_.SettingCode.View();
  const bool special = code == "00" || code == "02" || code == "04" || code == "45" || code == "55" ||
                       code == "65" || (code >= "30" && code <= "41");
  if (special) record_.SettingText = Columns(line, 17, 32);
}

void DescriptionParser::ReadStamping(std::string_view line) { record_.Stamping = Columns(line, 19, 50); }

void DescriptionParser::ReadProjection(std::string_view line) {
  const std::string_view unit = Holds(line, "CENTIMETER") ? "CM" : "FT";
  if (Columns(line, 21, 10) == "PROJECTING") {
    record_.ProjectionKind = "P";
    record_.ProjectionAmount = Columns(line, 32, 2);
    record_.ProjectionUnit = unit;
  } else if (Columns(line, 21, 8) == "RECESSED") {
    record_.ProjectionKind = "R";
    record_.ProjectionAmount = Columns(line, 30, 2);
    record_.ProjectionUnit = unit;
  } else if (Columns(line, 21, 5) == "FLUSH") {
    record_.ProjectionKind = "R";
  }
}

void DescriptionParser::ReadLogo(std::string_view line) { record_.Logo = Columns(line, 20, std::string_view::npos); }
void DescriptionParser::ReadMagnetic(std::string_view line) { record_.Magnetic = Columns(line, 19, 1); }
void DescriptionParser::ReadStability(std::string_view line) { record_.Stability = Columns(line, 20, 1); }

void DescriptionParser::ReadSatelliteSuitability(std::string_view line) {
  const std::string_view word = Columns(line, 54, 8);
  record_.SatSuitable = word == "SUITABLE" ? "Y" : word == "NOT SUIT" ? "N" : "";
}

void DescriptionParser::ReadSatelliteDate(std::string_view line) {
  const std::string_view text = TrimmedView(Columns(line, 45, std::string_view::npos));
  // A date the run time reads, or yyyymmdd read as month/day/year; otherwise the zero date.
  std::optional<Date> date = ReadDate(text);
  if (!date) {
    std::string rearranged(Columns(text, 5, 2));
    rearranged += '/';
    rearranged += Columns(text, 7, 2);
    rearranged += '/';
    rearranged += Columns(text, 1, 4);
    date = ReadDate(rearranged);
  }
  record_.SatDate = FormatYyyymmdd(date.value_or(Date{}));
}

void DescriptionParser::ReadHistory(std::string_view line) {
  if (Columns(line, 24, 4) == "Date") return;  // the table's head line
  if (historyRows_.size() < kHistoryRowLimit * kHistoryRowWidth) {
    std::string row(Columns(line, 24, 8));
    row += Columns(line, 33, 1);
    row += Columns(line, 50, 6);
    row += "   ";
    historyRows_ += FitText(row, kHistoryRowWidth);
  }
  if (Columns(line, 33, 14) == "FIRST OBSERVED" || Columns(line, 33, 10) == "MONUMENTED") {
    record_.FirstDate = Columns(line, 24, 8);
    record_.FirstAgency = Columns(line, 50, 6);
    return;
  }
  record_.LastDate = Columns(line, 24, 8);
  record_.LastAgency = Columns(line, 50, 6);
  struct Word {
    std::string_view word, condition;
  };
  static constexpr std::array<Word, 7> kConditions{{{"GOOD", "G"},
                                                    {"POOR", "P"},
                                                    {"MONU", "S"},
                                                    {"FIRS", "S"},
                                                    {"MARK", "N"},
                                                    {"NOT ", "N"},
                                                    {"OTHE", "O"}}};
  const std::string_view word = Columns(line, 33, 4);
  for (const auto& condition : kConditions)
    if (word == condition.word) record_.Condition = condition.condition;
}

}  // namespace benchlog
