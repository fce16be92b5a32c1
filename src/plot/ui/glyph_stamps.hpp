#pragma once
// The plot's labels stamped straight into an opaque 32-bit image. A full view has tens of thousands
// of overlapping labels; drawing each glyph through QPainter costs far more than its few dozen
// pixels. Each code-page byte's glyph is rendered once by Qt itself, antialiased, into a coverage
// mask, and the mask is then blended into the image at whole device pixels, so the labels look
// exactly as Qt draws them.
#include <QImage>
#include <QRawFont>
#include <QRect>
#include <QRgb>
#include <array>
#include <cstdint>
#include <vector>

namespace benchlog::qt {

class GlyphStamps {
 public:
  // The glyphs of `font` at `ratio` device pixels to a logical pixel.
  GlyphStamps(const QRawFont& font, double ratio) : font_(font), ratio_(ratio) {}

  // True for the images the stamps can go into: opaque 32-bit pixels.
  static bool Suits(const QImage& image);

  // Blends the glyph `glyphIndex` of code-page byte `byte` into `image` with its origin (on the
  // baseline) at device pixel (x, y), in `color`, inside `clip` (device pixels).
  void Stamp(QImage& image, unsigned char byte, quint32 glyphIndex, int x, int y, QRgb color, const QRect& clip);

 private:
  struct Mask {
    bool made = false;
    int left = 0, top = 0;  // of the mask's first pixel, from the glyph's origin
    int width = 0, height = 0;
    std::vector<std::uint8_t> coverage;  // width x height, row by row, each four times (a pixel's bytes)
  };
  const Mask& MaskOf(unsigned char byte, quint32 glyphIndex);
  Mask Render(quint32 glyphIndex) const;
  void SetColor(QRgb color, int width);

  QRawFont font_;
  double ratio_;
  std::array<Mask, 256> masks_{};
  QRgb color_ = 0;
  std::vector<std::uint8_t> colorRow_;  // the colour's bytes repeated
};

}  // namespace benchlog::qt
