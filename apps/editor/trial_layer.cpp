#include "editor/trial_layer.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRadialGradient>
#include <algorithm>
#include <array>
#include <utility>

#include "editor/help_key.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr std::array pressingKeys = {int(Qt::Key_Space), int(Qt::Key_Return), int(Qt::Key_Enter)};

bool Presses(int key) { return std::find(pressingKeys.begin(), pressingKeys.end(), key) != pressingKeys.end(); }

void DrawKey(QPainter& painter, const QRect& box, bool round, const QColor& colour) {
  constexpr int Veil = 90;
  constexpr double Width = 2.5, Corner = 6;
  QColor veil = colour;
  veil.setAlpha(Veil);
  painter.setPen(QPen(colour, Width));
  painter.setBrush(veil);
  const QRectF inside = QRectF(box).adjusted(Width / 2, Width / 2, -Width / 2, -Width / 2);
  round ? painter.drawEllipse(inside) : painter.drawRoundedRect(inside, Corner, Corner);
}

/// A LED that is lit shines beyond itself; the others are dark.
void DrawLed(QPainter& painter, const QRectF& box, const QColor& colour, bool round, bool lit) {
  if (lit) {
    constexpr double Reach = 2.2;
    const double radius = std::max(box.width(), box.height()) / 2 * Reach;
    QRadialGradient shine(box.center(), radius);
    QColor bright = colour.lighter(125);
    bright.setAlpha(200);
    shine.setColorAt(0, bright);
    bright.setAlpha(0);
    shine.setColorAt(1, bright);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shine);
    painter.drawEllipse(box.center(), radius, radius);
  }
  painter.setPen(QPen(lit ? colour.darker(130) : QColor(0x33, 0x3A, 0x40), 1));
  painter.setBrush(lit ? colour.lighter(150) : QColor(0x5A, 0x63, 0x6B));
  round ? painter.drawEllipse(box) : painter.drawRect(box);
}

}  // namespace

TrialLayer::TrialLayer(Trial& trial, QWidget* under, Picture picture)
    : QWidget(under), trial_(trial), picture_(std::move(picture)) {
  setFocusPolicy(Qt::StrongFocus);
  SetHelpTopic(*this, help_topics::Trial);
  setMouseTracking(true);
  setGeometry(under->rect());
  under->installEventFilter(this);
}

void TrialLayer::Show(const PanelDocument* document) {
  document_ = document;
  Forget();
  FindLeds();
  update();
}

void TrialLayer::Forget() {
  byMouse_ = byKeyboard_ = Trial::NoPlace;
  latched_.clear();
}

bool TrialLayer::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parent() && event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

bool TrialLayer::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) return true;  // tips tell what is defined, and would lie over what is shown
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (Presses(key.key()) || key.key() == Qt::Key_Escape) {
      event->accept();
      return true;
    }
  }
  return QWidget::event(event);
}

QRect TrialLayer::RectOf(const PanelBox& box) const {
  const double scale = picture_.scale();
  const QPointF corner = QPointF(box.left, box.top) * scale;
  return QRectF(picture_.origin() + corner, QSizeF(box.width, box.height) * scale).toRect();
}

QRect TrialLayer::PlaceRect(std::size_t place) const { return RectOf(document_->Places()[place].part->box); }

bool TrialLayer::IsKey(std::size_t place) const {
  const auto type = document_->Places()[place].element->ElementType();
  return type != Led && type != Key;
}

std::size_t TrialLayer::KeyAt(const QPoint& point) const {
  if (document_ == nullptr) return Trial::NoPlace;
  for (std::size_t place = document_->Places().size(); place-- > 0;) {
    if (IsKey(place) && PlaceRect(place).contains(point)) return place;
  }
  return Trial::NoPlace;
}

