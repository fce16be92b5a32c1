#pragma once
// A fresh folder under the system's temporary folder for one test, removed with everything in it
// at the end.
#include <string>

namespace benchlog::testing {

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

 private:
  std::string path_;
};

}  // namespace benchlog::testing
