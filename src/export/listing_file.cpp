#include "export/listing_file.hpp"

#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/sort_by_column.hpp"
#include "common/text.hpp"

namespace benchlog {

ListingFile::ListingFile(const std::string& path) : path_(path), writer_(path) {}

void ListingFile::Write(std::string_view printed) {
  // The writer ends each line itself.
  if (printed.ends_with(kCrLf)) printed.remove_suffix(2);
  writer_.WriteLine(printed);
}

void ListingFile::Finish(std::string_view heading) {
  writer_.Close();
  SortAndHeadListing(path_, heading);
}

void SortAndHeadListing(const std::string& path, std::string_view heading) {
  if (FileLength(path) == 0) return;
  const std::string written = ReadWholeFile(path);
  std::vector<std::string_view> lines = SplitViews(written, kCrLf);
  SortByColumn(lines, 1);
  LineWriter out(path);
  out.WriteLine(heading.ends_with(kCrLf) ? heading.substr(0, heading.size() - 2) : heading);
  for (const std::string_view line : lines) out.WriteLine(line);
  out.Close();
}

}  // namespace benchlog
