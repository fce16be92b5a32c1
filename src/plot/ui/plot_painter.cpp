#include "plot/ui/plot_painter.hpp"

#include <QFont>
#include <QFontMetricsF>
#include <cmath>
#include <map>

#include "platform/qt/text_codec.hpp"

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

Mapping MappingOf(const PlotScale& scale, const QRectF& target) {
  const double dx = scale.right - scale.left, dy = scale.bottom - scale.top;
  const double sx = dx != 0 ? target.width() / dx : 1, sy = dy != 0 ? target.height() / dy : 1;
  return {target.left(), target.top(), sx, sy, scale.left, scale.top, 1};
}

// The fonts of one painting by size, with their ascent, made once each.
class Fonts {
 public:
  Fonts(const std::string& name, QPaintDevice* device) : name_(ToQt(name)), device_(device) {}
  const std::pair<QFont, double>& Get(double size) {
    auto it = fonts_.find(size);
    if (it == fonts_.end()) {
      QFont font(name_);
      font.setPointSizeF(size > 0 ? size : 8);
      it = fonts_.emplace(size, std::make_pair(font, QFontMetricsF(font, device_).ascent())).first;
    }
    return it->second;
  }

 private:
  QString name_;
  QPaintDevice* device_;
  std::map<double, std::pair<QFont, double>> fonts_;
};

void SetMode(QPainter& painter, DrawMode mode) {
  painter.setCompositionMode(mode == DrawMode::Invert ? QPainter::RasterOp_SourceXorDestination
                                                      : QPainter::CompositionMode_SourceOver);
}

}  // namespace

void PaintPlot(QPainter& painter, const PlotCanvas& canvas, const QRectF& target) {
  painter.save();
  painter.setClipRect(target);
  painter.fillRect(target, ColorOf(canvas.backColor));
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  painter.setBrush(Qt::NoBrush);
  Mapping map = MappingOf(canvas.Scale(), target);
  if (painter.device() != nullptr) map.ratio = painter.device()->devicePixelRatioF();
  Fonts fonts(canvas.fontName, painter.device());
  QPen pen(ColorOf(kColorBlack), 0);  // cosmetic: one pixel wide on every device
  std::uint32_t penColor = kColorBlack;
  DrawMode mode = DrawMode::Copy;
  painter.setPen(pen);
  for (const PlotPrimitive& p : canvas.Primitives()) {
    if (p.color != penColor) {
      penColor = p.color;
      pen.setColor(ColorOf(penColor));
      painter.setPen(pen);
    }
    if (p.mode != mode) SetMode(painter, mode = p.mode);
    switch (p.kind) {
      case PrimitiveKind::Point:
        painter.drawPoint(map(p.x1, p.y1));
        break;
      case PrimitiveKind::Line:
        painter.drawLine(map(p.x1, p.y1), map(p.x2, p.y2));
        break;
      case PrimitiveKind::Box:
        painter.drawRect(QRectF(map(p.x1, p.y1), map(p.x2, p.y2)).normalized());
        break;
      case PrimitiveKind::Circle: {
        const double r = p.x2 * map.sx;
        painter.drawEllipse(map(p.x1, p.y1), r, r);
        break;
      }
      case PrimitiveKind::Text: {
        const auto& [font, ascent] = fonts.Get(p.fontSize);
        painter.setFont(font);
        const QPointF at = map(p.x1, p.y1);
        painter.drawText(QPointF(at.x(), at.y() + ascent), ToQt(p.text));
        break;
      }
    }
  }
  painter.restore();
}

}  // namespace benchlog::qt
