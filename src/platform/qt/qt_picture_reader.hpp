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
  // 16,384 x 16,384 pixels (1 GB decoded): a large scanned map still opens; a picture past that is
  // refused from its header before any decoding.
  static constexpr long long kMaxPixels = 16384LL * 16384;

  PictureSize Read(const std::string& path) override;
  // The picture of `path` as last read, so the window does not decode it twice; a null picture
  // when `path` was not the last one read successfully.
  QImage Picture(const std::string& path) const;

 private:
  std::string lastPath_;
  QImage last_;
};

}  // namespace benchlog::qt
