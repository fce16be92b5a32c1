#pragma once
// A listing file: written line by line, unsorted, while the export runs, then read back, sorted
// by its whole lines and written again under its heading.
#include <string>
#include <string_view>

#include "common/line_writer.hpp"

namespace benchlog {

class ListingFile {
 public:
  // Creates the file (an existing one is replaced). Throws RuntimeFailure "Path/File access
  // error" when it cannot be created.
  explicit ListingFile(const std::string& path);
  // Printed text: one or more lines, each ending in CR LF.
  void Write(std::string_view printed);
  // Closes the file, then sorts and heads it (SortAndHeadListing).
  void Finish(std::string_view heading);

 private:
  std::string path_;
  LineWriter writer_;
};

// Closing a listing: a file of 0 bytes stays empty, with no heading. Otherwise its text is split
// at CR LF (the last element being the empty text behind the final CR LF), sorted ascending by
// whole lines from column 1 (fewer than three elements stay as they are), and written again as
// `heading` (a printed line, CR LF included) followed by every element and CR LF. The empty
// element sorts first, so with two or more marks one empty line follows the heading; with one
// mark it stands last.
void SortAndHeadListing(const std::string& path, std::string_view heading);

}  // namespace benchlog
