#include "editor/time_line_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <cmath>

#include "editor/trial_layer.h"

namespace plexel {

namespace {

constexpr int ColumnWidth = 22, RowHeight = 20, Side = 6, WordSide = 4;
constexpr int MostWord = 120;  // a longer word is shown in part

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
  nameWidth_ = 0;
  for (const Row& row : rows_) nameWidth_ = std::max(nameWidth_, fontMetrics().horizontalAdvance(row.name) + 2 * Side);
  MeasureColumns();
  MeasureBars();
  horizontalScrollBar()->setValue(horizontalScrollBar()->maximum());
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  viewport()->update();
}

void TimeLineView::MeasureColumns() {
  edges_ = {0};
  for (const Stretch& stretch : stretches_) {
    const int left = edges_.back(), events = static_cast<int>(stretch.events);
    const int need = static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(stretch.word)));
    const int word = std::min(need, MostWord) + 2 * WordSide;
    const int width = std::max(events * ColumnWidth, word);
    for (int event = 1; event <= events; ++event) edges_.push_back(left + width * event / events);
  }
}

std::vector<QString> TimeLineView::Words() const {
  std::vector<QString> words;
  std::size_t event = 0;
  for (const Stretch& stretch : stretches_) {
    const int room = edges_[event + stretch.events] - edges_[event] - 2 * WordSide;
    words.push_back(fontMetrics().elidedText(stretch.word, Qt::ElideRight, room));
    event += stretch.events;
  }
  return words;
}

void TimeLineView::MeasureBars() {
  const int width = viewport()->width() - nameWidth_, height = viewport()->height() - RowHeight;
  horizontalScrollBar()->setPageStep(width);
  horizontalScrollBar()->setRange(0, std::max(0, edges_.back() - width));
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
  const std::vector<QString> words = Words();
  std::size_t first = 0;
  for (std::size_t stretch = 0; stretch < words.size(); ++stretch) {
    const std::size_t next = first + stretches_[stretch].events;
    const QRect head(left + edges_[first], 0, edges_[next] - edges_[first], RowHeight);
    painter.setPen(ink);
    painter.drawText(head.adjusted(WordSide, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, words[stretch]);
    painter.setPen(line);
    painter.drawLine(head.left(), 0, head.left(), bottom);
    first = next;
  }
  painter.setClipRect(0, RowHeight, viewport()->width(), viewport()->height());
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    const int y = top + static_cast<int>(row) * RowHeight;
    const QColor colour = rows_[row].stays ? TrialLayer::LeftDownColour : TrialLayer::HeldColour;
    for (std::size_t event = 0; event < rows_[row].marks.size(); ++event) {
      const QRectF cell(left + edges_[event], y, edges_[event + 1] - edges_[event], RowHeight);
      if (cell.right() > nameWidth_) DrawMark(painter, cell, rows_[row].marks[event], colour);
    }
    const QRect name(0, y, nameWidth_, RowHeight);
    painter.fillRect(name, palette().base());
    painter.setPen(rows_[row].stays ? colour : ink);
    painter.drawText(name.adjusted(Side, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, rows_[row].name);
  }
}

}  // namespace plexel
