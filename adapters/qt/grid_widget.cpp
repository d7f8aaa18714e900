#include "qt/grid_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "qt/captions.h"
#include "qt/input_events.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr int EdgeReach = 3;  // pixels
constexpr int CellMargin = 4;
constexpr int Narrowest = 120, NextInView = 240;  // twips

bool SameCell(const GridCell& one, const GridCell& other) {
  return one.text == other.text && one.foreColor == other.foreColor && one.backColor == other.backColor &&
         one.centred == other.centred;
}

bool SameRow(const std::vector<GridCell>& one, const std::vector<GridCell>& other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(), SameCell);
}

}  // namespace

bool GridWidget::Shot::operator==(const Shot& other) const {
  return widths == other.widths && row == other.row && col == other.col && topRow == other.topRow &&
         leftCol == other.leftCol && rowHeight == other.rowHeight && focus == other.focus && enabled == other.enabled &&
         showsEnd == other.showsEnd &&
         std::equal(cells.begin(), cells.end(), other.cells.begin(), other.cells.end(), SameRow);
}

GridWidget::GridWidget(const Grid& model, QWidget& parent, Listener listener)
    : QAbstractScrollArea(&parent), model_(model), listener_(std::move(listener)) {
  setFrameShape(QFrame::NoFrame);
  viewport()->setFocusPolicy(Qt::NoFocus);
  viewport()->setMouseTracking(true);
  setContextMenuPolicy(Qt::NoContextMenu);
}

GridWidget::Shot GridWidget::Take() const {
  Shot shot;
  for (int row = 0; row < model_.Rows(); ++row) {
    std::vector<GridCell>& cells = shot.cells.emplace_back();
    for (int col = 0; col < model_.Cols(); ++col) cells.push_back(model_.CellAt(row, col));
  }
  shot.widths = DrawnWidths();
  shot.row = model_.Row();
  shot.col = model_.Col();
  shot.topRow = model_.TopRow();
  shot.leftCol = model_.LeftCol();
  shot.rowHeight = model_.RowHeight();
  shot.focus = model_.HasFocus();
  shot.enabled = model_.Enabled();
  shot.showsEnd = model_.ShowsEnd();
  return shot;
}

int GridWidget::WidestOf(int col, const std::vector<int>& widths) const {
  const int room = static_cast<int>(model_.Width());
  if (col < model_.FixedCols()) return std::max(Narrowest, room / 2 / model_.FixedCols());
  const int fixed = std::accumulate(widths.begin(), widths.begin() + model_.FixedCols(), 0);
  return std::max(Narrowest, room - fixed - NextInView);
}

std::vector<int> GridWidget::DrawnWidths() const {
  std::vector<int> widths;
  for (int col = 0; col < model_.Cols(); ++col) {
    const int width = model_.ColWidth(col);
    widths.push_back(model_.UserResizing() ? std::clamp(width, Narrowest, WidestOf(col, widths)) : width);
  }
  return widths;
}

void GridWidget::Sync() {
  if (!model_.Redraw()) return;
  Shot shot = Take();
  if (shot == shot_) return;
  shot_ = std::move(shot);
  SyncScrollBars();
  viewport()->update();
}

void GridWidget::SyncScrollBars() {
  const QScopedValueRollback<bool> guard(syncing_, true);
  const int rows = model_.Rows() - model_.FixedRows();
  const bool tall = rows > model_.RowsInView();
  verticalScrollBar()->setRange(0, tall ? rows - model_.RowsInView() : 0);
  verticalScrollBar()->setPageStep(model_.RowsInView());
  verticalScrollBar()->setValue(shot_.topRow - model_.FixedRows());
  const int width = std::accumulate(shot_.widths.begin(), shot_.widths.end(), 0);
  const bool wide = static_cast<float>(width) > model_.Width();
  horizontalScrollBar()->setRange(0, wide ? model_.Cols() - model_.FixedCols() - 1 : 0);
  horizontalScrollBar()->setPageStep(1);
  horizontalScrollBar()->setValue(shot_.leftCol - model_.FixedCols());
  setVerticalScrollBarPolicy(tall ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  // Without room under the rows the keys and the wheel alone scroll sideways.
  const int rest = height() - ToPixels(static_cast<float>(model_.Rows() * shot_.rowHeight));
  const bool room = tall || rest >= horizontalScrollBar()->sizeHint().height();
  setHorizontalScrollBarPolicy(wide && room ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

QRect GridWidget::CellRect(int row, int col) const {
  const bool fixedRow = row < model_.FixedRows(), fixedCol = col < model_.FixedCols();
  if ((!fixedRow && row < shot_.topRow) || (!fixedCol && col < shot_.leftCol)) return {};
  float left = 0;
  for (int before = 0; before < col; ++before) {
    if (before < model_.FixedCols() || before >= shot_.leftCol) {
      left += static_cast<float>(shot_.widths[static_cast<std::size_t>(before)]);
    }
  }
  const int rowsAbove = fixedRow ? row : model_.FixedRows() + row - shot_.topRow;
  return PixelRect(left, static_cast<float>(rowsAbove * shot_.rowHeight),
                   static_cast<float>(shot_.widths[static_cast<std::size_t>(col)]),
                   static_cast<float>(shot_.rowHeight));
}

void GridWidget::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
  for (int row = 0; row < static_cast<int>(shot_.cells.size()); ++row) {
    for (int col = 0; col < static_cast<int>(shot_.widths.size()); ++col) {
      const QRect place = CellRect(row, col);
      if (!place.isEmpty()) DrawCell(painter, row, col, place);
    }
  }
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void GridWidget::DrawCell(QPainter& painter, int row, int col, const QRect& place) const {
  const GridCell& cell = shot_.cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
  const bool fixed = model_.IsFixed(row, col);
  painter.fillRect(place, fixed ? palette().color(QPalette::Button) : ColourOf(cell.backColor));
  painter.setPen(palette().color(fixed ? QPalette::Mid : QPalette::Midlight));
  painter.drawLine(place.topRight(), place.bottomRight());
  painter.drawLine(place.bottomLeft(), place.bottomRight());
  if (!fixed && row == shot_.row && col == shot_.col) {
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
  const Qt::TextElideMode elided = ShowsEnd(row, col) ? Qt::ElideLeft : Qt::ElideRight;
  painter.drawText(inner, Qt::AlignVCenter | Qt::AlignLeft,
                   painter.fontMetrics().elidedText(text, elided, inner.width()));
}

QString GridWidget::TextAt(int row, int col) const {
  return WithVisibleControls(ToQt(shot_.cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)].text));
}

QRect GridWidget::TextRect(int row, int col) const {
  return CellRect(row, col).adjusted(CellMargin, 0, -CellMargin, 0);
}

GridWidget::Spot GridWidget::SpotAt(const QPoint& point) const {
  Spot spot;
  spot.x = ToTwips(point.x());
  spot.y = ToTwips(point.y());
  for (int row = 0; row < model_.Rows(); ++row) {
    for (int col = 0; col < model_.Cols(); ++col) {
      if (!CellRect(row, col).contains(point)) continue;
      spot.row = row;
      spot.col = col;
      return spot;
    }
  }
  return spot;
}

int GridWidget::EdgeAt(const QPoint& point) const {
  if (!model_.UserResizing() || model_.FixedRows() == 0 || point.y() > CellRect(0, 0).bottom()) return -1;
  for (int col = model_.Cols() - 1; col >= 0; --col) {
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
  listener_.resized(resizedCol_, std::clamp(resizeWidth_ + change, Narrowest, WidestOf(resizedCol_, shot_.widths)));
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
