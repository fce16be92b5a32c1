#include "dataset/picture_folder.hpp"

#include <filesystem>

#include "common/files.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace fs = std::filesystem;

namespace {
bool IsPictureName(const std::string& name) {
  return name.size() >= 6 && (name.compare(name.size() - 6, 6, "ph.jpg") == 0 ||
                              name.compare(name.size() - 6, 6, "sk.jpg") == 0);
}
}  // namespace

PictureFolder::PictureFolder(std::string folder) : folder_(std::move(folder)) {
  std::error_code error;
  fs::directory_iterator it(folder_.empty() ? fs::path(".") : fs::path(folder_), error);
  if (error) return;
  for (; it != fs::directory_iterator(); it.increment(error)) {
    if (error) return;
    const std::string name = it->path().filename().string();
    if (IsPictureName(name) && it->is_regular_file(error)) pictures_.insert(name);
  }
  listed_ = true;
}

bool PictureFolder::Has(const std::string& name) const {
  // A name that is no plain file name (a PID with a separator in it) is asked of the system.
  if (!listed_ || !IsPictureName(name) || name.find('/') != std::string::npos) return FileExists(folder_ + name);
  return pictures_.count(name) != 0;
}

}  // namespace benchlog
