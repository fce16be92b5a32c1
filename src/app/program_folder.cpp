#include "app/program_folder.hpp"

#include <unistd.h>

#include <filesystem>

#include "app/configuration_file.hpp"
#include "common/files.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"

namespace benchlog {
namespace {
namespace fs = std::filesystem;

// access() grants an administrator everything, so a folder that no one may write counts as
// read-only as well.
bool IsWritableFolder(const std::string& folder) {
  std::error_code error;
  const auto perms = fs::status(folder, error).permissions();
  const auto anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return !error && ::access(folder.c_str(), W_OK) == 0 && (perms & anyWrite) != fs::perms::none;
}

// Copies every file under `from` that `to` lacks, through the program's checked writer, so that
// a copy broken off leaves no half file behind.
void CopyMissingFiles(const fs::path& from, const fs::path& to) {
  std::error_code error;
  for (auto entry = fs::recursive_directory_iterator(from, error); !error && entry != fs::end(entry);
       entry.increment(error)) {
    if (!entry->is_regular_file()) continue;
    const fs::path target = to / fs::relative(entry->path(), from);
    if (FileExists(target.string())) continue;
    fs::create_directories(target.parent_path(), error);
    if (error) return;
    WriteWholeFile(target.string(), ReadWholeFile(entry->path().string()));
  }
}

}  // namespace

std::string InstalledDataFolder(const std::string& exeFolder) {
  return (fs::path(exeFolder) / ".." / "share" / "benchlog").lexically_normal().string();
}

std::string ChooseProgramFolder(const std::string& exeFolder, const std::string& userFolder) {
  if (FileExists(JoinPath(exeFolder, kConfigurationFileName)) && IsWritableFolder(exeFolder)) return exeFolder;
  std::error_code error;
  fs::create_directories(userFolder, error);
  try {
    CopyMissingFiles(InstalledDataFolder(exeFolder), userFolder);
  } catch (const RuntimeFailure&) {
  }
  return userFolder;
}

}  // namespace benchlog
