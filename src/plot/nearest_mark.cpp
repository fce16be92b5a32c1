#include "plot/nearest_mark.hpp"

#include <cmath>

namespace benchlog {

void FindNearestPoint(const PlotStore& store, double x, double y, std::int16_t& point,
                      std::vector<std::int16_t>& samePlace) {
  double best = kPickRadius;
  for (int n = store.FirstPoint; n <= store.LastPoint; ++n) {
    const double dx = store.PtEast[n] - x, dy = store.PtNorth[n] - y;
    const double distance = std::sqrt(dx * dx + dy * dy);
    if (distance < best) {
      best = distance;
      point = static_cast<std::int16_t>(n);
    }
  }
  samePlace.clear();
  const double north = store.PtNorth.at(point), east = store.PtEast.at(point);
  for (int n = store.FirstPoint; n <= store.LastPoint; ++n)
    if (store.PtNorth[n] == north && store.PtEast[n] == east) samePlace.push_back(static_cast<std::int16_t>(n));
}

}  // namespace benchlog
