#pragma once
// The latitude and longitude ticks: a plus sign at each corner of a graticule rectangle inside the
// view, its corners on whole multiples of the tick spacing, labelled with the corner's latitude and
// longitude (as 38°53'00" over 077°02'30"). The labels run right and down from the corner, so the
// east edge is taken 10 symbols in from the view's right.
#include <cstdint>
#include <string>

#include "geodesy/ellipsoid.hpp"
#include "plot/plot_canvas.hpp"

namespace benchlog {

struct TickView {
  double left = 0, top = 0, right = 0, bottom = 0;  // the view, metres
  int symbolSize = 6;
  double height = 0;             // the view's height, metres
  std::int16_t tickSeconds = 0;  // spacing in seconds of arc; 1 or less leaves the corners unrounded
};

// Draws the ticks in the zone of `zoneLine`. A corner whose grid north or east is 0 or less is
// left out.
void PlotLatLonTicks(PlotCanvas& canvas, const Ellipsoid& ellipsoid, const std::string& zoneLine,
                     const TickView& view);

}  // namespace benchlog
