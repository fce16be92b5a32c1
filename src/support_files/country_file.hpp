#pragma once
// "Country.dat": the geographic names the county, radius and CORS commands offer. One entry a line,
// CR LF line ends; a line is keyed by its first two characters after it has been trimmed of
// blanks, and its columns count from 1 on the trimmed line:
//   "RA" a country:                  columns 5-6 the country code ("US").
//   "RB" a state under the last RA:  columns 5-6 the state code; 5 onward the text shown in the
//                                    state list, code first ("NC NORTH CAROLINA").
//   "RC" a county under the last RB: columns 5-7 the three-digit FIPS code; 9 onward its name.
// Other keys are skipped.
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

inline constexpr const char* kCountryFileName = "Country.dat";

// The state list: columns 5 onward of every "RB" line of the file, in file order, whatever
// country it stands under. Throws RuntimeFailure FileNotFound when the file is missing.
std::vector<std::string> CountryStateList(const std::string& countryPath);

// The county list of a state: from the first "RB" line whose columns 5-6 equal `stateCode`
// (exact, case-sensitive), columns 9 onward of every "RC" line up to the next "RA" or "RB" line.
// Empty when the state is not in the file. Throws FileNotFound when the file is missing.
std::vector<std::string> CountryCountyList(const std::string& countryPath, std::string_view stateCode);

// The FIPS look-up. Built once from the whole file and kept: the lines as an array, and a state
// index string of six blanks followed by, for each "RB" line under an "RA" line of code "US", its
// state code, its array index in four digits ("0000") and one blank.
class FipsIndex {
 public:
  // Reads the whole file; throws RuntimeFailure FileNotFound when it is missing.
  explicit FipsIndex(const std::string& countryPath);
  // Builds from text already read (lines separated by CR LF).
  static FipsIndex FromText(std::string_view text);

  // The county's three-character FIPS code, or "" when no line matches. The walk starts at the
  // line that the state index gives for `stateCode` (line 0 when the code is not there); an "RB"
  // line sets the found-state flag to whether its code is `stateCode`, and any other line, while
  // the flag is set, whose columns 9 onward trimmed equal `county` (exact) gives columns 5-7.
  std::string LookUp(std::string_view stateCode, std::string_view county) const;

  const std::string& StateIndex() const { return stateIndex_; }
  std::size_t LineCount() const { return lines_.size(); }

 private:
  FipsIndex() = default;
  std::vector<std::string> lines_;  // trimmed
  std::string stateIndex_;
};

// One-off look-up: builds a FipsIndex from the file and asks it. Callers that look up more than
// once keep a FipsIndex instead.
std::string LookUpFips(const std::string& countryPath, std::string_view stateCode, std::string_view county);

}  // namespace benchlog
