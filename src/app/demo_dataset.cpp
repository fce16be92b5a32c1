#include "app/demo_dataset.hpp"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "common/files.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"

namespace benchlog {
namespace fs = std::filesystem;

std::string PrepareDemoDataset(SettingsStore& settings, const std::string& samplesFolder,
                               const std::string& demoFolder) {
  if (!settings.GetSetting("Settings", "LastDatFullName", "").empty()) return {};
  std::error_code error;
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(samplesFolder, error))
    if (entry.is_regular_file()) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  const auto dataset = std::find_if(files.begin(), files.end(), [](const fs::path& p) { return p.extension() == ".dat"; });
  if (dataset == files.end()) return {};

  fs::create_directories(demoFolder, error);
  if (error) return {};
  // A copy that cannot be written whole leaves no demo behind it to open.
  try {
    for (const auto& file : files) {
      const std::string copy = (fs::path(demoFolder) / file.filename()).string();
      if (!FileExists(copy)) WriteWholeFile(copy, ReadWholeFile(file.string()));
    }
  } catch (const RuntimeFailure&) {
    return {};
  }
  const std::string path = JoinPath(demoFolder, dataset->filename().string());
  settings.SaveSetting("Settings", "LastDatFullName", path);
  settings.SaveSetting("Settings", "LastDatDirectory", FolderOf(path));
  settings.SaveSetting("Settings", "PhotoDir", FolderOf(path));
  return path;
}

}  // namespace benchlog
