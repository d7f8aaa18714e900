#include "editor/text_line.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QTextLayout>
#include <cmath>

#include "qt/pictures.h"

namespace plexel {

namespace {
constexpr int Pad = 2, PictureSide = 14, PictureGap = 4;
}  // namespace

TextLine::TextLine(Look look, bool isLink, QWidget* parent) : QAbstractButton(parent), isLink_(isLink) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  setFocusPolicy(isLink_ ? Qt::StrongFocus : Qt::NoFocus);
  if (isLink_) setCursor(Qt::PointingHandCursor);
  SetLook(look);
}

void TextLine::SetText(const QString& text) {
  if (text == content_) return;
  content_ = text;
  setAccessibleName(text);  // its own text would make shortcuts of what a file holds
  updateGeometry();
  update();
}

void TextLine::SetLook(Look look) {
  look_ = look;
  QFont bold = font();
  bold.setBold(look == Look::Heading);
  setFont(bold);
  update();
}

void TextLine::SetPicture(const std::string& name) {
  picture_ = name;
  updateGeometry();
  update();
}

int TextLine::Ahead() const { return Pad + (picture_.empty() ? 0 : PictureSide + PictureGap); }

int TextLine::LayOut(int width, QPainter* painter) const {
  QTextLayout layout(QString(content_).replace('\n', QChar::LineSeparator), font());
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  qreal height = 0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(std::max(1, width - Ahead() - Pad));
    line.setPosition(QPointF(0, height));
    height += line.height();
  }
  layout.endLayout();
  if (painter != nullptr) layout.draw(painter, QPointF(Ahead(), Pad));
  return static_cast<int>(std::ceil(height)) + 2 * Pad;
}

int TextLine::heightForWidth(int width) const { return LayOut(width, nullptr); }

QSize TextLine::sizeHint() const {
  constexpr int Widest = 240;
  const int width = std::min(Widest, fontMetrics().horizontalAdvance(content_) + Ahead() + 2 * Pad);
  return {width, heightForWidth(width)};
}

QSize TextLine::minimumSizeHint() const {
  return {Ahead() + 3 * fontMetrics().averageCharWidth(), fontMetrics().height() + 2 * Pad};
}

void TextLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor ink = palette().color(QPalette::Normal, isLink_ && isEnabled() ? QPalette::Link : QPalette::WindowText);
  if (look_ == Look::Quiet) ink.setAlpha(150);
  painter.setPen(ink);
  if (!picture_.empty()) {
    const double top = Pad + (fontMetrics().height() - PictureSide) / 2.0;
    DrawPicture(painter, picture_, QRectF(Pad, top, PictureSide, PictureSide));
  }
  LayOut(width(), &painter);
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void TextLine::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
  QAbstractButton::keyPressEvent(event);
}

}  // namespace plexel
