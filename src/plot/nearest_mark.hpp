#pragma once
// The one pick of the plot window: the mark nearest to a position, as every click on the plot
// finds it.
#include <cstdint>
#include <vector>

#include "plot/plot_store.hpp"

namespace benchlog {

inline constexpr double kPickRadius = 3000;  // metres: a mark farther from the click is never picked

// Goes through the marks from FirstPoint to LastPoint in order and takes into `point` the first
// one whose plane distance from (x, y) is strictly below that of every mark before it and below
// 3000 metres; with none so near, `point` keeps what it came with. Then fills `samePlace`, in order
// of point number, with every mark whose north and east equal exactly those of `point` (none for
// point 0, which lies at 0, 0). `point` must lie from 0 to 9999.
void FindNearestPoint(const PlotStore& store, double x, double y, std::int16_t& point,
                      std::vector<std::int16_t>& samePlace);

}  // namespace benchlog
