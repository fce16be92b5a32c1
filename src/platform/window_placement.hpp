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

}  // namespace benchlog
