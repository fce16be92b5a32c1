#include "export/listing_file.hpp"

#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/sort_by_column.hpp"
#include "common/text.hpp"

namespace benchlog {

ListingFile::ListingFile(const std::string& path) : path_(path), unsorted_(path) {}

void ListingFile::Write(std::string_view printed) {
  // The writer ends each line itself.
  if (printed.ends_with(kCrLf)) printed.remove_suffix(2);
  unsorted_.WriteLine(printed);
}

void ListingFile::Finish(std::string_view heading) {
  unsorted_.Flush();
  SortAndHeadListing(ReadWholeFile(unsorted_.WorkPath()), path_, heading);
  unsorted_.Abandon();  // the unsorted pass has served
}

void SortAndHeadListing(const std::string& unsorted, const std::string& path, std::string_view heading) {
  LineWriter out(path);
  if (!unsorted.empty()) {
    std::vector<std::string_view> lines = SplitViews(unsorted, kCrLf);
    SortByColumn(lines, 1);
    out.WriteLine(heading.ends_with(kCrLf) ? heading.substr(0, heading.size() - 2) : heading);
    for (const std::string_view line : lines) out.WriteLine(line);
  }
  out.Close();
}

}  // namespace benchlog
