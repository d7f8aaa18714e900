#include "qt/grid_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <cstdlib>

#include "qt/captions.h"
#include "qt/input_events.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr int EdgeReach = 3;  // pixels
constexpr int CellMargin = 4;

}  // namespace

GridWidget::GridWidget(const Grid& model, QWidget& parent, Listener listener)
    : QAbstractScrollArea(&parent), model_(model), listener_(std::move(listener)) {
  setFrameShape(QFrame::NoFrame);
  viewport()->setFocusPolicy(Qt::NoFocus);
  viewport()->setMouseTracking(true);
  setContextMenuPolicy(Qt::NoContextMenu);
}

void GridWidget::Sync() {
  if (!model_.Redraw()) return;
  GridShot shot = GridShot::Of(model_);
  if (shot == shot_) return;
  shot_ = std::move(shot);
  SyncScrollBars();
  viewport()->update();
}

void GridWidget::SyncScrollBars() {
  const QScopedValueRollback<bool> guard(syncing_, true);
  const bool tall = shot_.IsTall(), wide = shot_.IsWide();
  verticalScrollBar()->setRange(0, tall ? shot_.Rows() - shot_.fixedRows - shot_.rowsInView : 0);
  verticalScrollBar()->setPageStep(shot_.rowsInView);
  verticalScrollBar()->setValue(shot_.topRow - shot_.fixedRows);
  horizontalScrollBar()->setRange(0, wide ? shot_.Cols() - shot_.fixedCols - 1 : 0);
  horizontalScrollBar()->setPageStep(1);
  horizontalScrollBar()->setValue(shot_.leftCol - shot_.fixedCols);
  setVerticalScrollBarPolicy(tall ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  // Without room under the rows the keys and the wheel alone scroll sideways.
  const bool room = tall || ToPixels(shot_.HeightBelow()) >= horizontalScrollBar()->sizeHint().height();
  setHorizontalScrollBarPolicy(wide && room ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

QRect GridWidget::CellRect(int row, int col) const {
  const GridPlace place = shot_.PlaceOf(row, col);
  return place.IsEmpty() ? QRect() : PixelRect(place.left, place.top, place.width, place.height);
}

void GridWidget::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
  for (int row = 0; row < shot_.Rows(); ++row) {
    for (int col = 0; col < shot_.Cols(); ++col) {
      const QRect place = CellRect(row, col);
      if (!place.isEmpty()) DrawCell(painter, row, col, place);
    }
  }
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void GridWidget::DrawCell(QPainter& painter, int row, int col, const QRect& place) const {
  const GridCell& cell = shot_.At(row, col);
  const bool fixed = shot_.IsFixed(row, col);
  painter.fillRect(place, fixed ? palette().color(QPalette::Button) : ColourOf(cell.backColor));
  painter.setPen(palette().color(fixed ? QPalette::Mid : QPalette::Midlight));
  painter.drawLine(place.topRight(), place.bottomRight());
  painter.drawLine(place.bottomLeft(), place.bottomRight());
  if (!fixed && shot_.IsCurrent(row, col)) {
    const QColor mark = palette().color(shot_.focus ? QPalette::Active : QPalette::Inactive,
                                        shot_.focus ? QPalette::Highlight : QPalette::Dark);
    painter.setPen(QPen(mark, 2));
    painter.drawRect(place.adjusted(1, 1, -1, -1));
  }
  painter.setPen(shot_.enabled ? ColourOf(cell.foreColor) : palette().color(QPalette::Disabled, QPalette::Text));
  const QString text = TextAt(row, col);
  if (cell.centred) {
    painter.drawText(place, Qt::AlignCenter, text);
    return;
  }
  const QRect inner = TextRect(row, col);
  const Qt::TextElideMode elided = shot_.ShowsEnd(row, col) ? Qt::ElideLeft : Qt::ElideRight;
  painter.drawText(inner, Qt::AlignVCenter | Qt::AlignLeft,
                   painter.fontMetrics().elidedText(text, elided, inner.width()));
}

QString GridWidget::TextAt(int row, int col) const { return WithVisibleControls(ToQt(shot_.At(row, col).text)); }

QRect GridWidget::TextRect(int row, int col) const {
  return CellRect(row, col).adjusted(CellMargin, 0, -CellMargin, 0);
}

GridWidget::Spot GridWidget::SpotAt(const QPoint& point) const {
  Spot spot;
  spot.x = ToTwips(point.x());
  spot.y = ToTwips(point.y());
  for (int row = 0; row < shot_.Rows(); ++row) {
    for (int col = 0; col < shot_.Cols(); ++col) {
      if (!CellRect(row, col).contains(point)) continue;
      spot.row = row;
      spot.col = col;
      return spot;
    }
  }
  return spot;
}

int GridWidget::EdgeAt(const QPoint& point) const {
  if (!model_.UserResizing() || shot_.fixedRows == 0 || point.y() > CellRect(0, 0).bottom()) return -1;
  for (int col = shot_.Cols() - 1; col >= 0; --col) {
    const QRect place = CellRect(0, col);
    if (!place.isNull() && std::abs(place.x() + place.width() - point.x()) <= EdgeReach) return col;
  }
  return -1;
}

void GridWidget::mousePressEvent(QMouseEvent* event) {
  const int edge = event->button() == Qt::LeftButton ? EdgeAt(event->pos()) : -1;
  if (edge >= 0) {
    resizedCol_ = edge;
    resizeFrom_ = event->pos().x();
    resizeWidth_ = shot_.widths[static_cast<std::size_t>(edge)];
    return;
  }
  pressed_ = SpotAt(event->pos());
  const Spot spot = pressed_;
  listener_.pressed(spot, ButtonOf(event->button()), ShiftOf(event->modifiers()));
  if (event->button() == Qt::LeftButton && spot.OnCell()) listener_.clicked(spot);
}

void GridWidget::mouseMoveEvent(QMouseEvent* event) {
  if (resizedCol_ < 0) {
    viewport()->setCursor(EdgeAt(event->pos()) >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
    return;
  }
  const int change = static_cast<int>(ToTwips(event->pos().x() - resizeFrom_));
  listener_.resized(resizedCol_, shot_.WidthWithin(resizedCol_, resizeWidth_ + change));
}

void GridWidget::mouseReleaseEvent(QMouseEvent*) { resizedCol_ = -1; }

void GridWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return mousePressEvent(event);
  if (EdgeAt(event->pos()) >= 0) return;
  listener_.doubleClicked(SpotAt(event->pos()));
}

void GridWidget::wheelEvent(QWheelEvent* event) {
  constexpr int StepOfWheel = 120, RowsOfStep = 3;
  const bool sideways = event->modifiers().testFlag(Qt::ShiftModifier) || verticalScrollBar()->maximum() == 0;
  const QPoint turned = event->angleDelta();
  const int rows = sideways ? 0 : turned.y() * RowsOfStep / StepOfWheel;
  const int cols = (sideways ? turned.x() + turned.y() : turned.x()) / StepOfWheel;
  if (rows != 0 || cols != 0) listener_.scrolled(model_.TopRow() - rows, model_.LeftCol() - cols);
}

bool GridWidget::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
  const auto& asked = static_cast<const QHelpEvent&>(*event);
  const Spot spot = SpotAt(asked.pos());
  const bool cut = spot.OnCell() && viewport()->fontMetrics().horizontalAdvance(TextAt(spot.row, spot.col)) >
                                        TextRect(spot.row, spot.col).width();
  const QString text = cut ? ToolTipOf(TextAt(spot.row, spot.col)) : toolTip();
  QToolTip::showText(asked.globalPos(), text, viewport(), cut ? CellRect(spot.row, spot.col) : QRect());
  return true;
}

void GridWidget::scrollContentsBy(int, int) {
  if (syncing_) return;
  listener_.scrolled(verticalScrollBar()->value() + model_.FixedRows(),
                     horizontalScrollBar()->value() + model_.FixedCols());
}

}  // namespace plexel
