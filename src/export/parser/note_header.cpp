#include "export/parser/note_header.hpp"

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {

// The words are taken as views of the text, one after the other: the export splits a head line
// for every note of every Description.
NoteHeader SplitNoteHeader(std::string_view text, const ContributorTable& contributors) {
  NoteHeader header;
  std::size_t start = 0;
  while (start <= text.size()) {
    const std::size_t end = std::min(text.find(' ', start), text.size());
    const std::string_view word = text.substr(start, end - start);
    start = end + 1;
    if (word.empty() || word == "DESCRIBED" || word == "BY" || word == "RECOVERY" || word == "NOTE") continue;
    if (word.size() == 4 && IsNumeric(word)) {
      header.year = word;
    } else if (word.front() == '(') {
      header.initials = ReplaceAll(word.substr(1), ")", " ");
    } else {
      if (!header.agencyName.empty()) header.agencyName += ' ';
      header.agencyName += word;
    }
  }
  if (header.agencyName == "COASTAL CONTROL OFFICE") header.agencyName = "US COASTAL CONTROL OFFICE";
  header.agencyCode = contributors.CodeOf(header.agencyName);
  return header;
}

}  // namespace benchlog
