#include "fakes/temp_folder.hpp"

#include <filesystem>
#include <fstream>
#include <random>

namespace benchlog::testing {
namespace fs = std::filesystem;

TempFolder::TempFolder() {
  std::random_device random;
  for (;;) {
    const fs::path candidate = fs::temp_directory_path() / ("benchlog-test-" + std::to_string(random()));
    if (fs::create_directory(candidate)) {
      path_ = candidate.string();
      return;
    }
  }
}

TempFolder::~TempFolder() {
  std::error_code error;
  fs::remove_all(path_, error);
}

std::string TempFolder::File(std::string_view name) const { return (fs::path(path_) / name).string(); }

std::string TempFolder::Write(std::string_view name, std::string_view bytes) const {
  const std::string path = File(name);
  fs::create_directories(fs::path(path).parent_path());
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return path;
}

}  // namespace benchlog::testing
