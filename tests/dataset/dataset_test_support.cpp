#include "dataset/dataset_test_support.hpp"

#include <atomic>
#include <unistd.h>

namespace benchlog::testing {
namespace fs = std::filesystem;

namespace {
std::string FixturePath(const std::string& name) { return std::string(BENCHLOG_TEST_DATA) + "/dataset/" + name; }
}  // namespace

ScratchFolder::ScratchFolder() {
  static std::atomic<int> counter{0};
  const fs::path path = fs::temp_directory_path() /
                        ("benchlog-dataset-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
  fs::remove_all(path);
  fs::create_directories(path);
  path_ = path.string();
}

ScratchFolder::~ScratchFolder() {
  std::error_code error;
  fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, error);
  fs::remove_all(path_, error);
}

std::string ScratchFolder::Write(const std::string& name, const std::string& text) const {
  WriteWholeFile(File(name), text);
  return File(name);
}

std::string ScratchFolder::CopyFixture(const std::string& name) const { return Write(name, Fixture(name)); }

std::string Fixture(const std::string& name) { return ReadWholeFile(FixturePath(name)); }

}  // namespace benchlog::testing
