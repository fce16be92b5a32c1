#include "plot/ui/plot_painter.hpp"

#include <QFont>
#include <QGlyphRun>
#include <QPaintDevice>
#include <QRawFont>
#include <QVector>
#include <array>
#include <cmath>
#include <map>
#include <optional>

#include "platform/qt/text_codec.hpp"
#include "plot/ui/glyph_stamps.hpp"

namespace benchlog::qt {
namespace {

QColor ColorOf(std::uint32_t bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }

// World metres to the target's coordinates, on the centre of a device pixel, so that one-pixel
// lines stay crisp under antialiasing at any device pixel ratio.
struct Mapping {
  double x0, y0, sx, sy;
  double x0World, y0World;
  double ratio = 1;
  double Snap(double v) const { return (std::floor(v * ratio) + 0.5) / ratio; }
  QPointF operator()(double x, double y) const {
    return {Snap(x0 + (x - x0World) * sx), Snap(y0 + (y - y0World) * sy)};
  }
};

Mapping MappingOf(const PlotScale& scale, const QRectF& target, const QPaintDevice* device) {
  const double dx = scale.right - scale.left, dy = scale.bottom - scale.top;
  const double sx = dx != 0 ? target.width() / dx : 1, sy = dy != 0 ? target.height() / dy : 1;
  return {target.left(), target.top(), sx, sy, scale.left, scale.top, device ? device->devicePixelRatioF() : 1};
}

// One font size of a painting, with each code-page byte's glyph and advance looked up once, so that
// a label costs no text shaping: the labels are plain single-byte text, one glyph a character.
class Face {
 public:
  Face(const QString& family, double points, const QPaintDevice* device) {
    QFont font(family);
    const double dpi = device ? device->logicalDpiY() : 96;
    font.setPixelSize(std::max(1, static_cast<int>(std::lround((points > 0 ? points : 8) * dpi / 72))));
    raw_ = QRawFont::fromFont(font);
    ratio_ = device ? device->devicePixelRatioF() : 1;
    ascent_ = raw_.ascent();
    stamps_.emplace(raw_, ratio_);
  }
  // Calls place(byte, glyph index, origin) for each character of `text` with its top left at `at`.
  template <typename Place>
  void Lay(const std::string& text, QPointF at, Place place) {
    // On whole device pixels: the glyph cache then holds one image a glyph, not one per fraction.
    double x = at.x();
    const double y = std::round((at.y() + ascent_) * ratio_) / ratio_;
    for (const char c : text) {
      const Glyph& g = GlyphOf(static_cast<unsigned char>(c));
      place(static_cast<unsigned char>(c), g.index, QPointF(std::round(x * ratio_) / ratio_, y));
      x += g.advance;
    }
  }
  // Adds the glyphs of `text` with its top left at `at` to a run being gathered.
  void Add(const std::string& text, QPointF at, QVector<quint32>& glyphs, QVector<QPointF>& positions) {
    Lay(text, at, [&](unsigned char, quint32 index, QPointF origin) {
      glyphs.push_back(index);
      positions.push_back(origin);
    });
  }
  GlyphStamps& Stamps() { return *stamps_; }
  const QRawFont& Raw() const { return raw_; }

 private:
  struct Glyph {
    quint32 index = 0;
    double advance = 0;
    bool known = false;
  };
  const Glyph& GlyphOf(unsigned char byte) {
    Glyph& g = glyphs_[byte];
    if (!g.known) {
      const QVector<quint32> indexes = raw_.glyphIndexesForString(ToQt(std::string(1, static_cast<char>(byte))));
      if (!indexes.isEmpty()) {
        g.index = indexes[0];
        g.advance = raw_.advancesForGlyphIndexes(QVector<quint32>{g.index}).value(0).x();
      }
      g.known = true;
    }
    return g;
  }
  QRawFont raw_;
  double ascent_ = 0;
  double ratio_ = 1;
  std::array<Glyph, 256> glyphs_{};
  std::optional<GlyphStamps> stamps_;
};

// Paints the primitives in their order, gathering each run of neighbours of one kind, colour, mode
// and font into one call: a symbol's three lines, a mark's labels.
class Painter {
 public:
  Painter(QPainter& painter, const PlotCanvas& canvas, const QRectF& target)
      : painter_(painter), map_(MappingOf(canvas.Scale(), target, painter.device())),
        family_(ToQt(canvas.fontName)), pen_(ColorOf(kColorBlack), 0), image_(StampableImage(painter)),
        clip_(painter.deviceTransform().mapRect(target).toAlignedRect()) {
    if (image_) clip_ &= image_->rect();
  }

