#include "editor/elided_label.h"

#include <QPainter>

namespace plexel {

ElidedLabel::ElidedLabel(QWidget* parent) : QFrame(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ElidedLabel::SetText(const QString& text) {
  text_ = text;
  update();
}

QSize ElidedLabel::sizeHint() const { return {fontMetrics().horizontalAdvance(text_), fontMetrics().height() + 2}; }

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, fontMetrics().elidedText(text_, Qt::ElideRight, width()));
}

}  // namespace plexel
