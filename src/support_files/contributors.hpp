#pragma once
// "Contrib.dat" in the support folder: the contributors table, which turns an agency's name as
// data sheets write it into the agency's code. One agency name a line, CR LF line ends, fixed
// columns:
//   1-6   the agency's code, at most 6 characters, padded with blanks ("OCO   ", "USPSQD")
//   8-13  the agency's group (see "Groups.dat"), padded with blanks
//   15-   the agency's name as data sheets write it ("US COASTAL CONTROL OFFICE")
// An agency may stand on several lines under different names. Lines that begin with "#" and
// blank lines are comments.
#include <string>
#include <string_view>
#include <unordered_map>

namespace benchlog {

inline constexpr const char* kContributorsFileName = "Contrib.dat";

class ContributorTable {
 public:
  // Reads the table; throws RuntimeFailure FileNotFound when the file is missing.
  static ContributorTable Load(const std::string& contribPath);
  // Builds from text already read (lines separated by CR LF).
  static ContributorTable FromText(std::string_view text);

  // The code of an agency by its name, or "" when the name is not in the table. The name is
  // found whatever its letter case and whatever blanks stand around it or doubled inside it
  // ("Orbis Control Office" finds "ORBIS CONTROL OFFICE"). The first line of a name wins.
  std::string CodeOf(std::string_view agencyName) const;
  // The group of an agency by its name, or "".
  std::string GroupOf(std::string_view agencyName) const;

  std::size_t Size() const { return entries_.size(); }

 private:
  struct Entry {
    std::string code;
    std::string group;
  };
  std::unordered_map<std::string, Entry> entries_;  // keyed by the normalised name
};

// A name as the table compares it: capitals, trimmed, runs of blanks made one blank.
std::string NormalizeAgencyName(std::string_view agencyName);

}  // namespace benchlog
