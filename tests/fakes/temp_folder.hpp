#pragma once
// A fresh folder under the system's temporary folder, removed with everything in it at the end.
// Its path is in lower case, as dataset paths are kept.
#include <string>
#include <string_view>

namespace benchlog::testing {

class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& Path() const { return path_; }
  // Path of a file in the folder; Write creates it (and its folders) with exactly these bytes.
  std::string File(std::string_view name) const;
  std::string Write(std::string_view name, std::string_view bytes) const;

 private:
  std::string path_;
};

}  // namespace benchlog::testing
