#include "export/listing_file.hpp"

#include <vector>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/text.hpp"
#include "geodesy/sort_by_column.hpp"

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
  std::string text(heading);
  std::size_t size = text.size();
  for (const auto& line : lines) size += line.size() + 2;
  text.reserve(size);
  for (const std::string_view line : lines) text.append(line).append(kCrLf);
  WriteWholeFile(path, text);
}

}  // namespace benchlog
