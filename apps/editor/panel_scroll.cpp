#include "editor/panel_scroll.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <algorithm>

#include "editor/panel_view.h"

namespace plexel {

PanelScroll::PanelScroll(PanelView* view) : view_(view) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setWidget(view_);
  view_->onPan = [this](const QPoint& way) { Pan(way); };
}

void PanelScroll::Zoom(int before, const std::function<int()>& set, std::optional<QPoint> about) {
  const QPoint fixed = about.value_or(view_->mapFrom(viewport(), viewport()->rect().center()));
  const QPoint inSight = view_->mapTo(viewport(), fixed);
  const QPointF onPanel = QPointF(fixed - view_->Origin()) / before;
  const int now = set();
  view_->Rescale();
  QEvent settle(QEvent::LayoutRequest);
  QCoreApplication::sendEvent(this, &settle);
  const QPoint wanted = view_->Origin() + (onPanel * now).toPoint() - inSight;
  horizontalScrollBar()->setValue(wanted.x());
  verticalScrollBar()->setValue(wanted.y());
}

int PanelScroll::FittingZoom(const QSize& panel) const {
  if (panel.isEmpty()) return PanelDocument::NormalZoom;
  const QSize room = maximumViewportSize() - QSize(2 * PanelView::Margin, 2 * PanelView::Margin);
  const int percent = std::min(room.width() * 100 / panel.width(), room.height() * 100 / panel.height());
  return std::clamp(percent, PanelDocument::SmallestZoom, PanelDocument::LargestZoom);
}

void PanelScroll::Pan(const QPoint& way) {
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
}

void PanelScroll::Reveal(int place) {
  const QRect box = view_->PlaceRect(place);
  ensureVisible(box.center().x(), box.center().y(), box.width(), box.height());
}

}  // namespace plexel
