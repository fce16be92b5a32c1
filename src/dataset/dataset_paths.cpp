#include "dataset/dataset_paths.hpp"

#include <filesystem>

#include "app/session.hpp"
#include "common/paths.hpp"

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

void SetDerivedPaths(Session& session, std::string_view appPath) {
  const std::string stem = WithoutExtension(session.DatFile);
  session.HclFile = stem + ".hcl";
  session.VclFile = stem + ".vcl";
  session.MsfFile = stem + ".msf";
  session.ErrFile = stem + ".err";
  session.SA6File = stem + "_SA6.txt";
  session.IndexFile = IndexPathFor(appPath, session.DatFile);
}

}  // namespace benchlog
