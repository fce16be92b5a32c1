#pragma once
// Places a window at a saved position and size, brought inside the free area of the screen it
// belongs on (the screen under the saved position, or the primary screen).
#include <QRect>

class QWidget;

namespace benchlog {
struct WindowPlacement;
}

namespace benchlog::qt {

// A saved placement's rectangle (twips) in pixels.
QRect PixelsOfTwips(long left, long top, long width, long height);

// `wanted` is the frame's top-left corner and the window's size, in pixels.
void PlaceOnScreen(QWidget* window, const QRect& wanted);

// Records the window's state in `placement`, and in the normal state also its frame's top-left
// corner and its size, in twips.
void TakePlacement(const QWidget& window, WindowPlacement& placement);

// Gives the window `size` (pixels) and centres it on its screen's free area.
void CentreOnScreen(QWidget* window, const QSize& size);

}  // namespace benchlog::qt
