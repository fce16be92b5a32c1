#include "session/dataset_paths.hpp"

#include <filesystem>

#include "session/session.hpp"
#include "common/paths.hpp"
#include "common/text.hpp"

namespace benchlog {

std::string IndexPathFor(std::string_view appPath, std::string_view datasetPath) {
  return std::string(appPath) + kPathSeparator + BaseName(datasetPath) + ".ndx";
}

std::string PhotoPathFor(std::string_view folder, std::string_view pid) {
  return std::string(folder).append(pid).append("ph.jpg");
}

std::string SketchPathFor(std::string_view folder, std::string_view pid) {
  return std::string(folder).append(pid).append("sk.jpg");
}

bool IsSameFile(const std::string& a, const std::string& b) {
  std::error_code error;
  return std::filesystem::equivalent(a, b, error) && !error;
}

std::string LowerCaseDatasetPath(const std::string& path) {
  const std::string lower = LCase(path);
  if (lower == path) return path;
  std::error_code error;
  if (std::filesystem::exists(path, error)) return IsSameFile(path, lower) ? lower : path;
  // A file still to be made: its folder decides.
  const std::string folder = FolderOf(path);
  return folder.empty() || IsSameFile(folder, FolderOf(lower)) ? lower : path;
}

void SetDerivedPaths(Session& session, std::string_view appPath) {
  const std::string stem = WithoutExtension(session.dataset.DatFile);
  session.outputs.HclFile = stem + ".hcl";
  session.outputs.VclFile = stem + ".vcl";
  session.outputs.MsfFile = stem + ".msf";
  session.outputs.ErrFile = stem + ".err";
  session.outputs.SA6File = stem + "_SA6.txt";
  session.dataset.IndexFile = IndexPathFor(appPath, session.dataset.DatFile);
}

}  // namespace benchlog
