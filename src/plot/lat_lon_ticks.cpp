#include "plot/lat_lon_ticks.hpp"

#include "common/rounding.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/transverse_mercator.hpp"

namespace benchlog {
namespace {

struct Corner {
  double latitude = 0, longitude = 0;  // degrees, longitude positive west
  double north = 0, east = 0;
};

// Whole seconds of arc of the position at (north, east).
void Inverse(const Ellipsoid& ellipsoid, const std::string& zoneLine, double north, double east,
             std::int32_t& latitudeSeconds, std::int32_t& longitudeSeconds) {
  double latitude = 0, longitude = 0, convergence = 0, scale = 0;
  TmInverse(ellipsoid, zoneLine, latitude, longitude, north, east, convergence, scale);
  latitudeSeconds = CLng(DegOfRad(latitude) * 3600);
  longitudeSeconds = CLng(DegOfRad(longitude) * 3600);
}

std::int32_t MultipleAbove(std::int32_t value, std::int32_t spacing) {
  return (value + spacing) - (value + spacing) % spacing;
}
std::int32_t MultipleBelow(std::int32_t value, std::int32_t spacing) { return value - value % spacing; }

Corner Project(const Ellipsoid& ellipsoid, const std::string& zoneLine, double latitude, double longitude) {
  Corner corner{latitude, longitude};
  double convergence = 0, scale = 0;
  TmForward(ellipsoid, zoneLine, RadOfDeg(latitude), RadOfDeg(longitude), corner.north, corner.east, convergence,
            scale);
  return corner;
}

void Plus(PlotCanvas& canvas, const Corner& c, int s) {
  canvas.PSet(c.east, c.north);
  canvas.LineBy(c.east - s / 2.0, c.north, s, 0, kColorBlack);
  canvas.PSet(c.east, c.north);
  canvas.LineBy(c.east, c.north - s / 2.0, 0, s, kColorBlack);
}

void Label(PlotCanvas& canvas, const Corner& c, double height) {
  std::string text;
  canvas.PSet(c.east, c.north);
  RadToDms(RadOfDeg(c.latitude), text, kDmsSymbols, 0, true, false);
  canvas.Print(text);
  canvas.PSet(c.east, c.north - height / 70);
  RadToDms(RadOfDeg(c.longitude), text, kDmsSymbols, 0, true, true);
  canvas.Print(text);
}

}  // namespace

void PlotLatLonTicks(PlotCanvas& canvas, const Ellipsoid& ellipsoid, const std::string& zoneLine,
                     const TickView& view) {
  const int s = view.symbolSize;
  std::int32_t south = 0, east = 0, north = 0, west = 0;
  Inverse(ellipsoid, zoneLine, view.bottom + 2 * s, view.right - 10 * s, south, east);
  Inverse(ellipsoid, zoneLine, view.top, view.left, north, west);
  if (view.tickSeconds > 1) {
    const std::int32_t t = view.tickSeconds;
    south = MultipleAbove(south, t);
    east = MultipleAbove(east, t);
    north = MultipleBelow(north, t);
    west = MultipleBelow(west, t);
  }
  const double n = north / 3600.0, sLat = south / 3600.0, e = east / 3600.0, w = west / 3600.0;
  const Corner corners[] = {Project(ellipsoid, zoneLine, n, w), Project(ellipsoid, zoneLine, n, e),
                            Project(ellipsoid, zoneLine, sLat, w), Project(ellipsoid, zoneLine, sLat, e)};
  for (const Corner& c : corners)
    if (c.north > 0 && c.east > 0) Plus(canvas, c, s);
  for (const Corner& c : corners)
    if (c.north > 0 && c.east > 0) Label(canvas, c, view.height);
}

}  // namespace benchlog
