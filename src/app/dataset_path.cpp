#include "app/dataset_path.hpp"

#include <filesystem>

#include "common/paths.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

bool SamePlace(const std::string& a, const std::string& b) {
  std::error_code error;
  return std::filesystem::equivalent(a, b, error) && !error;
}

}  // namespace

std::string LowerCaseDatasetPath(const std::string& path) {
  const std::string lower = LCase(path);
  if (lower == path) return path;
  std::error_code error;
  if (std::filesystem::exists(path, error)) return SamePlace(path, lower) ? lower : path;
  // A file still to be made: its folder decides.
  const std::string folder = FolderOf(path);
  return folder.empty() || SamePlace(folder, FolderOf(lower)) ? lower : path;
}

}  // namespace benchlog
