#pragma once
// A window's saved state, position and size (in twips, as text) in its own settings section.
#include <string>

#include "platform/settings_store.hpp"

namespace benchlog {

enum WindowState : int { kNormal = 0, kMinimized = 1, kMaximized = 2 };

struct WindowPlacement {
  int state = kNormal;
  long top = 0;
  long left = 0;
  long height = 4000;
  long width = 4000;
};

inline constexpr long kTwipsPerPixel = 15;

// A rectangle on the desktop, in pixels.
struct ScreenRect {
  long left = 0;
  long top = 0;
  long width = 0;
  long height = 0;
};

// Where a window saved as `wanted` may stand on a screen whose free area is `area` (after a change
// of screen or of scale factor a saved window can be larger than the screen or lie off it): a size
// larger than the area shrinks to it, and a window that would stick out moves in until it lies wholly
// inside. A window that fits stays where it was.
ScreenRect FitInside(ScreenRect wanted, const ScreenRect& area);

}  // namespace benchlog
