#include "dataset_generator.hpp"

#include <cstdio>
#include <random>
#include <string_view>

#include "common/line_writer.hpp"

namespace benchlog::bench {
namespace {

const char* const kNames[] = {"MESA", "RIDGE", "CHURCH SPIRE", "WATER TANK", "RADIO MAST", "HILL", "BRIDGE",
                              "CREEK", "TOWER", "AZIMUTH", "RESET", "STATION", "PEAK", "KNOB", "BUTTE", "FERRY",
                              "MILL", "SCHOOL", "CAPITOL DOME", "AIRPORT BEACON", "STACK", "SUMMIT", "DAM"};
const char* const kCounties[] = {"DENVER", "JEFFERSON", "BOULDER", "ADAMS", "ARAPAHOE", "DOUGLAS", "EL PASO",
                                 "LARIMER", "WELD", "PUEBLO", "MESA", "GUNNISON", "SAN JUAN", "LA PLATA"};
const char* const kAgencies[] = {"OCO", "CCO", "USGS", "COUSGS", "USPSQD", "CODOT", "COUNTY", "USACE"};
const char* const kConditions[] = {"GOOD", "GOOD", "GOOD", "POOR", "NOT RECOVERED", "SEE DESCRIPTION",
                                   "MARK NOT FOUND", "DESTROYED"};
const char* const kWords[] = {"THE",   "MARK",  "IS",     "SET",   "IN",    "A",      "CONCRETE", "POST",
                              "FEET",  "NORTH", "OF",     "ROAD",  "EAST",  "SOUTH",  "WEST",     "FROM",
                              "CENTER", "LINE", "HIGHWAY", "FENCE", "CORNER", "ABOUT", "METERS",   "AND",
                              "TO",    "STATION", "DISK",  "STAMPED", "WITNESS", "POLE", "BRIDGE", "CULVERT"};

template <std::size_t N>
const char* Pick(std::mt19937& random, const char* const (&list)[N]) {
  return list[std::uniform_int_distribution<std::size_t>(0, N - 1)(random)];
}

// Places texts at 1-based columns of a line.
class Line {
 public:
  explicit Line(const std::string& pid, char mark = ' ') { At(1, " " + pid + mark); }
  Line& At(std::size_t column, const std::string& text) {
    if (text_.size() < column - 1) text_.resize(column - 1, ' ');
    text_.replace(column - 1, std::min(text.size(), text_.size() - (column - 1)), text);
    return *this;
  }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

std::string Format(const char* pattern, double a, double b = 0, double c = 0) {
  char buffer[96];
  std::snprintf(buffer, sizeof buffer, pattern, a, b, c);
  return buffer;
}

class DescriptionWriter {
 public:
  DescriptionWriter(LineWriter& out, std::mt19937& random) : out_(out), random_(random) {}

  std::uint64_t Write(const std::string& pid) {
    bytes_ = 0;
    pid_ = pid;
    Emit("1        Orbis Control Office,   Retrieval Date = MARCH 3, 2024");
    Emit(Line(pid_).At(10, std::string(69, '*')));
    ClassLines();
    NameLines();
    ControlLines();
    Orders();
    Notes();
    CoordinateLines();
    if (Between(0, 2) > 0) BoxScore();
    if (Between(0, 1) == 0) Superseded();
    Attributes();
    History();
    RecoveryText();
    return bytes_;
  }

 private:
  void Emit(const Line& line) { Emit(line.Text()); }
  void Emit(const std::string& text) {
    const std::string_view kept = std::string_view(text).substr(0, text.find_last_not_of(' ') + 1);
    out_.WriteLine(kept);
    bytes_ += kept.size() + 2;
  }

