#include "platform/qt/qt_picture_reader.hpp"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "common/runtime_failure.hpp"
#include "platform/qt/text_codec.hpp"

namespace benchlog::qt {
namespace {

// A JPEG ends in its end-of-image marker; the decoder fills a cut-off picture with grey and only warns.
bool JpegIsComplete(const QString& file) {
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly) || f.size() < 4) return false;
  f.seek(f.size() - std::min<qint64>(f.size(), 4096));
  QByteArray tail = f.readAll();
  while (!tail.isEmpty() && (tail.back() == '\0' || tail.back() == '\n' || tail.back() == '\r')) tail.chop(1);
  return tail.endsWith("\xFF\xD9");
}

RuntimeFailure InvalidPicture(const std::string& path, const std::string& why) {
  return RuntimeFailure(481, "Invalid picture: " + path + " " + why);
}

}  // namespace

PictureSize QtPictureReader::Read(const std::string& path) {
  const QString file = ToQt(path);
  if (!QFileInfo(file).isFile()) throw RuntimeFailure(53, "File not found: " + path);
  QImageReader reader(file);
  if (!reader.canRead()) throw InvalidPicture(path, "is not a picture file that can be shown.");
  const QSize size = reader.size();
  if (size.isValid() && static_cast<long long>(size.width()) * size.height() > kMaxPixels)
    throw InvalidPicture(path, "is too large to show (" + std::to_string(size.width()) + " x " +
                                   std::to_string(size.height()) + " pixels).");
  if (reader.format() == "jpeg" && !JpegIsComplete(file)) throw InvalidPicture(path, "is damaged: the file is cut short.");
  reader.setAllocationLimit(static_cast<int>(kMaxPixels * 4 / (1024 * 1024)));  // MB, above Qt's default 256
  QImage picture = reader.read();
  if (picture.isNull()) throw InvalidPicture(path, "is damaged: " + FromQt(reader.errorString()) + ".");
  lastPath_ = path;
  last_ = std::move(picture);
  return PictureSize{last_.width(), last_.height()};
}

QImage QtPictureReader::Picture(const std::string& path) const { return path == lastPath_ ? last_ : QImage(); }

}  // namespace benchlog::qt
