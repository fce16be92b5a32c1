#pragma once
// Pictures through QImageReader. The size is checked before the pixels are decoded, so that a huge
// picture is refused at once instead of filling the memory, and a JPEG cut short is refused rather
// than shown half grey.
#include <QImage>
#include <string>

#include "platform/picture_reader.hpp"

namespace benchlog::qt {

class QtPictureReader final : public PictureReader {
 public:
  // 64 million pixels: 256 MB decoded, Qt's own allocation limit for one picture.
  static constexpr long long kMaxPixels = 64LL * 1024 * 1024;

  PictureSize Read(const std::string& path) override;
  // The picture of `path` as last read, so the window does not decode it twice; a null picture
  // when `path` was not the last one read successfully.
  QImage Picture(const std::string& path) const;

 private:
  std::string lastPath_;
  QImage last_;
};

}  // namespace benchlog::qt
