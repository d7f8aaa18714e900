#include "host/walk.h"

#include <cstdlib>

namespace plexel::host {

namespace {

struct Direction {
  WPARAM key;
  int x, y;
};
constexpr Direction directions[] = {{VK_LEFT, -1, 0}, {VK_RIGHT, 1, 0}, {VK_UP, 0, -1}, {VK_DOWN, 0, 1}};

POINT MiddleOf(const RECT& place) { return {(place.left + place.right) / 2, (place.top + place.bottom) / 2}; }

/// How far a place lies in a direction, what lies aside counting twice; not above 0 for one that lies elsewhere.
LONG Distance(const RECT& from, const RECT& to, const Direction& direction) {
  const POINT a = MiddleOf(from), b = MiddleOf(to);
  const LONG x = b.x - a.x, y = b.y - a.y;
  const LONG ahead = x * direction.x + y * direction.y, aside = std::labs(x * direction.y) + std::labs(y * direction.x);
  return ahead > 0 && aside <= 2 * ahead ? ahead + 2 * aside : 0;
}

std::size_t Nearest(std::span<const RECT> places, std::size_t from, const Direction& direction) {
  std::size_t nearest = from;
  LONG least = 0;
  for (std::size_t place = 0; place < places.size(); ++place) {
    const LONG distance = Distance(places[from], places[place], direction);
    if (distance <= 0 || (least > 0 && distance >= least)) continue;
    least = distance;
    nearest = place;
  }
  return nearest;
}

}  // namespace

std::size_t PlaceBehind(std::span<const RECT> places, std::size_t from, WPARAM key, bool shift) {
  if (places.empty()) return from;
  if (key == VK_TAB) {
    if (from >= places.size()) return shift ? places.size() - 1 : 0;
    return (from + (shift ? places.size() - 1 : 1)) % places.size();
  }
  for (const Direction& direction : directions) {
    if (direction.key != key) continue;
    return from >= places.size() ? 0 : Nearest(places, from, direction);
  }
  return from;
}

}  // namespace plexel::host
