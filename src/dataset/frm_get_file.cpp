#include "dataset/frm_get_file.hpp"

#include <algorithm>
#include <filesystem>

#include "common/paths.hpp"
#include "common/text.hpp"

namespace benchlog {

void FrmGetFile::SetFolder(const std::string& path) {
  folder = path;
  filter = "*.dat";
  files.clear();
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(path, error)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_regular_file(error) && LCase(Right(name, 4)) == ".dat") files.push_back(name);
  }
  std::sort(files.begin(), files.end(), [](const std::string& a, const std::string& b) { return LCase(a) < LCase(b); });
  selected.assign(files.size(), false);
}

std::vector<std::string> FrmGetFile::SelectedPaths() const {
  std::vector<std::string> paths;
  for (std::size_t i = 0; i < files.size(); ++i)
    if (i < selected.size() && selected[i]) paths.push_back(JoinPath(folder, files[i]));
  return paths;
}

}  // namespace benchlog