void TrialLayer::FindLeds() {
  leds_.clear();
  if (document_ == nullptr) return;
  const auto& places = document_->Places();
  for (const PanelPart& part : document_->ThePanel().parts) {
    if (part.kind != PanelPartKind::Led) continue;
    const QPoint middle(part.box.left + part.box.width / 2, part.box.top + part.box.height / 2);
    for (std::size_t place = places.size(); place-- > 0;) {
      const PanelBox& box = places[place].part->box;
      const auto type = places[place].element->ElementType();
      const bool hasLed = type == Led || type == OvalLed || type == RectLed;
      if (!hasLed || !QRect(box.left, box.top, box.width, box.height).contains(middle)) continue;
      leds_.push_back({&part, place});
      break;
    }
  }
}

void TrialLayer::paintEvent(QPaintEvent*) {
  if (document_ == nullptr) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  for (std::size_t place = 0; place < document_->Places().size(); ++place) {
    const auto type = document_->Places()[place].element->ElementType();
    const bool round = type == Oval || type == OvalLed;
    if (trial_.HasLeftDown(place)) DrawKey(painter, PlaceRect(place), round, LeftDownColour);
    if (trial_.IsHeld(place)) DrawKey(painter, PlaceRect(place), round, HeldColour);
  }
  for (const LedPart& led : leds_) {
    const auto function = document_->Places()[led.place].element->LEDTypeLayer(trial_.Layer());
    const PanelBox& box = led.part->box;
    DrawLed(painter, RectOf(box), ColourOf(led.part->fillColor), led.part->cornerRadius > 0 || box.width == box.height,
            trial_.IsLit(function));
  }
}

void TrialLayer::Press(std::size_t place) {
  const auto& element = *document_->Places()[place].element;
  const Trial::Event* const event = trial_.Press(place, element.TactisBaseElementScanCodeBuffer());
  if (event != nullptr && onEvent) onEvent(*event);
  update();
}

void TrialLayer::Release(std::size_t place) {
  const Trial::Event* const event = trial_.Release(place);
  if (event != nullptr && onEvent) onEvent(*event);
  update();
}

void TrialLayer::FreeMouse() {
  const std::size_t place = std::exchange(byMouse_, Trial::NoPlace);
  if (place != Trial::NoPlace) Release(place);
}

void TrialLayer::FreeKeyboard() {
  const std::size_t place = std::exchange(byKeyboard_, Trial::NoPlace);
  if (place != Trial::NoPlace) Release(place);
}

void TrialLayer::mousePressEvent(QMouseEvent* event) {
  const std::size_t place = KeyAt(event->pos());
  if (place == Trial::NoPlace) return;
  if (onCurrent) onCurrent(static_cast<int>(place));
  if (latched_.erase(place) > 0) return Release(place);
  if (trial_.IsHeld(place)) return;
  if (event->button() == Qt::RightButton) {
    latched_.insert(place);
  } else if (event->button() == Qt::LeftButton) {
    FreeMouse();
    byMouse_ = place;
  } else {
    return;
  }
  Press(place);
}

void TrialLayer::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) FreeMouse();
}

void TrialLayer::mouseMoveEvent(QMouseEvent* event) {
  setCursor(KeyAt(event->pos()) == Trial::NoPlace ? Qt::ArrowCursor : Qt::PointingHandCursor);
}

void TrialLayer::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && onEscape) return onEscape();
  if (!Presses(event->key())) return QWidget::keyPressEvent(event);
  const int place = current ? current() : -1;
  if (event->isAutoRepeat() || byKeyboard_ != Trial::NoPlace || document_ == nullptr || place < 0) return;
  if (!IsKey(static_cast<std::size_t>(place)) || trial_.IsHeld(static_cast<std::size_t>(place))) return;
  byKeyboard_ = static_cast<std::size_t>(place);
  heldKey_ = event->key();
  Press(byKeyboard_);
}

void TrialLayer::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != heldKey_) return QWidget::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) FreeKeyboard();
}

void TrialLayer::focusOutEvent(QFocusEvent* event) {
  FreeKeyboard();
  QWidget::focusOutEvent(event);
}

bool TrialLayer::focusNextPrevChild(bool next) {
  if (!onTab) return QWidget::focusNextPrevChild(next);
  onTab(next);
  return true;
}

}  // namespace plexel