  void ClassLines() {
    static const char* const kClasses[][2] = {{"CORS", "Continuously Operating Reference Station"},
                                              {"FBN", "Federal Base Network Control Station"},
                                              {"PACS", "Primary Airport Control Station"},
                                              {"HT_MOD", "Height Modernization Station"},
                                              {"TIDAL BM", "Tidal Bench Mark"}};
    if (Between(0, 3) != 0) return;
    const auto& c = kClasses[Between(0, 4)];
    Emit(Line(pid_).At(10, c[0]).At(22, std::string("- This is a ") + c[1] + "."));
  }

  void NameLines() {
    name_ = std::string(Pick(random_, kNames)) + " " + std::to_string(Between(1, 99));
    Emit(Line(pid_).At(10, "DESIGNATION -  " + name_));
    Emit(Line(pid_).At(10, "PID         -  " + pid_));
    Emit(Line(pid_).At(10, "STATE/COUNTY-  CO/").At(28, Pick(random_, kCounties)));
    Emit(Line(pid_).At(10, "COUNTRY     -  US"));
    Emit(Line(pid_).At(10, std::string("USGS QUAD   -  ") + Pick(random_, kCounties) + " (" +
                                std::to_string(Between(1950, 2020)) + ")"));
    Emit(Line(pid_));
    Emit(Line(pid_).At(33, "*CURRENT SURVEY CONTROL"));
    Emit(Line(pid_).At(10, std::string(67, '_')));
  }

  void ControlLines() {
    const std::string lat = Format("%02.0f %02.0f %08.5f", Between(37, 40), Between(0, 59),
                                   std::uniform_real_distribution<double>(0, 59.99999)(random_));
    const std::string lon = Format("%03.0f %02.0f %08.5f", Between(102, 109), Between(0, 59),
                                   std::uniform_real_distribution<double>(0, 59.99999)(random_));
    if (Between(0, 4) == 0) {  // a long datum tag shifts the position
      Emit(Line(pid_, '*').At(10, "NAD 83(NSRS2007)-  " + lat).At(43, "(N) " + lon).At(62, "(W)").At(69, "ADJUSTED"));
    } else {
      Emit(Line(pid_, '*').At(10, "NAD 83(2011)").At(22, "-  " + lat).At(39, "(N)").At(46, lon).At(61, "(W)").At(69,
                                                                                                           "ADJUSTED"));
    }
    const double metres = std::uniform_real_distribution<double>(1000, 4300)(random_);
    Emit(Line(pid_, '*').At(10, "NAVD 88").At(22, "-").At(29, Format("%8.2f", metres)).At(39, "(meters)").At(
        50, Format("%7.1f", metres / 0.3048006)).At(61, "(feet)").At(69, "ADJUSTED"));
    Emit(Line(pid_));
    Emit(Line(pid_).At(10, "EPOCH DATE  -").At(31, "2010.00"));
    for (const char* axis : {"X", "Y", "Z"})
      Emit(Line(pid_).At(10, axis).At(22, "-").At(25, Format("%13.3f", std::uniform_real_distribution<double>(
                                                                        -5e6, 5e6)(random_))).At(40, "(meters)").At(69, "COMP"));
    Emit(Line(pid_).At(10, "ELLIP HEIGHT-").At(26, Format("%9.2f", metres - 16.5)).At(40, "(meters)").At(
        58, "(06/15/05)").At(69, "GPS OBS"));
    Emit(Line(pid_).At(10, "GEOID HEIGHT-").At(26, "-16.50").At(40, "(meters)").At(69, "GEOID12B"));
    Emit(Line(pid_).At(10, "DYNAMIC HT  -").At(31, Format("%8.3f", metres - 1)).At(40, "(meters)").At(
        50, Format("%9.2f", (metres - 1) / 0.3048006)).At(61, "(feet)").At(69, "COMP"));
    if (Between(0, 1) == 0) {
      Emit(Line(pid_));
      Emit(Line(pid_).At(10, "FGDC Geospatial Positioning Accuracy Standards (95% confidence, cm)"));
      Emit(Line(pid_).At(10, "Type          PID Designation").At(62, "North   East  Ellip"));
      Emit(Line(pid_).At(10, std::string(67, '-')));
      Emit(Line(pid_).At(10, "NETWORK " + pid_ + " " + name_).At(59, "0.52").At(66, "0.43").At(73, "1.21"));
      Emit(Line(pid_).At(10, std::string(67, '-')));
    }
  }

