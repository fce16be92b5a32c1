#include "plot/plot_canvas.hpp"

#include <utility>

namespace benchlog {
namespace {

PlotPrimitive Figure(PrimitiveKind kind, double x1, double y1, double x2, double y2, std::uint32_t color) {
  PlotPrimitive figure;
  figure.kind = kind;
  figure.x1 = x1;
  figure.y1 = y1;
  figure.x2 = x2;
  figure.y2 = y2;
  figure.color = color;
  return figure;
}

}  // namespace

void PlotCanvas::Add(PlotPrimitive primitive) {
  primitive.mode = mode;
  primitives_.push_back(std::move(primitive));
  ++generation_;
}

void PlotCanvas::PSet(double x, double y) {
  Add(Figure(PrimitiveKind::Point, x, y, x, y, foreColor));
  currentX = x;
  currentY = y;
}

void PlotCanvas::LineBy(double x, double y, double dx, double dy, std::uint32_t color) {
  currentX = x;
  currentY = y;
  LineOn(dx, dy, color);
}

void PlotCanvas::LineOn(double dx, double dy, std::uint32_t color) {
  Add(Figure(PrimitiveKind::Line, currentX, currentY, currentX + dx, currentY + dy, color));
  currentX += dx;
  currentY += dy;
}

void PlotCanvas::Box(double x1, double y1, double x2, double y2, std::uint32_t color) {
  Add(Figure(PrimitiveKind::Box, x1, y1, x2, y2, color));
  currentX = x2;
  currentY = y2;
}

void PlotCanvas::Circle(double x, double y, double radius, std::uint32_t color) {
  Add(Figure(PrimitiveKind::Circle, x, y, radius, 0, color));
}

void PlotCanvas::Print(const std::string& text) {
  PlotPrimitive figure = Figure(PrimitiveKind::Text, currentX, currentY, 0, 0, foreColor);
  figure.text = text;
  figure.fontSize = fontSize;
  Add(std::move(figure));
}

}  // namespace benchlog
