#include "editor/panel_view.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QToolTip>
#include <algorithm>

#include "editor/element_text.h"
#include "qt/input_events.h"
#include "qt/units.h"

namespace plexel {

bool PanelView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto& asked = static_cast<const QHelpEvent&>(*event);
    ShowTip(asked.pos(), asked.globalPos());
    return true;
  }
  // While a band is drawn Escape gives it up, whatever it stands for otherwise.
  if (event->type() == QEvent::ShortcutOverride && band_->isVisible() &&
      static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void PanelView::ShowTip(const QPoint& at, const QPoint& globalPlace) {
  const int place = PlaceAt(at);
  if (place < 0) return QToolTip::hideText();
  // What the texts hold is shown as it is: none of it is taken for mark-up.
  const QString text = TipText(*At(place).element, ToQt(At(place).part->legend)).join('\n').toHtmlEscaped();
  QString tip = "<p style='white-space:pre'>" + text + "</p>";
  const QStringList problems = problemTexts ? problemTexts(place) : QStringList();
  for (const QString& problem : problems) tip += "<p style='white-space:pre-wrap'>" + problem.toHtmlEscaped() + "</p>";
  QToolTip::showText(globalPlace, tip, this, PlaceRect(place));
}

void PanelView::mousePressEvent(QMouseEvent* event) {
  if (document_ == nullptr || BeginPan(*event)) return;
  EndBand(true);
  pressed_ = PlaceAt(event->pos());
  pressedAt_ = event->pos();
  const bool left = event->button() == Qt::LeftButton;
  if (pressed_ < 0) return left ? BeginBand(*event) : void();
  if (left && event->modifiers().testFlag(Qt::ControlModifier)) return selection_.Toggle(pressed_);
  if (left && event->modifiers().testFlag(Qt::ShiftModifier)) return ExtendTo(pressed_);
  if (!left && selection_.Has(pressed_)) return selection_.Current(pressed_);
  Select(pressed_);
}

void PanelView::mouseReleaseEvent(QMouseEvent* event) {
  if (panning_) {
    panning_ = false;
    return ShowCursor(event->pos());
  }
  EndBand(true);
  const int place = std::exchange(pressed_, -1);
  if (place < 0 || document_ == nullptr) return;
  const QPoint inside = event->pos() - PlaceRect(place).topLeft();
  const auto element = At(place).element;
  const std::int16_t button = ButtonOf(event->button()), shift = ShiftOf(event->modifiers());
  run([=] { element->UserControl_MouseUp(button, shift, ToTwips(inside.x()), ToTwips(inside.y())); });
}

void PanelView::mouseDoubleClickEvent(QMouseEvent* event) {
  const int place = PlaceAt(event->pos());
  const bool plain = event->modifiers() == Qt::NoModifier && !spaceHeld_;
  if (place < 0 || event->button() != Qt::LeftButton || !plain) return mousePressEvent(event);
  Select(place);
  const auto element = At(place).element;
  run([element] { element->UserControl_DblClick(); });
}

void PanelView::mouseMoveEvent(QMouseEvent* event) {
  if (panning_) {
    const QPoint now = event->globalPosition().toPoint();
    if (onPan) onPan(now - panFrom_);
    panFrom_ = now;
    return;
  }
  if (band_->isVisible()) {
    return event->buttons().testFlag(Qt::LeftButton) ? MoveBand(event->pos()) : EndBand(true);
  }
  if (BeginDrag(*event)) return;
  ShowCursor(event->pos());
}

void PanelView::ShowCursor(const QPoint& at) {
  if (panning_) return setCursor(Qt::ClosedHandCursor);
  if (spaceHeld_) return setCursor(Qt::OpenHandCursor);
  setCursor(PlaceAt(at) < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
}

void PanelView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier) || event->angleDelta().y() == 0) return event->ignore();
  if (onZoom) onZoom(event->angleDelta().y() > 0 ? 1 : -1, event->position().toPoint());
}

void PanelView::contextMenuEvent(QContextMenuEvent* event) {
  if (document_ == nullptr) return;
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const int place = byKey ? selection_.Current() : PlaceAt(event->pos());
  if (place < 0) return;
  if (!byKey && !selection_.Has(place)) Select(place);
  pressed_ = -1;
  if (onMenu) onMenu(byKey ? mapToGlobal(PlaceRect(place).center()) : event->globalPos());
}

bool PanelView::BeginPan(const QMouseEvent& event) {
  const bool asked = event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && spaceHeld_);
  if (!asked) return false;
  panning_ = true;
  panFrom_ = event.globalPosition().toPoint();
  setCursor(Qt::ClosedHandCursor);
  return true;
}

void PanelView::BeginBand(const QMouseEvent& event) {
  const bool adds = (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
  chosenBefore_ = selection_.Chosen();
  bandBase_ = adds ? chosenBefore_ : std::vector<int>();
  bandFrom_ = event.pos();
  MoveBand(bandFrom_);
  band_->show();
}

void PanelView::MoveBand(const QPoint& to) {
  const QRect area = QRect(bandFrom_, to).normalized();
  band_->setGeometry(area);
  std::vector<int> places = PlacesIn(area), chosen;
  std::set_union(places.begin(), places.end(), bandBase_.begin(), bandBase_.end(), std::back_inserter(chosen));
  selection_.Choose(chosen);
}

void PanelView::EndBand(bool keep) {
  if (!band_->isVisible()) return;
  band_->hide();
  if (document_ == nullptr) return;
  if (keep) {
    selection_.ChooseAndGo(selection_.Chosen());
  } else {
    selection_.Choose(chosenBefore_);
  }
}

}  // namespace plexel
