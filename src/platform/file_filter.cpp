#include "platform/file_filter.hpp"

#include "common/text.hpp"

namespace benchlog {

std::vector<FileFilter> ParseFileFilter(std::string_view filter) {
  std::vector<FileFilter> filters;
  if (filter.empty()) return filters;
  const auto parts = Split(filter, "|");
  for (std::size_t i = 0; i < parts.size(); i += 2) {
    FileFilter f{parts[i], {}};
    if (i + 1 < parts.size())
      for (const auto& pattern : Split(parts[i + 1], ";"))
        if (!Trim(pattern).empty()) f.patterns.push_back(Trim(pattern));
    filters.push_back(std::move(f));
  }
  return filters;
}

}  // namespace benchlog
