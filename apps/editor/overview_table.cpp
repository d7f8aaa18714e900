#include "editor/overview_table.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "editor/overview_delegate.h"

namespace plexel {

OverviewTable::OverviewTable(OverviewModel& model, Selection& selection, QWidget* parent)
    : QTableView(parent), model_(model), selection_(selection) {
  setModel(&model_);
  setItemDelegate(new OverviewDelegate(model_, selection_, this));
  setSelectionMode(QAbstractItemView::NoSelection);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setShowGrid(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  constexpr int LeastLines = 7;
  setMinimumHeight(LeastLines * verticalHeader()->defaultSectionSize() + horizontalHeader()->sizeHint().height());
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
  constexpr int widths[] = {64, 150, 60, 190, 150, 130, 200};  // the last takes the rest
  for (int column = 0; column < static_cast<int>(std::size(widths)); ++column) setColumnWidth(column, widths[column]);
  connect(&model_, &QAbstractItemModel::modelReset, this, [this] { Follow(); });
  selection_.Listen(*this, [this] { Follow(); });
}

void OverviewTable::Follow() {
  const QScopedValueRollback follows(follows_, true);
  viewport()->update();
  const int place = selection_.Current();
  const QModelIndex now = currentIndex();
  if (now.isValid() && model_.PlaceOf(now.row()) == place) return;
  const std::int32_t layer = now.isValid() ? model_.LayerOf(now.row()) : 1;
  int row = model_.RowOf(place, layer);
  if (row < 0) row = model_.RowOf(place, 0);
  if (row < 0) return setCurrentIndex({});
  setCurrentIndex(model_.index(row, std::max(now.column(), 0)));
  if (isVisible()) scrollTo(currentIndex());
}

void OverviewTable::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  if (currentIndex().isValid()) scrollTo(currentIndex());
}

void OverviewTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (follows_ || byMouse_ || !current.isValid()) return;
  const bool extends = QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier) ||
                       QApplication::mouseButtons().testFlag(Qt::LeftButton);
  if (extends) return ExtendTo(current.row());
  if (selection_.Current() != model_.PlaceOf(current.row()) || selection_.IsMany()) {
    selection_.Only(model_.PlaceOf(current.row()));
  }
}

void OverviewTable::mousePressEvent(QMouseEvent* event) {
  const QModelIndex at = indexAt(event->pos());
  {
    const QScopedValueRollback byMouse(byMouse_, true);
    QTableView::mousePressEvent(event);
  }
  if (!at.isValid()) return;
  const int place = model_.PlaceOf(at.row());
  if (event->modifiers().testFlag(Qt::ShiftModifier)) return ExtendTo(at.row());
  if (event->modifiers().testFlag(Qt::ControlModifier)) return selection_.Toggle(place);
  if (event->button() == Qt::LeftButton || !selection_.Has(place)) selection_.Only(place);
}

void OverviewTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::SelectAll)) return selection_.ChooseAndGo(model_.PlacesShown());
  QTableView::keyPressEvent(event);
}

void OverviewTable::ExtendTo(int row) {
  int anchor = model_.RowOf(selection_.Anchor(), 0);
  if (anchor < 0) anchor = row;
  std::vector<int> places;
  for (int one = std::min(anchor, row); one <= std::max(anchor, row); ++one) places.push_back(model_.PlaceOf(one));
  selection_.Choose(places, model_.PlaceOf(row));
}

void OverviewTable::GoTo(int row) {
  setCurrentIndex(model_.index(row, std::max(currentIndex().column(), 0)));
  scrollTo(currentIndex());
}

void OverviewTable::GoOn(bool forward) {
  const int count = model_.rowCount();
  if (count == 0) return;
  const int row = currentIndex().isValid() ? currentIndex().row() : (forward ? -1 : 0);
  GoTo((row + (forward ? 1 : count - 1)) % count);
}

}  // namespace plexel
