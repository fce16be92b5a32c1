#pragma once
// Reading a picture file (.jpg, .bmp, .tif, ...) to show it: the logic needs its size in pixels to
// lay out the view; the window takes the decoded picture from the reader.
#include <string>

namespace benchlog {

struct PictureSize {
  int width = 0;
  int height = 0;
};

class PictureReader {
 public:
  virtual ~PictureReader() = default;
  // Decodes the file and returns its size. A missing, damaged or unreadable file, or one too
  // large to show, throws RuntimeFailure with a text that says which and names the file.
  virtual PictureSize Read(const std::string& path) = 0;
};

}  // namespace benchlog