  void Paint(const std::vector<PlotPrimitive>& list) {
    for (std::size_t i = 0; i < list.size();) {
      std::size_t end = i + 1;
      while (end < list.size() && SameRun(list[i], list[end])) ++end;
      SetStyle(list[i]);
      SetSmoothing(NeedsSmoothing(list, i, end));
      PaintRun(list, i, end);
      i = end;
    }
  }

 private:
  static bool SameRun(const PlotPrimitive& a, const PlotPrimitive& b) {
    return a.kind == b.kind && a.color == b.color && a.mode == b.mode && a.fontSize == b.fontSize &&
           a.kind != PrimitiveKind::Circle;
  }

  // Points, boxes and level or plumb lines lie on pixel centres and are crisp as they are; slanted
  // lines, circles and texts are smoothed.
  // Inverted figures stay sharp, since a smoothed edge would not invert cleanly.
  static bool NeedsSmoothing(const std::vector<PlotPrimitive>& list, std::size_t from, std::size_t to) {
    if (list[from].mode == DrawMode::Invert) return false;
    for (std::size_t i = from; i < to; ++i) {
      const PlotPrimitive& p = list[i];
      if (p.kind == PrimitiveKind::Circle || p.kind == PrimitiveKind::Text) return true;
      if (p.kind == PrimitiveKind::Line && p.x1 != p.x2 && p.y1 != p.y2) return true;
    }
    return false;
  }

  void SetSmoothing(bool on) {
    if (on == smooth_) return;
    smooth_ = on;
    painter_.setRenderHint(QPainter::Antialiasing, on);
  }

  void SetStyle(const PlotPrimitive& p) {
    if (p.color != color_) {
      color_ = p.color;
      pen_.setColor(ColorOf(color_));
      painter_.setPen(pen_);
    }
    if (p.mode != mode_) {
      mode_ = p.mode;
      painter_.setCompositionMode(mode_ == DrawMode::Invert ? QPainter::RasterOp_SourceXorDestination
                                                            : QPainter::CompositionMode_SourceOver);
    }
  }

  void PaintRun(const std::vector<PlotPrimitive>& list, std::size_t from, std::size_t to) {
    switch (list[from].kind) {
      case PrimitiveKind::Point: {
        QVector<QPointF>& points = points_;
        points.clear();
        for (std::size_t i = from; i < to; ++i) points.push_back(map_(list[i].x1, list[i].y1));
        painter_.drawPoints(points.data(), static_cast<int>(points.size()));
        break;
      }
      case PrimitiveKind::Line: {
        QVector<QLineF>& lines = lines_;
        lines.clear();
        for (std::size_t i = from; i < to; ++i)
          lines.push_back(QLineF(map_(list[i].x1, list[i].y1), map_(list[i].x2, list[i].y2)));
        painter_.drawLines(lines.data(), static_cast<int>(lines.size()));
        break;
      }
      case PrimitiveKind::Box: {
        QVector<QRectF>& boxes = boxes_;
        boxes.clear();
        for (std::size_t i = from; i < to; ++i)
          boxes.push_back(QRectF(map_(list[i].x1, list[i].y1), map_(list[i].x2, list[i].y2)).normalized());
        painter_.drawRects(boxes.data(), static_cast<int>(boxes.size()));
        break;
      }
      case PrimitiveKind::Circle: {
        const double r = list[from].x2 * map_.sx;
        painter_.drawEllipse(map_(list[from].x1, list[from].y1), r, r);
        break;
      }
      case PrimitiveKind::Text:
        PaintTexts(list, from, to);
        break;
    }
  }

