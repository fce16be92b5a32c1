#include "support_files/country_file.hpp"

#include "common/files.hpp"
#include "common/format.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

std::string_view KeyOf(std::string_view trimmedLine) { return trimmedLine.substr(0, 2); }

}  // namespace

std::vector<std::string> CountryStateList(const std::string& countryPath) {
  std::vector<std::string> states;
  LineReader reader(countryPath);
  std::string_view line;
  while (reader.ReadLine(line)) {
    const std::string_view trimmed = TrimView(line);
    if (KeyOf(trimmed) == "RB") states.push_back(Mid(trimmed, 5));
  }
  return states;
}

std::vector<std::string> CountryCountyList(const std::string& countryPath, std::string_view stateCode) {
  std::vector<std::string> counties;
  LineReader reader(countryPath);
  std::string_view line;
  bool inState = false;
  while (reader.ReadLine(line)) {
    const std::string_view trimmed = TrimView(line);
    const std::string_view key = KeyOf(trimmed);
    if (inState) {
      if (key == "RA" || key == "RB") break;
      if (key == "RC") counties.push_back(Mid(trimmed, 9));
    } else if (key == "RB" && trimmed.substr(std::min<std::size_t>(4, trimmed.size()), 2) == stateCode) {
      inState = true;
    }
  }
  return counties;
}

FipsIndex::FipsIndex(const std::string& countryPath) { *this = FromText(ReadWholeFile(countryPath)); }

FipsIndex FipsIndex::FromText(std::string_view text) {
  FipsIndex index;
  index.stateIndex_ = Space(6);
  bool inUs = false;
  for (const std::string_view raw : SplitViews(text, "\r\n")) {
    const std::string_view trimmed = TrimView(raw);
    const std::string_view key = KeyOf(trimmed);
    if (key == "RA") inUs = Mid(trimmed, 5, 2) == "US";
    if (key == "RB" && inUs) {
      index.stateIndex_ += Mid(trimmed, 5, 2) + Format(static_cast<double>(index.lines_.size()), "0000") + " ";
    }
    index.lines_.emplace_back(trimmed);
  }
  return index;
}

std::string FipsIndex::LookUp(std::string_view stateCode, std::string_view county) const {
  // The line number stands in the four characters behind the code; a code that is not there
  // gives position 0, whose "four characters behind" are blanks of the index's head: line 0.
  const std::size_t found = InStr(stateIndex_, stateCode);
  const auto first = static_cast<std::size_t>(Val(Mid(stateIndex_, found + 2, 4)));
  bool inState = false;
  for (std::size_t i = first; i < lines_.size(); ++i) {
    const std::string& line = lines_[i];
    if (KeyOf(line) == "RB") {
      inState = Mid(line, 5, 2) == stateCode;
    } else if (inState && Trim(Mid(line, 9)) == county) {
      return Mid(line, 5, 3);
    }
  }
  return "";
}

std::string LookUpFips(const std::string& countryPath, std::string_view stateCode, std::string_view county) {
  return FipsIndex(countryPath).LookUp(stateCode, county);
}

}  // namespace benchlog
