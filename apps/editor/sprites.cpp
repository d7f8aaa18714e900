#include "editor/sprites.h"

#include <cmath>

namespace plexel {

namespace {

constexpr int Phases = 16;                                 // to a pixel
constexpr int LargestEdge = 256;                           // pixels; larger ones are few
constexpr std::size_t MostBytes = std::size_t{16} << 20U;  // of all sprites
constexpr std::size_t PixelBytes = 4, EntryBytes = 256;

}  // namespace

std::size_t Sprites::Hash::operator()(const Key& key) const {
  std::size_t hash = std::hash<double>()(key.scale) ^ std::hash<double>()(key.ratio) << 1U;
  const auto add = [&hash](std::int32_t value) {
    hash = (hash ^ static_cast<std::uint32_t>(value)) * std::size_t{0x9E3779B97F4A7C15};
  };
  for (const std::int32_t value : key.look) add(value);
  add(key.phaseX * Phases + key.phaseY);
  return hash ^ hash >> 32U;
}

void Sprites::Draw(QPainter& painter, const Look& look, const QPointF& place, qreal scale, const QRectF& bounds,
                   const std::function<void(QPainter&)>& draw) {
  const QTransform& device = painter.deviceTransform();
  const qreal ratio = device.m11();
  const QSizeF size = bounds.size() * scale * ratio;
  if (device.type() > QTransform::TxScale || ratio != device.m22() || size.width() > LargestEdge ||
      size.height() > LargestEdge) {
    painter.save();
    painter.translate(place);
    painter.scale(scale, scale);
    draw(painter);
    painter.restore();
    return;
  }
  const QPointF at = device.map(place);
  const int x = static_cast<int>(std::floor(at.x() * Phases + 0.5)),
            y = static_cast<int>(std::floor(at.y() * Phases + 0.5));
  const QPoint pixel(x >> 4, y >> 4);
  const Key key{look, scale, ratio, x & (Phases - 1), y & (Phases - 1)};
  auto found = sprites_.find(key);
  if (found == sprites_.end()) {
    const QPointF phase(key.phaseX / qreal{Phases}, key.phaseY / qreal{Phases});
    const QRectF covered(bounds.topLeft() * scale * ratio + phase, size);
    const QRect whole = covered.toAlignedRect();
    const std::size_t bytes =
        static_cast<std::size_t>(whole.width()) * static_cast<std::size_t>(whole.height()) * PixelBytes + EntryBytes;
    if (bytes_ + bytes > MostBytes) {
      sprites_.clear();
      bytes_ = 0;
    }
    bytes_ += bytes;
    QPixmap pixmap(whole.size());
    pixmap.fill(Qt::transparent);
    QPainter onto(&pixmap);
    onto.setRenderHints(painter.renderHints());
    onto.translate(phase - whole.topLeft());
    onto.scale(scale * ratio, scale * ratio);
    draw(onto);
    onto.end();
    pixmap.setDevicePixelRatio(ratio);
    found = sprites_.emplace(key, Sprite{std::move(pixmap), whole.topLeft()}).first;
  }
  const QPointF corner = pixel + found->second.corner;
  painter.drawPixmap(QPointF((corner.x() - device.dx()) / ratio, (corner.y() - device.dy()) / ratio),
                     found->second.pixmap);
}

}  // namespace plexel
