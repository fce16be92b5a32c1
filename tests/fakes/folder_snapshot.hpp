#pragma once
// Every file under a folder with its bytes, to show that a command left a folder as it was:
// no file changed, none added (a work file left behind) and none removed.
#include <filesystem>
#include <map>
#include <string>

#include "common/files.hpp"

namespace benchlog::testing {

inline std::map<std::string, std::string> FolderSnapshot(const std::string& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    if (entry.is_regular_file()) files[entry.path().string()] = ReadWholeFile(entry.path().string());
  return files;
}

}  // namespace benchlog::testing
