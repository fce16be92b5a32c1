#pragma once
// A listing file: written line by line, unsorted, while the export runs, then read back, sorted
// by its whole lines and written again under its heading. Both passes go to work files beside the
// listing; the sorted one replaces the listing at the end, so that an export that fails leaves
// the old listing as it was.
#include <string>
#include <string_view>

#include "common/line_writer.hpp"

namespace benchlog {

class ListingFile {
 public:
  // Throws RuntimeFailure "Path/File access error" when the work file cannot be created beside
  // `path` or `path` is read-only.
  explicit ListingFile(const std::string& path);
  // Printed text: one or more lines, each ending in CR LF.
  void Write(std::string_view printed);
  // Sorts and heads what was written (SortAndHeadListing) into the listing's path.
  void Finish(std::string_view heading);

 private:
  std::string path_;
  LineWriter unsorted_;
};

// Closing a listing: an empty `unsorted` text gives an empty listing, with no heading. Otherwise
// the text is split at CR LF (the last element being the empty text behind the final CR LF),
// sorted ascending by whole lines from column 1 (fewer than three elements stay as they are), and
// written to `path` as `heading` (a printed line, CR LF included) followed by every element and
// CR LF. The empty element sorts first, so with two or more marks one empty line follows the
// heading; with one mark it stands last.
void SortAndHeadListing(const std::string& unsorted, const std::string& path, std::string_view heading);

}  // namespace benchlog
