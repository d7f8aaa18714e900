#include "qt/window_place.h"

#include <algorithm>
#include <array>

namespace plexel {

namespace {

constexpr int Gap = 8;

/// The window moved into the screen; one that is larger stands at its upper left.
QRect Inside(QRect window, const QRect& screen) {
  window.moveRight(std::min(window.right(), screen.right()));
  window.moveBottom(std::min(window.bottom(), screen.bottom()));
  window.moveTopLeft({std::max(window.left(), screen.left()), std::max(window.top(), screen.top())});
  return window;
}

}  // namespace

QPoint WayBeside(const QRect& window, const QRect& kept, const QRect& screen) {
  if (!window.intersects(kept)) return {};
  const QRect clear = kept.adjusted(-Gap, -Gap, Gap, Gap);
  const std::array corners = {
      QPoint(clear.right() + 1, window.top()), QPoint(clear.left() - window.width(), window.top()),
      QPoint(window.left(), clear.bottom() + 1), QPoint(window.left(), clear.top() - window.height())};
  QPoint best;
  for (const QPoint& corner : corners) {
    const QRect moved = Inside(QRect(corner, window.size()), screen);
    const QPoint way = moved.topLeft() - window.topLeft();
    if (!screen.contains(moved) || moved.intersects(clear)) continue;
    if (best.isNull() || way.manhattanLength() < best.manhattanLength()) best = way;
  }
  return best;
}

}  // namespace plexel
