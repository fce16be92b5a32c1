// frmPlot's interaction: the mouse on the plot, the zoom steps and Find. Rubber bands and lines are
// overlays over the drawing, so moving them never touches the canvas.
#include <algorithm>
#include <cmath>
#include <utility>

#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "geodesy/angles.hpp"
#include "platform/platform.hpp"
#include "plot/frm_plot.hpp"
#include "plot/nearest_mark.hpp"
#include "plot/zoom_ladder.hpp"
#include "session/session.hpp"

namespace benchlog {
namespace {

constexpr double kFeetPerMetre = 3.28083333333333;
constexpr std::int16_t kFoundLevel = 8;

PlotPrimitive Figure(PrimitiveKind kind, double x1, double y1, double x2, double y2) {
  PlotPrimitive figure;
  figure.kind = kind;
  figure.x1 = x1, figure.y1 = y1, figure.x2 = x2, figure.y2 = y2;
  figure.color = kColorWhite;  // white in invert mode turns every pixel under it over
  figure.mode = DrawMode::Invert;
  return figure;
}

// Six characters: two that do not read as a number, then four that do.
bool LooksLikePid(const std::string& text) {
  return text.size() == 6 && text.find(' ') == std::string::npos && !IsNumeric(text.substr(0, 2)) &&
         IsNumeric(text.substr(2, 4));
}

}  // namespace

std::string MeasureText(double distance) {
  if (distance < 500) return Format(distance, "##0") + " Meters\r\n" + Format(distance * kFeetPerMetre, "###0") + " Feet";
  return Format(distance / 1000, "####0.0") + " Km\r\n" + Format(distance * kFeetPerMetre / 5280, "####0.0") + " Miles";
}

void frmPlot::Pick(float x, float y, std::int16_t& point) { FindNearestPoint(store, x, y, point, SamePlace); }

void frmPlot::Redraw() {
  if (session != nullptr && platform != nullptr) Plot(*session, *platform);
}

void frmPlot::Changed() const {
  if (onOverlayChanged) onOverlayChanged();
}

void frmPlot::MouseMove(float x, float y) {
  Caption = "UTM  North=" + Format(y, "##,###,###") + "  East=" + Format(x, "##,###,###") +
            "  Zoom factor= " + std::to_string(ZoomLevel);
  if (!InverseMode && BandActive) {
    BandX2 = std::max(x, 0.0f);
    BandY2 = std::max(y, 0.0f);
  } else if (InverseMode && FromPoint != 0) {
    LineX = x;
    LineY = y;
  }
}

void frmPlot::MouseDown(MouseButton button, float x, float y) {
  if (button == MouseButton::Right) {
    if (InverseMode && FromPoint != 0 && LineX != 0)
      strayLines.push_back(Figure(PrimitiveKind::Line, store.PtEast[FromPoint], store.PtNorth[FromPoint], LineX, LineY));
    InverseMode = false;
    Pick(x, y, PickedPoint);
    return;
  }
  BandX1 = BandX2 = x;
  BandY1 = BandY2 = y;
  if (InverseMode) Measure(x, y);
  else BandActive = !BandActive;
}

// The second mark of a measurement: the plane distance between the two marks is shown while the
// line between them stands on the plot, and the measurement ends. A click nearest the first mark
// itself keeps the measurement running.
void frmPlot::Measure(float x, float y) {
  Pick(x, y, PickedPoint);
  ToPoint = PickedPoint;
  if (ToPoint == FromPoint) return;
  measuring_ = true;
  Changed();
  double angle = 0, distance = 0;
  AzDist(store.PtEast[ToPoint] - store.PtEast[FromPoint], store.PtNorth[ToPoint] - store.PtNorth[FromPoint], angle,
         distance);
  if (platform != nullptr) platform->ui.MsgBox(MeasureText(distance));
  measuring_ = false;
  FromPoint = ToPoint = 0;
  LineX = LineY = 0;
  InverseMode = false;
  crossPointer = false;
}

void frmPlot::MouseUp(MouseButton button, float x, float y) {
  if (InverseMode || !BandActive) return;
  BandActive = false;
  if (BandX1 != BandX2) {
    if (BandX1 > BandX2) std::swap(BandX1, BandX2);
    if (BandY1 == BandY2) {
      if (onBeep) onBeep();
      return;
    }
    if (BandY1 > BandY2) std::swap(BandY1, BandY2);
    ZoomToBand();
  } else if (button == MouseButton::Left) {
    CenterEast = x;
    CenterNorth = y;
    Redraw();
  }
}

// The band, fitted to the client's proportions, picks the level of its width. A band wider than
// the widest level only lets the view zoom out that far.
void frmPlot::ZoomToBand() {
  double width = BandX2 - BandX1, height = BandY2 - BandY1;
  CenterEast = static_cast<float>((static_cast<double>(BandX1) + BandX2) / 2);
  CenterNorth = static_cast<float>((static_cast<double>(BandY1) + BandY2) / 2);
  FitToClient(width, height, clientWidth, clientHeight);
  if (const auto level = LevelOfWidth(width)) (*level == 1 ? BaseLevel : ZoomLevel) = *level;
  Redraw();
}

std::vector<PlotPrimitive> frmPlot::Overlay() const {
  std::vector<PlotPrimitive> overlay = strayLines;
  const double fromEast = store.PtEast[FromPoint], fromNorth = store.PtNorth[FromPoint];
  if (measuring_)
    overlay.push_back(Figure(PrimitiveKind::Line, fromEast, fromNorth, store.PtEast[ToPoint], store.PtNorth[ToPoint]));
  else if (InverseMode && FromPoint != 0 && LineX != 0)
    overlay.push_back(Figure(PrimitiveKind::Line, fromEast, fromNorth, LineX, LineY));
  if (!InverseMode && BandActive) overlay.push_back(Figure(PrimitiveKind::Box, BandX1, BandY1, BandX2, BandY2));
  return overlay;
}

void frmPlot::mnuZoomIn() {
  if (ZoomLevel >= kMaxZoomLevel) return;
  ++ZoomLevel;
  Redraw();
}

void frmPlot::mnuZoomOut() {
  if (ZoomLevel <= BaseLevel || ZoomLevel <= 1) return;
  --ZoomLevel;
  Redraw();
}

// A point number first (its leading digits; 10000 and more count as 0), then a PID, then a whole
// designation, both compared in upper case.
void frmPlot::mnuFind() {
  if (platform == nullptr) return;
  const std::string input = platform->ui.InputBox("Enter point number, PID, or designation:", "Find Point", "");
  const double value = Val(input);
  const double number = value < 10000 ? std::nearbyint(value) : 0;
  int found = -1;
  if (number >= store.FirstPoint && number <= store.LastPoint) found = static_cast<int>(number);
  const std::string wanted = UCase(input);
  const std::vector<std::string>& field = LooksLikePid(input) ? store.PtPid : store.PtDesignation;
  for (int n = store.FirstPoint; found < 0 && n <= store.LastPoint; ++n)
    if (field[n] == wanted) found = n;
  if (found < 0) {
    platform->ui.MsgBox("Point not found!", MsgButtons::Ok, MsgIcon::None, "Find Point");
    return;
  }
  CenterEast = static_cast<float>(store.PtEast[found]);
  CenterNorth = static_cast<float>(store.PtNorth[found]);
  ZoomLevel = kFoundLevel;
  Redraw();
}

}  // namespace benchlog