  void Orders() {
    static const char* const kHorz[] = {"FIRST", "SECOND", "THIRD", "A", "B", "SPECIAL (CORS)", "FOURTH"};
    static const char* const kVert[] = {"FIRST     CLASS II", "SECOND    CLASS 0", "THIRD", "  POSTED"};
    Emit(Line(pid_));
    Emit(Line(pid_).At(10, std::string("HORZ ORDER  -  ") + Pick(random_, kHorz)));
    Emit(Line(pid_).At(10, std::string("VERT ORDER  -  ") + Pick(random_, kVert)));
  }

  void Notes() {
    Emit(Line(pid_));
    for (int n = Between(2, 6); n > 0; --n) Emit(Line(pid_, '.').At(8, "." + Sentence(60)));
  }

  void CoordinateLines() {
    Emit(Line(pid_));
    Emit(Line(pid_, ';').At(8, ";                    North         East     Units Scale Factor Converg."));
    Emit(Line(pid_, ';').At(8, ";SPC CO C     -   515,123.456   954,321.987   MT  0.99993  +0 12 34.5"));
    Emit(Line(pid_, ';').At(8, ";UTM  13      - 4,398,765.432   498,765.432   MT  0.99960  -0 01 02.3"));
    Emit(Line(pid_, '!').At(8, "!             -  Elev Factor  x  Scale Factor =  Combined Factor"));
    Emit(Line(pid_, '!').At(8, "!SPC CO C     -   0.99975      x  0.99993      =  0.99968"));
    Emit(Line(pid_, ':').At(8, ":               Primary Azimuth Mark                      Grid Az"));
    Emit(Line(pid_, ':').At(8, ":SPC CO C     - " + name_ + " AZ MK").At(69, "045 12 30.5"));
  }

  void BoxScore() {
    Emit(Line(pid_, '|').At(8, "|" + std::string(68, '-') + "|"));
    Emit(Line(pid_, '|').At(8, "| PID").At(17, "Reference Object").At(54, "Distance").At(68, "Geod. Az  |"));
    Emit(Line(pid_, '|').At(8, "|").At(68, "dddmmss.s |"));
    for (int n = Between(2, 6); n > 0; --n) {
      const bool hasPid = Between(0, 1) == 0;
      Emit(Line(pid_, '|').At(8, "|").At(10, hasPid ? "AB" + std::to_string(Between(1000, 9999)) : "").At(
          17, name_ + (n % 2 ? " RM " : " AZ ") + std::to_string(n)).At(52, Format("%8.3f METERS", Between(5, 900) / 7.0)).At(
          68, Format("%07.0f.%1.0f", Between(0, 3595959), Between(0, 9))).At(78, "|"));
    }
    Emit(Line(pid_, '|').At(8, "|" + std::string(68, '-') + "|"));
  }

  void Superseded() {
    Emit(Line(pid_));
    Emit(Line(pid_).At(34, "SUPERSEDED SURVEY CONTROL"));
    Emit(Line(pid_));
    for (int n = Between(2, 5); n > 0; --n)
      Emit(Line(pid_).At(10, "NAD 83(1992)-  39 44 29.1234(N)    104 59 31.5432(W) AD(       ) 1"));
  }

