#include "export/abbreviate_name.hpp"

#include <string_view>

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

enum class When {
  kNotFirst,    // not at the name's first character
  kNotLeading,  // the name does not begin with the word
  kNotWhole,    // the name is not just as long as the word
  kAlways,
};

struct Rule {
  std::string_view word;
  std::string_view shortForm;
  When when;
};

constexpr Rule kRules[] = {
    {"AIRPORT", "APT", When::kNotFirst},        {"AZIMUTH", "AZ", When::kNotFirst},
    {"BEACON", "BCN", When::kNotFirst},         {"BOUNDARY", "BDRY", When::kNotFirst},
    {"CATHOLIC", "CATH", When::kNotFirst},      {"CHURCH", "CH", When::kNotWhole},
    {"COURTHOUSE", "CTHSE", When::kNotFirst},   {"CREEK", "CR", When::kNotFirst},
    {"CUPOLA", "CUP", When::kNotFirst},         {"EAST ", "E ", When::kNotFirst},
    {"EPISCOPAL", "EPIS", When::kNotFirst},     {"EXPERIMENTAL", "EXPTL", When::kNotFirst},
    {"FLAGPOLE", "FP", When::kNotFirst},        {"FRONT RANGE", "FRGE", When::kAlways},
    {"ISLAND", "IS", When::kNotFirst},          {"LARGE", "L", When::kNotFirst},
    {"LIGHT", "LT ", When::kNotFirst},          {"LIGHTHOUSE", "LH ", When::kNotFirst},
    {"LOOKOUT TOWER", "LOT", When::kNotFirst},  {"LOOKOUT", "LO", When::kNotFirst},
    {"MAGNETIC", "MAG", When::kNotFirst},       {"MARK", "", When::kNotFirst},
    {"MAST", "MST", When::kNotFirst},           {"MICROWAVE", "MV", When::kNotFirst},
    {"MONUMENT", "MON", When::kNotFirst},       {"MUNICIPAL", "MUN", When::kNotFirst},
    {"NORTH", "N", When::kNotLeading},          {"POINT", "PT", When::kNotFirst},
    {"PRESBYTERIAN", "PRESB", When::kNotFirst}, {"RADIO", "RAD", When::kNotFirst},
    {"REAR RANGE", "RRGE", When::kAlways},      {"RANGE", "RGE", When::kNotFirst},
    {"REFERENCE", "RM", When::kAlways},         {"RESET", "RST", When::kAlways},
    {"RIVER", "R", When::kNotFirst},            {"SCHOOL", "SCH", When::kNotFirst},
    {"STANDPIPE", "SPIPE", When::kNotFirst},    {"SOUTH", "S", When::kNotLeading},
    {"SPIRE", "SP", When::kNotFirst},           {"STACK", "STK", When::kNotFirst},
    {"STATION", "STA", When::kNotFirst},        {" TANK", " TK", When::kNotFirst},
    {"TOWER", "TWR", When::kNotFirst},          {"WATER TANK", "WT TK", When::kNotFirst},
    {" WATER", " WT", When::kNotFirst},         {"WEST", "W", When::kNotLeading},
};

bool Holds(When when, std::string_view name, std::string_view word, std::size_t i) {
  switch (when) {
    case When::kNotFirst: return i != 1;
    case When::kNotLeading: return !name.starts_with(word);
    case When::kNotWhole: return name.size() != word.size();
    case When::kAlways: return true;
  }
  return false;
}

}  // namespace

void AbbreviateName(std::string& nameInOut) {
  const std::string name = Trim(nameInOut);
  const std::string_view text = name;
  std::string result;
  std::size_t i = 1;  // 1-based position in the name
  while (i <= name.size()) {
    for (const Rule& rule : kRules) {
      if (Mid(text, i, rule.word.size()) == rule.word && Holds(rule.when, text, rule.word, i)) {
        result += rule.shortForm;
        i += rule.word.size();
      }
    }
    const double year = Val(Mid(text, i, 4));
    if (year > 1800 && year < 2000 && i > 4) i += 4;
    result += Mid(text, i, 1);
    ++i;
  }
  nameInOut = result;
}

}  // namespace benchlog
