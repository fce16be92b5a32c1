#include "plot/ui/glyph_stamps.hpp"

#include <QGlyphRun>
#include <QPainter>
#include <algorithm>
#include <cmath>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace benchlog::qt {
namespace {

// Colour c over the pixels d with coverages a (0 to 255), byte by byte (each coverage is given for
// each of a pixel's four bytes), rounded as a division by 255: coverage 0 keeps the pixel and 255
// gives the colour exactly.
inline std::uint8_t BlendByte(unsigned c, unsigned d, unsigned a) {
  const unsigned t = c * a + d * (255u - a);
  return static_cast<std::uint8_t>((t + (t >> 8) + 0x80) >> 8);
}

void BlendRow(std::uint8_t* d, const std::uint8_t* a, const std::uint8_t* c, int bytes) {
  int j = 0;
#if defined(__SSE2__)
  // Four pixels at a time, in sixteen-bit lanes: the same arithmetic as below.
  const __m128i zero = _mm_setzero_si128(), full = _mm_set1_epi16(255), half = _mm_set1_epi16(0x80);
  const auto blend = [&](__m128i cc, __m128i dd, __m128i aa) {
    const __m128i t = _mm_add_epi16(_mm_mullo_epi16(cc, aa), _mm_mullo_epi16(dd, _mm_sub_epi16(full, aa)));
    return _mm_srli_epi16(_mm_add_epi16(_mm_add_epi16(t, _mm_srli_epi16(t, 8)), half), 8);
  };
  for (; j + 16 <= bytes; j += 16) {
    const __m128i dd = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + j));
    const __m128i aa = _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + j));
    const __m128i cc = _mm_loadu_si128(reinterpret_cast<const __m128i*>(c + j));
    const __m128i low = blend(_mm_unpacklo_epi8(cc, zero), _mm_unpacklo_epi8(dd, zero), _mm_unpacklo_epi8(aa, zero));
    const __m128i high = blend(_mm_unpackhi_epi8(cc, zero), _mm_unpackhi_epi8(dd, zero), _mm_unpackhi_epi8(aa, zero));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d + j), _mm_packus_epi16(low, high));
  }
#endif
  for (; j < bytes; ++j) d[j] = BlendByte(c[j], d[j], a[j]);
}

}  // namespace

bool GlyphStamps::Suits(const QImage& image) {
  return image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied;
}

// The glyph drawn by Qt alone on a clear image a few pixels larger than its box, whose alpha is
// then the coverage; the mask keeps only the rows and columns that have any.
GlyphStamps::Mask GlyphStamps::Render(quint32 glyphIndex) const {
  const QRectF box = font_.boundingRect(glyphIndex);
  const int margin = 2 + static_cast<int>(std::ceil(ratio_));
  const int left = static_cast<int>(std::floor(box.left() * ratio_)) - margin;
  const int top = static_cast<int>(std::floor(box.top() * ratio_)) - margin;
  const int width = static_cast<int>(std::ceil(box.right() * ratio_)) + margin - left;
  const int height = static_cast<int>(std::ceil(box.bottom() * ratio_)) + margin - top;
  QImage canvas(std::max(1, width), std::max(1, height), QImage::Format_ARGB32_Premultiplied);
  canvas.fill(Qt::transparent);
  canvas.setDevicePixelRatio(ratio_);
  {
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    painter.setPen(Qt::white);
    QGlyphRun run;
    run.setRawFont(font_);
    run.setGlyphIndexes({glyphIndex});
    run.setPositions({QPointF(0, 0)});
    painter.drawGlyphRun(QPointF(-left / ratio_, -top / ratio_), run);
  }
  int x0 = canvas.width(), y0 = canvas.height(), x1 = -1, y1 = -1;
  for (int y = 0; y < canvas.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(canvas.constScanLine(y));
    for (int x = 0; x < canvas.width(); ++x) {
      if (qAlpha(row[x]) == 0) continue;
      x0 = std::min(x0, x), x1 = std::max(x1, x), y0 = std::min(y0, y), y1 = std::max(y1, y);
    }
  }
  Mask mask;
  mask.made = true;
  if (x1 < 0) return mask;  // a blank
  mask.left = left + x0, mask.top = top + y0;
  // Whole groups of four pixels, blended together; the extra columns have no coverage.
  mask.width = (x1 - x0 + 4) / 4 * 4, mask.height = y1 - y0 + 1;
  mask.coverage.reserve(4 * static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height));
  for (int y = y0; y <= y1; ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(canvas.constScanLine(y));
    for (int x = x0; x < x0 + mask.width; ++x)
      mask.coverage.insert(mask.coverage.end(), 4, static_cast<std::uint8_t>(x <= x1 ? qAlpha(row[x]) : 0));
  }
  return mask;
}

// The colour's four bytes, in the image's order, once for each pixel of a row of `width`.
void GlyphStamps::SetColor(QRgb color, int width) {
  if (color == color_ && colorRow_.size() >= 4 * static_cast<std::size_t>(width)) return;
  color_ = color;
  colorRow_.clear();
  const QRgb pixels[] = {color};
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(pixels);
  for (int i = 0; i < std::max(width, 64); ++i) colorRow_.insert(colorRow_.end(), bytes, bytes + 4);
}

const GlyphStamps::Mask& GlyphStamps::MaskOf(unsigned char byte, quint32 glyphIndex) {
  Mask& mask = masks_[byte];
  if (!mask.made) mask = Render(glyphIndex);
  return mask;
}

void GlyphStamps::Stamp(QImage& image, unsigned char byte, quint32 glyphIndex, int x, int y, QRgb color,
                        const QRect& clip) {
  const Mask& m = MaskOf(byte, glyphIndex);
  const int x0 = std::max(x + m.left, clip.left()), x1 = std::min(x + m.left + m.width, clip.right() + 1);
  const int y0 = std::max(y + m.top, clip.top()), y1 = std::min(y + m.top + m.height, clip.bottom() + 1);
  if (x0 >= x1 || y0 >= y1) return;
  SetColor(color | 0xff000000u, m.width);
  uchar* bits = image.bits();
  const qsizetype stride = image.bytesPerLine();
  for (int row = y0; row < y1; ++row) {
    const std::size_t from = static_cast<std::size_t>((row - y - m.top) * m.width + (x0 - x - m.left));
    BlendRow(bits + row * stride + 4 * x0, m.coverage.data() + 4 * from, colorRow_.data(), 4 * (x1 - x0));
  }
}

}  // namespace benchlog::qt
