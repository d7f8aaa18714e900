#include "editor/panel_view.h"

#include <QKeyEvent>
#include <QRubberBand>
#include <cstdlib>
#include <limits>

namespace plexel {

namespace {
constexpr std::int16_t ReturnCharacter = 13;
}  // namespace

void PanelView::keyPressEvent(QKeyEvent* event) {
  ctlPlexelBaseElement* const element = Selected();
  QPoint direction;
  switch (event->key()) {
    case Qt::Key_Left:
      direction = {-1, 0};
      break;
    case Qt::Key_Right:
      direction = {1, 0};
      break;
    case Qt::Key_Up:
      direction = {0, -1};
      break;
    case Qt::Key_Down:
      direction = {0, 1};
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (element == nullptr) return;
      if (event->modifiers().testFlag(Qt::AltModifier)) return run(onProperties);
      return run([this, hold = element->shared_from_this()] {
        onReturn(*hold, [&hold] { hold->UserControl_KeyPress(ReturnCharacter); });
      });
    case Qt::Key_Space:
      spaceHeld_ = true;
      return ShowCursor(mapFromGlobal(QCursor::pos()));
    case Qt::Key_Escape:
      if (band_->isVisible()) return EndBand(false);
      return QWidget::keyPressEvent(event);
    default:
      return QWidget::keyPressEvent(event);
  }
  const int next = Neighbour(direction);
  if (next < 0) return;
  event->modifiers().testFlag(Qt::ShiftModifier) ? ExtendTo(next) : Select(next);
}

void PanelView::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space || event->isAutoRepeat()) return QWidget::keyReleaseEvent(event);
  spaceHeld_ = false;
  ShowCursor(mapFromGlobal(QCursor::pos()));
}

void PanelView::focusOutEvent(QFocusEvent* event) {
  spaceHeld_ = false;
  QWidget::focusOutEvent(event);
}

bool PanelView::focusNextPrevChild(bool next) {
  const int count = document_ == nullptr ? 0 : selection_.Count();
  if (count == 0) return QWidget::focusNextPrevChild(next);
  Select((selection_.Current() + (next ? 1 : count - 1)) % count);
  return true;
}

int PanelView::Neighbour(const QPoint& direction) const {
  const int from = document_ == nullptr ? -1 : selection_.Current();
  if (from < 0) return -1;
  const QPoint middle = PlaceRect(from).center();
  int best = -1, bestDistance = std::numeric_limits<int>::max();
  for (int place = 0; place < selection_.Count(); ++place) {
    const QPoint way = PlaceRect(place).center() - middle;
    const int along = QPoint::dotProduct(way, direction);
    const int across = std::abs(QPoint::dotProduct(way, QPoint(direction.y(), direction.x())));
    if (place == from || along <= 0 || across > 2 * along) continue;
    const int distance = along + 2 * across;
    if (distance >= bestDistance) continue;
    best = place;
    bestDistance = distance;
  }
  return best;
}

}  // namespace plexel
