#include "platform/qt/screen_fit.hpp"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "platform/window_placement.hpp"

namespace benchlog::qt {

QRect PixelsOfTwips(long left, long top, long width, long height) {
  return QRect(static_cast<int>(left / kTwipsPerPixel), static_cast<int>(top / kTwipsPerPixel),
               static_cast<int>(width / kTwipsPerPixel), static_cast<int>(height / kTwipsPerPixel));
}

void PlaceOnScreen(QWidget* window, const QRect& wanted) {
  QScreen* screen = QGuiApplication::screenAt(wanted.center());
  if (!screen) screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
  if (!screen) {
    window->resize(wanted.size());
    window->move(wanted.topLeft());
    return;
  }
  const QRect free = screen->availableGeometry();
  // The window manager's frame lies around the client area; leave room for it. Before the window is
  // first shown its frame is not known yet, so room for a usual title bar and border is kept.
  QSize frame = window->frameGeometry().size() - window->geometry().size();
  if (frame.isEmpty()) frame = QSize(16, 48);
  const ScreenRect fitted = FitInside({wanted.left(), wanted.top(), wanted.width() + frame.width(), wanted.height() + frame.height()},
                                      {free.left(), free.top(), free.width(), free.height()});
  window->resize(static_cast<int>(fitted.width) - frame.width(), static_cast<int>(fitted.height) - frame.height());
  window->move(static_cast<int>(fitted.left), static_cast<int>(fitted.top));
}

void TakePlacement(const QWidget& window, WindowPlacement& p) {
  p.state = window.isMaximized() ? kMaximized : window.isMinimized() ? kMinimized : kNormal;
  if (p.state != kNormal) return;
  const QRect frame = window.frameGeometry();
  p.top = frame.top() * kTwipsPerPixel;
  p.left = frame.left() * kTwipsPerPixel;
  p.height = window.height() * kTwipsPerPixel;
  p.width = window.width() * kTwipsPerPixel;
}

void CentreOnScreen(QWidget* window, const QSize& size) {
  QScreen* screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
  window->resize(size);
  if (!screen) return;
  const QRect free = screen->availableGeometry();
  // move() places the frame: centre the frame, whose size is only known once the window is shown.
  QSize frame = window->frameGeometry().size() - window->geometry().size();
  if (!window->isVisible()) frame = QSize(16, 48);
  const QSize outer = size + frame;
  window->move(free.left() + (free.width() - outer.width()) / 2, free.top() + (free.height() - outer.height()) / 2);
}

}  // namespace benchlog::qt
