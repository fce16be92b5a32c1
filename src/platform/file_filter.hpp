#pragma once
// The classic filter text of a file dialog, "Data Files (*.dat)|*.dat|All (*.*)|*.*": pairs of a
// description and a pattern list ("*.a;*.b"), separated by "|".
#include <string>
#include <string_view>
#include <vector>

namespace benchlog {

struct FileFilter {
  std::string description;  // as written, e.g. "Data Files (*.dat)"
  std::vector<std::string> patterns;
};

// A missing pattern after the last description gives that description no patterns.
std::vector<FileFilter> ParseFileFilter(std::string_view filter);

}  // namespace benchlog
