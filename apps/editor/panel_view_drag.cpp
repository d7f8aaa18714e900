#include "editor/panel_view.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>

namespace plexel {

bool PanelView::BeginDrag(const QMouseEvent& event) {
  const bool far = (event.pos() - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
  if (pressed_ < 0 || !far || !event.buttons().testFlag(Qt::LeftButton) || !onDrag) return false;
  dragged_ = std::exchange(pressed_, -1);
  onDrag(dragged_);
  dragged_ = -1;
  return true;
}

/// Elements are carried as text; files are for the window.
void PanelView::dragEnterEvent(QDragEnterEvent* event) {
  event->setAccepted(document_ != nullptr && event->mimeData()->hasText() && !event->mimeData()->hasUrls());
}

void PanelView::dragMoveEvent(QDragMoveEvent* event) {
  const int place = PlaceAt(event->position().toPoint());
  if (place < 0 || place == dragged_) return event->ignore();
  const bool swap = dragged_ >= 0 && event->modifiers().testFlag(Qt::ShiftModifier);
  event->setDropAction(swap ? Qt::MoveAction : Qt::CopyAction);
  event->accept(PlaceRect(place));
}

void PanelView::dropEvent(QDropEvent* event) {
  const int place = PlaceAt(event->position().toPoint());
  if (place < 0 || !onDrop) return event->ignore();
  event->accept();
  const bool swap = dragged_ >= 0 && event->modifiers().testFlag(Qt::ShiftModifier);
  // Whoever carried it here waits for the end of this event, and must not wait for answers to questions.
  QTimer::singleShot(0, this, [this, from = dragged_, place, swap, text = event->mimeData()->text()] {
    if (document_ != nullptr) onDrop(from, place, text, swap);
  });
}

}  // namespace plexel
