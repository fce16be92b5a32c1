#include "plot/zoom_ladder.hpp"

#include <cmath>

#include "geodesy/checked_math.hpp"

namespace benchlog {

double ViewWidth(int level) { return 10 * std::pow(2.0, 17 - level); }

std::optional<std::int16_t> LevelOfWidth(double width) {
  if (width > ViewWidth(2)) return 1;
  for (std::int16_t level = 2; level <= 13; ++level)
    if (width > ViewWidth(level + 1) && width < ViewWidth(level)) return level;
  if (width < ViewWidth(14)) return 14;
  return std::nullopt;
}

std::optional<std::int16_t> TickSecondsOf(int level) {
  static constexpr std::int16_t kSeconds[] = {3600, 1800, 900, 450, 450, 450, 150, 60, 60, 15, 15, 2, 2, 2};
  if (level < 1 || level > 14) return std::nullopt;
  return kSeconds[level - 1];
}

void FitToClient(double& width, double& height, double clientWidth, double clientHeight) {
  const double aspect = Quotient(clientHeight, clientWidth);
  const double rh = Quotient(clientHeight, height);
  const double rw = Quotient(clientWidth, width);
  if (rh < rw)
    width = Quotient(height, aspect);
  else
    height = width * aspect;
}

}  // namespace benchlog
