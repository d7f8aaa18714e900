#include "editor/time_line_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>

#include "editor/trial_layer.h"

namespace plexel {

namespace {

constexpr int ColumnWidth = 22, RowHeight = 20, Side = 6;
constexpr int WordWidth = 30;  // less has room for a sign alone

/// A triangle that points down or up in a cell.
void DrawTriangle(QPainter& painter, const QRectF& cell, bool down, bool filled) {
  constexpr double Half = 5, Tall = 4;
  const QPointF middle = cell.center();
  const double base = down ? -Tall : Tall;
  const std::array corners = {middle + QPointF(-Half, base), middle + QPointF(Half, base), middle + QPointF(0, -base)};
  if (!filled) painter.setBrush(Qt::white);
  painter.drawPolygon(corners.data(), int(corners.size()));
}

void DrawDiamond(QPainter& painter, const QRectF& cell) {
  constexpr double Half = 5;
  const QPointF middle = cell.center();
  const std::array corners = {middle + QPointF(-Half, 0), middle + QPointF(0, -Half), middle + QPointF(Half, 0),
                              middle + QPointF(0, Half)};
  painter.drawPolygon(corners.data(), int(corners.size()));
}

void DrawMark(QPainter& painter, const QRectF& cell, TimeMark mark, const QColor& colour) {
  constexpr double Bar = 3;
  painter.setPen(QPen(colour, 1));
  painter.setBrush(colour);
  // A key that is down is a bar from where it goes down to where it comes up.
  const bool comes = mark == TimeMark::GoesDown, goes = mark == TimeMark::ComesUp;
  if (comes || goes || mark == TimeMark::Held || mark == TimeMark::Repeats) {
    const double left = comes ? cell.center().x() : cell.left(), right = goes ? cell.center().x() : cell.right() + 1;
    painter.fillRect(QRectF(left, cell.center().y() - Bar / 2, right - left, Bar), colour);
  }
  if (comes || mark == TimeMark::Repeats) DrawTriangle(painter, cell, true, comes);
  if (goes) DrawTriangle(painter, cell, false, true);
  if (mark == TimeMark::Command) DrawDiamond(painter, cell);
  if (mark == TimeMark::Unknown) painter.drawText(cell, Qt::AlignCenter, "?");
}

}  // namespace

TimeLineView::TimeLineView(QWidget* parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::NoFocus);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
}

void TimeLineView::Show(std::vector<Stretch> stretches, std::vector<Row> rows) {
  stretches_ = std::move(stretches);
  rows_ = std::move(rows);
  nameWidth_ = columns_ = 0;
  for (const Row& row : rows_) nameWidth_ = std::max(nameWidth_, fontMetrics().horizontalAdvance(row.name) + 2 * Side);
  for (const Stretch& stretch : stretches_) columns_ += static_cast<int>(stretch.events);
  MeasureBars();
  horizontalScrollBar()->setValue(horizontalScrollBar()->maximum());
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  viewport()->update();
}

void TimeLineView::MeasureBars() {
  const int width = viewport()->width() - nameWidth_, height = viewport()->height() - RowHeight;
  horizontalScrollBar()->setPageStep(width);
  horizontalScrollBar()->setRange(0, std::max(0, columns_ * ColumnWidth - width));
  verticalScrollBar()->setPageStep(height);
  verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(rows_.size()) * RowHeight - height));
}

void TimeLineView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  MeasureBars();
}

void TimeLineView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor line = palette().mid().color(), ink = palette().text().color();
  const int left = nameWidth_ - horizontalScrollBar()->value(), top = RowHeight - verticalScrollBar()->value();
  const int bottom = top + static_cast<int>(rows_.size()) * RowHeight;
  painter.setClipRect(nameWidth_, 0, viewport()->width(), viewport()->height());
  int x = left;
  for (const Stretch& stretch : stretches_) {
    const QRect head(x, 0, static_cast<int>(stretch.events) * ColumnWidth, RowHeight);
    painter.setPen(ink);
    const int room = head.width() - 2;
    const bool fits = fontMetrics().horizontalAdvance(stretch.word) <= room;
    const QString word =
        fits || room > WordWidth ? fontMetrics().elidedText(stretch.word, Qt::ElideRight, room) : stretch.word.left(1);
    painter.drawText(head.adjusted(2, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, word);
    painter.setPen(line);
    painter.drawLine(head.left(), 0, head.left(), bottom);
    x = head.right() + 1;
  }
  painter.setClipRect(0, RowHeight, viewport()->width(), viewport()->height());
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    const int y = top + static_cast<int>(row) * RowHeight;
    const QColor colour = rows_[row].stays ? TrialLayer::LeftDownColour : TrialLayer::HeldColour;
    for (std::size_t event = 0; event < rows_[row].marks.size(); ++event) {
      const QRectF cell(left + static_cast<int>(event) * ColumnWidth, y, ColumnWidth, RowHeight);
      if (cell.right() > nameWidth_) DrawMark(painter, cell, rows_[row].marks[event], colour);
    }
    const QRect name(0, y, nameWidth_, RowHeight);
    painter.fillRect(name, palette().base());
    painter.setPen(rows_[row].stays ? colour : ink);
    painter.drawText(name.adjusted(Side, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, rows_[row].name);
  }
}

}  // namespace plexel
