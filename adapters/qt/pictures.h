#pragma once

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <string>

namespace plexel {

/// The vector pictures of the product, by name: "pictures/NAME.svg" in the data directory.

/// The size for which a picture was drawn, in logical pixels; empty when there is no such picture.
QSize PictureSize(const std::string& name);
/// Draws a picture into a rectangle. A picture that is missing leaves it as it is.
void DrawPicture(QPainter& painter, const std::string& name, const QRectF& target);
/// A picture of a size in logical pixels, at the resolution of a screen of this ratio.
QPixmap PicturePixmap(const std::string& name, const QSize& size, qreal ratio);
/// A picture as an icon of a size in logical pixels, for screens of any ratio.
QIcon PictureIcon(const std::string& name, const QSize& size);

}  // namespace plexel
