#pragma once

#include <QPainter>
#include <QPixmap>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>

namespace plexel {

/// Small drawings that stand many times in a picture, each kept as it looks in a scale and a place within a pixel, so
/// that it is drawn once and then copied.
class Sprites {
 public:
  /// What tells one drawing from another.
  using Look = std::array<std::int32_t, 7>;

  /// Draws with its origin at a place, in pixels of the picture that are `scale` times those of the drawing. `bounds`
  /// holds all that it covers round its origin. The painter may move the picture, and scale it to the screen.
  void Draw(QPainter& painter, const Look& look, const QPointF& place, qreal scale, const QRectF& bounds,
            const std::function<void(QPainter&)>& draw);

 private:
  struct Key {
    Look look{};
    double scale = 0, ratio = 0;
    int phaseX = 0, phaseY = 0;  ///< the place within a pixel of the screen
    bool operator==(const Key&) const = default;
  };
  struct Hash {
    std::size_t operator()(const Key& key) const;
  };
  struct Sprite {
    QPixmap pixmap;
    QPoint corner;  ///< from the pixel of its origin
  };

  std::unordered_map<Key, Sprite, Hash> sprites_;
  std::size_t bytes_ = 0;
};

}  // namespace plexel
