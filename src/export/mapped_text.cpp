#include "export/mapped_text.hpp"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"

namespace benchlog {

MappedText::MappedText(const std::string& path) {
  if (!FileExists(path)) throw FileNotFound();
  length_ = static_cast<std::size_t>(FileLength(path));
  const int file = length_ ? ::open(path.c_str(), O_RDONLY) : -1;
  if (file >= 0) {
    int flags = MAP_PRIVATE;
#ifdef MAP_POPULATE
    flags |= MAP_POPULATE;  // the export reads every byte: fault the pages in at once
#endif
    void* map = ::mmap(nullptr, length_, PROT_READ, flags, file, 0);
    ::close(file);
    if (map != MAP_FAILED) {
      map_ = map;
      text_ = std::string_view(static_cast<const char*>(map_), length_);
      return;
    }
  }
  copy_ = ReadWholeFile(path);
  text_ = copy_;
}

MappedText::~MappedText() {
  if (map_) ::munmap(map_, length_);
}

}  // namespace benchlog
