#pragma once

#include <QRect>

namespace plexel {

/// How far a window has to move so that it stands beside what it must not cover, within `screen`: the shortest way to
/// its right, left, lower or upper side. None where it covers nothing, or the screen has no room on any side.
QPoint WayBeside(const QRect& window, const QRect& kept, const QRect& screen);

}  // namespace plexel
