#pragma once
// The plot window's drawing surface as data: a world-coordinate scale and the list of primitives
// drawn since the last clearing, in the order drawn. The window paints this list (and prints it);
// nothing here knows pixels, so the whole layout is checked without a screen. The list is the
// canvas's retained contents: a repaint shows it again, unchanged, until the next drawing.
#include <cstdint>
#include <string>
#include <vector>

namespace benchlog {

// 24-bit colours as the settings and the drawing take them: red in the low byte.
inline constexpr std::uint32_t kColorPink = 0xFF80FF;
inline constexpr std::uint32_t kColorTan = 0x80C0FF;
inline constexpr std::uint32_t kColorBlue = 0xFF0000;
inline constexpr std::uint32_t kColorRed = 0x0000FF;
inline constexpr std::uint32_t kColorGreen = 0x00FF00;
inline constexpr std::uint32_t kColorBlack = 0x000000;
inline constexpr std::uint32_t kColorWhite = 0xFFFFFF;

enum class PrimitiveKind { Point, Line, Box, Circle, Text };
enum class DrawMode { Copy, Invert };  // invert draws a figure so that drawing it again removes it

// One drawn figure, in world coordinates (metres, north up). Line and Box run from (x1, y1) to
// (x2, y2); a Circle has its centre at (x1, y1) and its radius in x2; a Text's top left corner is
// at (x1, y1), in a font of `fontSize` points.
struct PlotPrimitive {
  PrimitiveKind kind = PrimitiveKind::Point;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  std::uint32_t color = kColorBlack;
  DrawMode mode = DrawMode::Copy;
  std::string text;
  double fontSize = 0;

  bool operator==(const PlotPrimitive&) const = default;
};

// The world window: (left, top) maps to the client area's top left, (right, bottom) to its bottom
// right, so north rises up the screen.
struct PlotScale {
  double left = 0, top = 1, right = 1, bottom = 0;
};

class PlotCanvas {
 public:
  void SetScale(double left, double top, double right, double bottom) {
    scale_ = {left, top, right, bottom};
    ++generation_;
  }
  const PlotScale& Scale() const { return scale_; }
  void Clear() {
    primitives_.clear();
    ++generation_;
  }
  const std::vector<PlotPrimitive>& Primitives() const { return primitives_; }
  // Changes at every change of the scale or the list, so a window can keep a painted copy.
  std::uint64_t Generation() const { return generation_; }

  // Pen state, kept between drawings.
  std::uint32_t foreColor = kColorBlack;
  std::uint32_t backColor = kColorWhite;
  double fontSize = 8;
  std::string fontName = "Courier New";
  DrawMode mode = DrawMode::Copy;
  double currentX = 0, currentY = 0;

  // A point in the foreground colour; the current position moves there.
  void PSet(double x, double y);
  // A line from (x, y) by (dx, dy); the current position moves to its end.
  void LineBy(double x, double y, double dx, double dy, std::uint32_t color);
  // A line from the current position by (dx, dy), which becomes the current position.
  void LineOn(double dx, double dy, std::uint32_t color);
  // The outline of the box with corners (x1, y1) and (x2, y2); the current position moves to (x2, y2).
  void Box(double x1, double y1, double x2, double y2, std::uint32_t color);
  void Circle(double x, double y, double radius, std::uint32_t color);
  // Text at the current position, in the foreground colour and the present font size.
  void Print(const std::string& text);

 private:
  void Add(PlotPrimitive primitive);
  PlotScale scale_;
  std::vector<PlotPrimitive> primitives_;
  std::uint64_t generation_ = 0;
};

}  // namespace benchlog