  void Attributes() {
    static const char* const kMarkers[] = {"DB = BENCH MARK DISK", "DD = SURVEY DISK", "36 = SPIRE",
                                           "71 = SEE DESCRIPTION", "DR = REFERENCE MARK DISK"};
    Emit(Line(pid_));
    Emit(Line(pid_, '_').At(8, std::string("_MARKER: ") + Pick(random_, kMarkers)));
    Emit(Line(pid_, '_').At(8, "_SETTING: 7 = SET IN TOP OF CONCRETE MONUMENT"));
    Emit(Line(pid_, '_').At(8, "_STAMPING: " + name_ + " 1978"));
    Emit(Line(pid_, '_').At(8, "_MARK LOGO: CCO"));
    Emit(Line(pid_, '_').At(8, "_PROJECTION: PROJECTING 10 CENTIMETERS"));
    Emit(Line(pid_, '_').At(8, "_MAGNETIC: N = NO MAGNETIC MATERIAL"));
    if (Between(0, 2) > 0)
      Emit(Line(pid_, '_').At(8, "_STABILITY: " + std::string(1, "ABCD"[Between(0, 3)]) + " = MOST RELIABLE"));
    Emit(Line(pid_, '_').At(8, Between(0, 3) ? "_SATELLITE: THE SITE LOCATION WAS REPORTED AS SUITABLE FOR"
                                                         : "_SATELLITE: THE SITE LOCATION WAS REPORTED AS NOT SUITABLE FOR"));
    Emit(Line(pid_, '+').At(8, "+SATELLITE: SATELLITE OBSERVATIONS - June 15, 2005"));
    Emit(Line(pid_, '_').At(8, "_U.S. NATIONAL GRID SPATIAL ADDRESS: 13SEC0123456789(NAD 83)"));
  }

  void History() {
    Emit(Line(pid_));
    Emit(Line(pid_).At(8, "  HISTORY").At(22, "-").At(24, "Date").At(33, "Condition").At(50, "Report By"));
    int year = Between(1900, 1980);
    Emit(Line(pid_).At(8, "  HISTORY").At(22, "-").At(24, std::to_string(year)).At(33, "MONUMENTED").At(50, "CCO"));
    for (int n = Between(1, 7); n > 0; --n) {
      year += Between(1, 8);
      Emit(Line(pid_).At(8, "  HISTORY").At(22, "-").At(24, std::to_string(year) + "0615").At(
          33, Pick(random_, kConditions)).At(50, Pick(random_, kAgencies)));
    }
  }

  void RecoveryText() {
    Emit(Line(pid_));
    Emit(Line(pid_).At(34, "STATION DESCRIPTION"));
    Emit(Line(pid_));
    Emit(Line(pid_, '\'').At(8, "'DESCRIBED BY COASTAL CONTROL OFFICE 1935"));
    for (int paragraph = Between(1, 4); paragraph > 0; --paragraph) {
      for (int n = Between(3, 9); n > 0; --n) Emit(Line(pid_, '\'').At(8, "'" + Sentence(72)));
      Emit(Line(pid_, '\''));
      Emit(Line(pid_, '\'').At(8, std::string("'RECOVERY NOTE BY ") + Pick(random_, kAgencies) + " 2012"));
    }
  }

  std::string Sentence(std::size_t width) {
    std::string text;
    while (true) {
      const std::string word = Pick(random_, kWords);
      if (text.size() + word.size() + 1 > width) return text;
      text += (text.empty() ? "" : " ") + word;
    }
  }

  int Between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

  LineWriter& out_;
  std::mt19937& random_;
  std::string pid_, name_;
  std::uint64_t bytes_ = 0;
};

std::string PidNumber(std::size_t i) {
  char pid[8];
  std::snprintf(pid, sizeof pid, "%c%c%04zu", static_cast<char>('A' + (i / 10000 / 26) % 26),
                static_cast<char>('A' + (i / 10000) % 26), i % 10000);
  return pid;
}

}  // namespace

GeneratedDataset GenerateDataset(const std::string& path, std::uint64_t targetBytes, unsigned seed) {
  std::mt19937 random(seed);
  LineWriter out(path);
  DescriptionWriter writer(out, random);
  GeneratedDataset result;
  while (result.bytes < targetBytes) {
    result.pids.push_back(PidNumber(result.pids.size()));
    result.bytes += writer.Write(result.pids.back());
  }
  out.Close();
  return result;
}

}  // namespace benchlog::bench
