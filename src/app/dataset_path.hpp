#pragma once
// The current dataset's path is kept in lower case, so that the same dataset chosen twice is
// recognised whatever the case of its letters. On a file system that tells letter cases apart
// the lower-case form is taken only where it names the same place; otherwise the path keeps
// its case, so the dataset stays reachable.
#include <string>

namespace benchlog {

std::string LowerCaseDatasetPath(const std::string& path);

}  // namespace benchlog
