#include "editor/panel_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <limits>

#include "qt/input_events.h"
#include "qt/panel_painter.h"
#include "qt/units.h"

namespace plexel {

namespace {
constexpr int Margin = 24;
constexpr std::int16_t ReturnCharacter = 13;
}  // namespace

PanelView::PanelView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

void PanelView::Show(PanelDocument* document) {
  document_ = document;
  selected_ = pressed_ = -1;
  Rescale();
  if (document_ != nullptr && !document_->Places().empty()) MoveFocus(0);
}

ctlPlexelBaseElement* PanelView::Selected() const {
  return selected_ < 0 ? nullptr : document_->Places()[static_cast<std::size_t>(selected_)].element.get();
}

void PanelView::Rescale() {
  if (document_ == nullptr) return;
  const Panel& panel = document_->ThePanel();
  const QSize size = QSize(panel.width, panel.height) * document_->Zoom() / 100;
  setMinimumSize(size + QSize(2 * Margin, 2 * Margin));
  update();
}

QPoint PanelView::Origin() const {
  const QSize panel = QSize(document_->ThePanel().width, document_->ThePanel().height) * document_->Zoom() / 100;
  return {std::max(Margin, (width() - panel.width()) / 2), std::max(Margin, (height() - panel.height()) / 2)};
}

QRect PanelView::PlaceRect(int place) const {
  const auto& [part, element] = document_->Places()[static_cast<std::size_t>(place)];
  const Surface& surface = element->SurfaceObjects();
  const QPoint corner = Origin() + QPoint(part->box.left, part->box.top) * document_->Zoom() / 100;
  return {corner, QSize(ToPixels(surface.Width), ToPixels(surface.Height))};
}

int PanelView::PlaceAt(const QPoint& point) const {
  if (document_ == nullptr) return -1;
  for (int place = static_cast<int>(document_->Places().size()) - 1; place >= 0; --place) {
    if (PlaceRect(place).contains(point)) return place;
  }
  return -1;
}

void PanelView::paintEvent(QPaintEvent*) {
  if (document_ == nullptr) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal scale = document_->Zoom() / 100.0;
  painter.save();
  painter.translate(Origin());
  painter.scale(scale, scale);
  for (const PanelPart& part : document_->ThePanel().parts) DrawPart(painter, part);
  painter.restore();
  for (int place = 0; place < static_cast<int>(document_->Places().size()); ++place) {
    painter.save();
    painter.translate(PlaceRect(place).topLeft());
    DrawSurface(painter, document_->Places()[static_cast<std::size_t>(place)].element->SurfaceObjects());
    painter.restore();
  }
}

void PanelView::MoveFocus(int place) {
  if (place == selected_) return;
  if (ctlPlexelBaseElement* const previous = Selected()) {
    previous->UserControl_LostFocus();
    previous->FocusVisible(False);
  }
  selected_ = place;
  if (ctlPlexelBaseElement* const next = Selected()) {
    next->FocusVisible(True);
    next->UserControl_GotFocus();
  }
  update();
  if (onSelected) onSelected();
}

void PanelView::Select(int place) {
  run([this, place] { MoveFocus(place); });
}

void PanelView::mousePressEvent(QMouseEvent* event) {
  pressed_ = PlaceAt(event->pos());
  if (pressed_ >= 0) Select(pressed_);
}

void PanelView::mouseReleaseEvent(QMouseEvent* event) {
  const int place = std::exchange(pressed_, -1);
  if (place < 0 || document_ == nullptr) return;
  const QPoint inside = event->pos() - PlaceRect(place).topLeft();
  const auto element = document_->Places()[static_cast<std::size_t>(place)].element;
  const std::int16_t button = ButtonOf(event->button()), shift = ShiftOf(event->modifiers());
  run([=] { element->UserControl_MouseUp(button, shift, ToTwips(inside.x()), ToTwips(inside.y())); });
}

void PanelView::mouseDoubleClickEvent(QMouseEvent* event) {
  const int place = PlaceAt(event->pos());
  if (place < 0 || event->button() != Qt::LeftButton) return mousePressEvent(event);
  Select(place);
  const auto element = document_->Places()[static_cast<std::size_t>(place)].element;
  run([element] { element->UserControl_DblClick(); });
}

void PanelView::mouseMoveEvent(QMouseEvent* event) {
  const int place = PlaceAt(event->pos());
  setCursor(place < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
  setToolTip(place < 0 ? QString() : ToQt(document_->Places()[static_cast<std::size_t>(place)].part->element->id));
}

void PanelView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier) || event->angleDelta().y() == 0) return event->ignore();
  if (onZoom) onZoom(event->angleDelta().y() > 0 ? 1 : -1);
}

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
      return run([hold = element->shared_from_this()] { hold->UserControl_KeyPress(ReturnCharacter); });
    default:
      return QWidget::keyPressEvent(event);
  }
  const int next = Neighbour(direction);
  if (next >= 0) Select(next);
}

void PanelView::contextMenuEvent(QContextMenuEvent* event) {
  if (document_ == nullptr) return;
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const int place = byKey ? selected_ : PlaceAt(event->pos());
  if (place < 0) return;
  Select(place);
  pressed_ = -1;
  if (onMenu) onMenu(byKey ? mapToGlobal(PlaceRect(place).center()) : event->globalPos());
}

bool PanelView::focusNextPrevChild(bool next) {
  const int count = document_ == nullptr ? 0 : static_cast<int>(document_->Places().size());
  if (count == 0) return QWidget::focusNextPrevChild(next);
  Select((selected_ + (next ? 1 : count - 1)) % count);
  return true;
}

int PanelView::Neighbour(const QPoint& direction) const {
  if (selected_ < 0) return -1;
  const QPoint from = PlaceRect(selected_).center();
  int best = -1, bestDistance = std::numeric_limits<int>::max();
  for (int place = 0; place < static_cast<int>(document_->Places().size()); ++place) {
    const QPoint way = PlaceRect(place).center() - from;
    const int along = QPoint::dotProduct(way, direction);
    const int across = std::abs(QPoint::dotProduct(way, QPoint(direction.y(), direction.x())));
    if (place == selected_ || along <= 0 || across > 2 * along) continue;
    const int distance = along + 2 * across;
    if (distance >= bestDistance) continue;
    best = place;
    bestDistance = distance;
  }
  return best;
}

}  // namespace plexel
