#pragma once
// Shared pieces of the dataset tests: a scratch folder per test and the fixtures.
#include <filesystem>
#include <string>

#include "common/files.hpp"

namespace benchlog::testing {

// A fresh folder under the system's temporary folder, removed with everything in it at the end.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& Path() const { return path_; }
  std::string File(const std::string& name) const { return path_ + "/" + name; }
  // Writes `text` as the file `name` in the folder and returns its path.
  std::string Write(const std::string& name, const std::string& text) const;
  // Copies tests/data/dataset/<name> into the folder and returns its path there.
  std::string CopyFixture(const std::string& name) const;

 private:
  std::string path_;
};

// The text of tests/data/dataset/<name>.
std::string Fixture(const std::string& name);

}  // namespace benchlog::testing
