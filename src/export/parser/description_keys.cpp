// The keyed lines of a Description: each line's key (columns 8 to 16) chooses what it gives the
// record.
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

#include "common/dates.hpp"
#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "export/parser/description_parser.hpp"
#include "common/fit.hpp"
#include "support_files/monument_category.hpp"

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
bool SourceIs(std::string_view line, std::string_view word) { return WordAt(line, 69, word); }

// The nine characters of a key as one number, for the look-up table below.
std::uint64_t KeyHash(std::string_view key) {
  std::uint64_t word = 0;
  std::memcpy(&word, key.data(), 8);
  word ^= static_cast<std::uint64_t>(static_cast<unsigned char>(key[8])) << 3;
  return (word * 0x9E3779B97F4A7C15ull) >> 57;  // 7 bits: a slot of 128
}

}  // namespace

// The keys are distinct nine-character texts, so finding a line's key in a hashed table gives
// what comparing it with the keys from top to bottom would: the look-up runs for every line of
// every Description and has to cost next to nothing.
const DescriptionParser::Key* DescriptionParser::FindKey(std::string_view key) {
  using G = KeyGroup;
  static constexpr std::array<Key, 42> kKeys{{
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
  static const auto slots = [] {
    std::array<const Key*, 128> table{};
    for (const Key& entry : kKeys) {
      std::size_t slot = KeyHash(entry.text);
      while (table[slot]) slot = (slot + 1) % table.size();
      table[slot] = &entry;
    }
    return table;
  }();
  if (key.size() != 9) return nullptr;
  for (std::size_t slot = KeyHash(key); slots[slot]; slot = (slot + 1) % slots.size())
    if (std::memcmp(slots[slot]->text.data(), key.data(), 9) == 0) return slots[slot];
  return nullptr;
}

void DescriptionParser::ReadKey(std::string_view line) {
  const Key* key = FindKey(Cols(line, 8, 9));
  if (!key) return;
  const bool wanted = key->group == KeyGroup::kAny ||
                      (key->group == KeyGroup::kPosition && groups_.wantPosition) ||
                      (key->group == KeyGroup::kMark && groups_.wantMark) ||
                      (key->group == KeyGroup::kMarkOrPosition && (groups_.wantMark || groups_.wantPosition));
  if (!wanted || (key->needsHyphen && Col(line, 22) != '-')) return;
  (this->*key->action)(line);
}

void DescriptionParser::AddNet(char letter) {
  std::string net(record_.Net.Trimmed());
  net += letter;
  record_.Net = net;
}

void DescriptionParser::ReadDesignation(std::string_view line) { record_.Designation = Cols(line, 25, 40); }
void DescriptionParser::ReadCorsId(std::string_view line) { record_.CorsId = Cols(line, 25, 4); }
void DescriptionParser::ReadPid(std::string_view line) { record_.Pid = Cols(line, 25, 6); }
void DescriptionParser::ReadEpoch(std::string_view line) { record_.Epoch = Cols(line, 31, 9); }
void DescriptionParser::ReadLaplace(std::string_view line) { record_.Laplace = Cols(line, 32, 6); }
void DescriptionParser::ReadDynamicHeight(std::string_view line) { record_.DynamicHeight = Cols(line, 31, 8); }

void DescriptionParser::ReadPosition(std::string_view line) {
  record_.HorizDatum = "83";
  if (Holds(line, "(")) {
    std::string_view tag = Cols(line, 17, 6);
    tag = tag.substr(0, tag.find(')'));
    record_.DatumTag = FitToWidth(tag, 6);
  }
  // The long datum tag ("NSRS2007") moves the hyphen to column 26 and the latitude four columns
  // and the longitude one column to the right.
  const bool longTag = Col(line, 26) == '-';
  const std::size_t lat = longTag ? 29 : 25;
  const std::size_t lon = longTag ? 47 : 46;
  std::string latitude(Cols(line, lat, 2));
  latitude += Cols(line, lat + 3, 2);
  latitude += Cols(line, lat + 6, 8);
  std::string longitude(Cols(line, lon, 3));
  longitude += Cols(line, lon + 4, 2);
  longitude += Cols(line, lon + 7, 8);
  record_.Latitude = latitude;
  record_.LatHemi = Cols(line, lat + 15, 1);
  record_.Longitude = longitude;
  record_.LonHemi = Cols(line, lon + 16, 1);
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
    if (WordAt(line, 8, datum.key)) record_.VertDatum = datum.code;
  record_.OrthoHeight = TrimmedView(Cols(line, Col(line, 26) == '-' ? 33 : 29, 8));

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
  record_.EllipHeight = TrimmedView(Cols(line, 26, 13));
  std::string date(Cols(line, 59, 8));
  if (!IsBlankText(date)) {
    // An unknown day is written "??"; the height then counts as observed on the first.
    if (Cols(line, 62, 2) == "??") date.replace(3, 2, "01");
    if (const auto read = ReadDate(date)) StoreYyyymmdd(record_.EllipDate, *read);
  }
  if (WordAt(line, 69, "GPS OBS")) {
    record_.EllipSource = "A";
    record_.EllipMethod = "G";
  }
}

void DescriptionParser::ReadGeoidHeight(std::string_view line) {
  if (Cols(line, 69, 5) == "EGM96") {
    record_.GeoidModel = "EG96";
  } else {
    std::string model(Cols(line, 74, 2));
    model += "  ";
    record_.GeoidModel = model;
  }
  record_.GeoidHeight = TrimmedView(Cols(line, 26, 13));
  record_.GeoidSource = "A";
}

void DescriptionParser::ReadLocalAccuracy(std::string_view line) {
  if (Cols(line, 18, 7) != "AVERAGE") return;
  record_.LocalN = Cols(line, 59, 4);
  record_.LocalE = Cols(line, 66, 4);
  record_.LocalH = Cols(line, 73, 4);
}

void DescriptionParser::ReadNetworkAccuracy(std::string_view line) {
  record_.HorizOrder = "0";
  record_.NetworkN = Cols(line, 59, 4);
  record_.NetworkE = Cols(line, 66, 4);
  record_.NetworkH = Cols(line, 73, 4);
}

void DescriptionParser::ReadModeledGravity(std::string_view line) {
  record_.ModeledGravity = ReplaceAll(Cols(line, 28, 9), ",", "");
}

void DescriptionParser::ReadStateCounty(std::string_view line) {
  record_.State = Cols(line, 25, 2);
  record_.County = Cols(line, 28, 20);
}

void DescriptionParser::ReadQuad(std::string_view line) {
  const std::string_view text = TrimmedView(ColsToEnd(line, 25));
  const auto open = text.find('(');
  if (open == std::string_view::npos) {
    record_.Quad = text;
    return;
  }
  record_.QuadDate = text.substr(open + 1, 4);
  record_.Quad = TrimmedView(text.substr(0, open));
}

void DescriptionParser::ReadHorizontalOrder(std::string_view line) {
  const char first = Col(line, 25);
  if (first == 'A') record_.HorizOrder = "A";
  if (first == 'B') record_.HorizOrder = "B";
  if (Cols(line, 25, 2) == "FI") record_.HorizOrder = "1";
  if (first == 'S') record_.HorizOrder = "2";
  if (first == 'T') record_.HorizOrder = "3";
  // One column to the left of the others: "FOURTH" at column 25 is not seen here.
  if (Cols(line, 24, 2) == "FO") record_.HorizOrder = "4";
  if (Holds(line, "CORS")) record_.HorizOrder = "A";
}

namespace {

// The order word at column 25 and the class at column 41 of a vertical or ellipsoid order line.
void ReadOrderAndClass(std::string_view line, FixedText<1>& order, FixedText<1>& orderClass, bool unknownClass) {
  const std::string_view word = Cols(line, 25, 2);
  const char first = Col(line, 25);
  if (word == "FI") order = "1";
  if (first == 'S') order = "2";
  if (first == 'T') order = "3";
  if (word == "FO") order = "4";
  if (Col(line, 41) == '0') {
    orderClass = "0";
  } else if (Cols(line, 41, 2) == "II") {
    orderClass = "2";
  } else if (Col(line, 41) == 'I') {
    orderClass = "1";
  } else if (unknownClass && Col(line, 31) == '?') {
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
      const std::string code = RTrim(Cols(line, 17, 2));
      record_.MarkerCode = code;
      record_.Category = MonumentCategory(*support_.MonumentCategories(), code);
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
  const double code = Val(Cols(line, 18, 2));
  // A whole number of two digits at most is its two digits, as the pattern "00" writes it.
  const int whole = static_cast<int>(code);
  if (whole == code && whole >= 0 && whole <= 99) {
    const char digits[2] = {static_cast<char>('0' + whole / 10), static_cast<char>('0' + whole % 10)};
    record_.SettingCode = std::string_view(digits, 2);
  } else {
    record_.SettingCode = Format(code, "00");
  }
}

void DescriptionParser::ReadSpecialSetting(std::string_view line) {
  const std::string_view code = record_.SettingCode.View();
  const bool special = code == "00" || code == "02" || code == "04" || code == "45" || code == "55" ||
                       code == "65" || (code >= "30" && code <= "41");
  if (special) record_.SettingText = Cols(line, 17, 32);
}

void DescriptionParser::ReadStamping(std::string_view line) { record_.Stamping = Cols(line, 19, 50); }

void DescriptionParser::ReadProjection(std::string_view line) {
  const std::string_view unit = Holds(line, "CENTIMETER") ? "CM" : "FT";
  if (Cols(line, 21, 10) == "PROJECTING") {
    record_.ProjectionKind = "P";
    record_.ProjectionAmount = Cols(line, 32, 2);
    record_.ProjectionUnit = unit;
  } else if (Cols(line, 21, 8) == "RECESSED") {
    record_.ProjectionKind = "R";
    record_.ProjectionAmount = Cols(line, 30, 2);
    record_.ProjectionUnit = unit;
  } else if (Cols(line, 21, 5) == "FLUSH") {
    record_.ProjectionKind = "R";
  }
}

void DescriptionParser::ReadLogo(std::string_view line) { record_.Logo = ColsToEnd(line, 20); }
void DescriptionParser::ReadMagnetic(std::string_view line) { record_.Magnetic = Cols(line, 19, 1); }
void DescriptionParser::ReadStability(std::string_view line) { record_.Stability = Cols(line, 20, 1); }

void DescriptionParser::ReadSatelliteSuitability(std::string_view line) {
  const std::string_view word = Cols(line, 54, 8);
  record_.SatSuitable = word == "SUITABLE" ? "Y" : word == "NOT SUIT" ? "N" : "";
}

void DescriptionParser::ReadSatelliteDate(std::string_view line) {
  const std::string_view text = TrimmedView(ColsToEnd(line, 45));
  // A date the run time reads, or yyyymmdd read as month/day/year; otherwise the zero date.
  std::optional<Date> date = ReadDate(text);
  if (!date) {
    std::string rearranged(Cols(text, 5, 2));
    rearranged += '/';
    rearranged += Cols(text, 7, 2);
    rearranged += '/';
    rearranged += Cols(text, 1, 4);
    date = ReadDate(rearranged);
  }
  StoreYyyymmdd(record_.SatDate, date.value_or(Date{}));
}

void DescriptionParser::ReadHistory(std::string_view line) {
  if (Cols(line, 24, 4) == "Date") return;  // the table's head line
  if (historyRows_.size() < kHistoryRowLimit * kHistoryRowWidth) {
    scratch_.assign(Cols(line, 24, 8));
    scratch_ += Cols(line, 33, 1);
    scratch_ += Cols(line, 50, 6);
    scratch_ += "   ";
    AppendFitToWidth(historyRows_, scratch_, kHistoryRowWidth);
  }
  if (Cols(line, 33, 14) == "FIRST OBSERVED" || Cols(line, 33, 10) == "MONUMENTED") {
    record_.FirstDate = Cols(line, 24, 8);
    record_.FirstAgency = Cols(line, 50, 6);
    return;
  }
  record_.LastDate = Cols(line, 24, 8);
  record_.LastAgency = Cols(line, 50, 6);
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
  const std::string_view word = Cols(line, 33, 4);
  for (const auto& condition : kConditions)
    if (word == condition.word) record_.Condition = condition.condition;
}

}  // namespace benchlog
