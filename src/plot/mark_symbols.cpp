#include "plot/mark_symbols.hpp"

#include <algorithm>

#include "common/format.hpp"
#include "common/rounding.hpp"

namespace benchlog {
namespace {

void Triangle(PlotCanvas& canvas, float x, float y, const SymbolSize& z, std::uint32_t color) {
  canvas.PSet(x, y);
  canvas.LineBy(x - z.h, y - z.t, z.s, 0, color);
  canvas.LineBy(x + z.h, y - z.t, -z.h, z.s, color);
  canvas.LineBy(x, y + 2 * z.t, -z.h, -z.s, color);
}

void Cross(PlotCanvas& canvas, float x, float y, const SymbolSize& z) {
  canvas.PSet(x, y);
  canvas.currentX -= z.h;
  canvas.currentY -= z.h;
  canvas.LineOn(z.s, z.s, kColorBlack);
  canvas.currentX -= z.s;
  canvas.LineOn(z.s, -z.s, kColorBlack);
}

void Labels(PlotCanvas& canvas, const PlotStore& store, int n, float x, float y, const MarkLabels& labels) {
  const double labelX = x + labels.offsetX;
  auto print = [&](double atY, const std::string& text) {
    canvas.currentX = labelX;
    canvas.currentY = atY;
    canvas.Print(text);
  };
  if (labels.numbers) print(y + labels.offsetY, Format(n, "###0"));
  if (labels.designations) print(y, store.PtDesignation[n]);
  if (labels.pids) print(y + labels.offsetY, store.PtPid[n]);
}

}  // namespace

SymbolSize SymbolSizeFor(double height) {
  const int s = std::max<int>(CInt(height / 80), 6);
  return {s, s / 2, s / 3};
}

std::uint32_t ClassColor(const std::string& horz, std::uint32_t previous) {
  if (horz == "A" || horz == "S" || horz == "0") return kColorPink;
  if (horz == "B") return kColorTan;
  if (horz == "1") return kColorBlue;
  if (horz == "2") return kColorRed;
  if (horz == "3") return kColorBlack;
  return previous;
}

std::uint32_t VerticalColor(const std::string& vert) {
  if (vert == "1") return kColorBlue;
  if (vert == "2") return kColorRed;
  return kColorBlack;
}

void DrawMark(PlotCanvas& canvas, const PlotStore& store, int n, const SymbolSize& size, const MarkLabels& labels,
              std::uint32_t& classColor) {
  const auto x = static_cast<float>(store.PtEast[n]);
  const auto y = static_cast<float>(store.PtNorth[n]);
  const std::string& horz = store.PtHorz[n];
  const std::string& vert = store.PtVert[n];
  const bool noHorizontalClass = horz.empty() || horz == "X" || horz == "W";
  classColor = ClassColor(horz, classColor);
  if (!noHorizontalClass && !store.PtLandmark[n]) Triangle(canvas, x, y, size, classColor);
  if (store.PtLandmark[n]) {
    canvas.PSet(x, y);
    canvas.Circle(x, y, size.h, kColorBlack);
  }
  if (horz == "S") {
    canvas.PSet(x, y);
    canvas.Circle(x, y, size.s / 1.5, classColor);
  }
  if (!vert.empty()) {
    canvas.PSet(x, y);
    canvas.Box(x + size.h, y + size.h, x + size.h - size.s, y + size.h - size.s, VerticalColor(vert));
  }
  if (vert.empty() && noHorizontalClass) Cross(canvas, x, y, size);
  Labels(canvas, store, n, x, y, labels);
}

}  // namespace benchlog
