#include "platform/window_placement.hpp"

#include <algorithm>

namespace benchlog {

ScreenRect FitInside(ScreenRect wanted, const ScreenRect& area) {
  wanted.width = std::clamp(wanted.width, 1L, std::max(area.width, 1L));
  wanted.height = std::clamp(wanted.height, 1L, std::max(area.height, 1L));
  wanted.left = std::clamp(wanted.left, area.left, area.left + std::max(area.width, 1L) - wanted.width);
  wanted.top = std::clamp(wanted.top, area.top, area.top + std::max(area.height, 1L) - wanted.height);
  return wanted;
}

}  // namespace benchlog
