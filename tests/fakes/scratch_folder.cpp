#include "fakes/scratch_folder.hpp"

#include <atomic>
#include <filesystem>
#include <unistd.h>

#include "common/files.hpp"

namespace benchlog::testing {
namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
  static std::atomic<int> counter{0};
  const fs::path path =
      fs::temp_directory_path() / ("benchlog-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
  fs::remove_all(path);
  fs::create_directories(path);
  path_ = path.string();
}

ScratchFolder::~ScratchFolder() {
  std::error_code error;
  fs::remove_all(path_, error);
}

std::string ScratchFolder::Write(const std::string& name, const std::string& text) const {
  WriteWholeFile(File(name), text);
  return File(name);
}

}  // namespace benchlog::testing
