#include "export/note_header.hpp"

#include "common/number_text.hpp"
#include "common/text.hpp"

namespace benchlog {

NoteHeader SplitNoteHeader(std::string_view text, const ContributorTable& contributors) {
  NoteHeader header;
  std::vector<std::string> nameWords;
  for (const auto& word : Split(text, " ")) {
    if (word.empty() || word == "DESCRIBED" || word == "BY" || word == "RECOVERY" || word == "NOTE") continue;
    if (word.size() == 4 && IsNumeric(word)) {
      header.year = word;
    } else if (word.front() == '(') {
      header.initials = ReplaceAll(Mid(word, 2), ")", " ");
    } else {
      nameWords.push_back(word);
    }
  }
  header.agencyName = Join(nameWords, " ");
  if (header.agencyName == "COASTAL CONTROL OFFICE") header.agencyName = "US COASTAL CONTROL OFFICE";
  header.agencyCode = contributors.CodeOf(header.agencyName);
  return header;
}

}  // namespace benchlog
