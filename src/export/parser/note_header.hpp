#pragma once
// The head line of a paragraph of descriptive text: "DESCRIBED BY COASTAL CONTROL OFFICE 1933
// (RDH)" or "RECOVERY NOTE BY US POWER SQUADRON 1985 (WKB)": who wrote it, the year and the
// writer's initials.
#include <string>
#include <string_view>

#include "support_files/contributors.hpp"

namespace benchlog {

struct NoteHeader {
  std::string agencyName;  // the agency's name as the line writes it, words joined by one blank
  std::string agencyCode;  // its code from the contributors table, "" when not there
  std::string year;        // the four-digit year, "" when none
  std::string initials;    // the text of the "(...)" word from its second character, ")" as a blank
};

// Splits the line at blanks. The words "DESCRIBED", "BY", "RECOVERY" and "NOTE" are skipped; a
// word of four characters that reads as a number is the year; a word that starts with "(" gives
// the initials; the other words, joined by one blank, are the agency's name. The name
// "COASTAL CONTROL OFFICE" is taken as "US COASTAL CONTROL OFFICE". The name is then looked up in
// `contributors`. A later year or initials word replaces an earlier one. Never fails.
NoteHeader SplitNoteHeader(std::string_view text, const ContributorTable& contributors);

}  // namespace benchlog
