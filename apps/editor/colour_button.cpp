#include "editor/colour_button.h"

#include <QColorDialog>
#include <QPainter>

namespace plexel {

namespace {
constexpr QSize swatch(48, 16);
}

ColourButton::ColourButton(const QColor& colour) {
  setIconSize(swatch);
  Colour(colour);
  connect(this, &QPushButton::clicked, this, [this] {
    const QColor chosen = QColorDialog::getColor(colour_, this);
    if (chosen.isValid()) Colour(chosen);
  });
}

void ColourButton::Colour(const QColor& colour) {
  colour_ = colour;
  QPixmap pixmap(swatch * devicePixelRatioF());
  pixmap.setDevicePixelRatio(devicePixelRatioF());
  pixmap.fill(colour);
  QPainter painter(&pixmap);
  painter.setPen(palette().color(QPalette::Dark));
  painter.drawRect(QRect(QPoint(), swatch - QSize(1, 1)));
  setIcon(pixmap);
  setText(colour.name());
}

}  // namespace plexel
