#pragma once
// A file's bytes in memory, read-only, for as long as the object lives: the export reads a whole
// dataset at once and works on it in place. The file is mapped where the system allows it, which
// costs far less than copying a large dataset into fresh memory; otherwise it is read whole.
#include <string>
#include <string_view>

namespace benchlog {

class MappedText {
 public:
  // Throws RuntimeFailure "File not found" when there is no such file.
  explicit MappedText(const std::string& path);
  ~MappedText();
  MappedText(const MappedText&) = delete;
  MappedText& operator=(const MappedText&) = delete;

  std::string_view Text() const { return text_; }

 private:
  void* map_ = nullptr;
  std::size_t length_ = 0;
  std::string copy_;  // the bytes, when the file could not be mapped
  std::string_view text_;
};

}  // namespace benchlog