  // The image the labels can be stamped into: painted without a world transform, and plain
  // drawing (inverted texts go through QPainter).
  static QImage* StampableImage(QPainter& painter) {
    QPaintDevice* device = painter.device();
    if (!device || device->devType() != QInternal::Image || !painter.worldTransform().isIdentity()) return nullptr;
    const double ratio = device->devicePixelRatioF();
    if (painter.deviceTransform() != QTransform::fromScale(ratio, ratio)) return nullptr;
    auto* image = static_cast<QImage*>(device);
    return GlyphStamps::Suits(*image) ? image : nullptr;
  }

  void StampTexts(Face& face, const std::vector<PlotPrimitive>& list, std::size_t from, std::size_t to) {
    const QRgb color = ColorOf(color_).rgb();
    GlyphStamps& stamps = face.Stamps();
    for (std::size_t i = from; i < to; ++i) {
      face.Lay(list[i].text, map_(list[i].x1, list[i].y1), [&](unsigned char byte, quint32 index, QPointF origin) {
        // The origin lies on a device pixel already.
        const auto x = static_cast<int>(std::floor(origin.x() * map_.ratio + 0.5));
        const auto y = static_cast<int>(std::floor(origin.y() * map_.ratio + 0.5));
        stamps.Stamp(*image_, byte, index, x, y, color, clip_);
      });
    }
  }

  void PaintTexts(const std::vector<PlotPrimitive>& list, std::size_t from, std::size_t to) {
    Face& face = FaceOf(list[from].fontSize);
    if (image_ && mode_ == DrawMode::Copy) return StampTexts(face, list, from, to);
    QVector<quint32> glyphs;
    QVector<QPointF> positions;
    for (std::size_t i = from; i < to; ++i) {
      const QPointF at = map_(list[i].x1, list[i].y1);
      face.Add(list[i].text, at, glyphs, positions);
    }
    QGlyphRun run;
    run.setRawFont(face.Raw());
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    painter_.drawGlyphRun(QPointF(0, 0), run);
  }

  Face& FaceOf(double size) {
    auto it = faces_.find(size);
    if (it == faces_.end()) it = faces_.try_emplace(size, family_, size, painter_.device()).first;
    return it->second;
  }

  QPainter& painter_;
  Mapping map_;
  QString family_;
  QPen pen_;
  std::uint32_t color_ = kColorBlack;
  DrawMode mode_ = DrawMode::Copy;
  bool smooth_ = true;
  QVector<QPointF> points_;  // the buffers of the runs, kept from one run to the next
  QVector<QLineF> lines_;
  QVector<QRectF> boxes_;
  std::map<double, Face> faces_;
  QImage* image_;  // where labels are stamped, or null
  QRect clip_;     // the target in device pixels
};

}  // namespace

void PaintPlot(QPainter& painter, const PlotCanvas& canvas, const QRectF& target) {
  painter.save();
  painter.setClipRect(target);
  painter.fillRect(target, ColorOf(canvas.backColor));
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ColorOf(kColorBlack), 0));  // cosmetic: one pixel wide on every device
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  Painter(painter, canvas, target).Paint(canvas.Primitives());
  painter.restore();
}

void PaintOverlay(QPainter& painter, const PlotCanvas& canvas, const std::vector<PlotPrimitive>& figures,
                  const QRectF& target) {
  painter.save();
  painter.setClipRect(target);
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ColorOf(kColorBlack), 0));
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  Painter(painter, canvas, target).Paint(figures);
  painter.restore();
}

}  // namespace benchlog::qt
