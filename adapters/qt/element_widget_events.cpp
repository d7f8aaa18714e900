#include "qt/element_widget.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <QToolTip>
#include <QWhatsThis>

#include "element/ctlPlexelBaseElement.h"
#include "qt/captions.h"
#include "qt/element_face.h"
#include "qt/input_events.h"
#include "qt/panel_painter.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr std::int16_t ReturnCharacter = 13;
constexpr qreal DisabledOpacity = 0.4;

/// Whether the window as a whole loses or gets the keys, while the focus in it stays where it is.
bool IsOfTheWindow(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

}  // namespace

QSize ElementWidget::sizeHint() const {
  const Surface& surface = element_->SurfaceObjects();
  return {ToPixels(surface.Width), ToPixels(surface.Height)};
}

void ElementWidget::ShowSurface() {
  if (const QSize size = sizeHint(); size != shownSize_) {
    shownSize_ = size;
    resize(size);
    updateGeometry();
  }
  update();
}

void ElementWidget::ShowSurfaceSoon() {
  update();
  if (showPlanned_) return;
  showPlanned_ = true;
  QTimer::singleShot(0, this, [this] {
    showPlanned_ = false;
    ShowSurface();
  });
}

void ElementWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (isEnabled()) return Draw(painter);
  // Pale as a whole: strokes that meet must not show through each other.
  QPixmap picture(size() * devicePixelRatioF());
  picture.setDevicePixelRatio(devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter inside(&picture);
  Draw(inside);
  inside.end();
  painter.setOpacity(DisabledOpacity);
  painter.drawPixmap(0, 0, picture);
}

void ElementWidget::Draw(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  if (faceVisible_) DrawFace(painter);
  DrawSurface(painter, element_->SurfaceObjects());
}

void ElementWidget::DrawFace(QPainter& painter) const {
  const int width = SizeX(), height = SizeY();
  if (width <= 0 || height <= 0) return;
  painter.save();
  const QSizeF size = sizeHint();
  painter.scale(size.width() / width, size.height() / height);
  const bool usual = face_.empty();
  std::vector<PanelPart> parts = usual ? UsualFace(element_->ElementType(), width, height) : face_;
  if (usual && !parts.empty()) parts.front().legend = legend_.toStdString();
  for (const PanelPart& part : parts) DrawPart(painter, part);
  painter.restore();
}

void ElementWidget::GainFocus() {
  if (focused_) return;
  focused_ = true;
  Run([](ctlPlexelBaseElement& element) {
    element.FocusVisible(True);
    element.UserControl_GotFocus();
  });
}

void ElementWidget::LoseFocus() {
  if (!focused_) return;
  focused_ = false;
  Run([](ctlPlexelBaseElement& element) {
    element.UserControl_LostFocus();
    element.FocusVisible(False);
  });
}

void ElementWidget::focusInEvent(QFocusEvent*) { GainFocus(); }

void ElementWidget::focusOutEvent(QFocusEvent* event) {
  if (!IsOfTheWindow(event->reason())) LoseFocus();
}

void ElementWidget::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isReturn || event->modifiers().testFlag(Qt::AltModifier)) return QWidget::keyPressEvent(event);
  Run([](ctlPlexelBaseElement& element) { element.UserControl_KeyPress(ReturnCharacter); });
}

void ElementWidget::mousePressEvent(QMouseEvent*) { pressed_ = true; }

void ElementWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (!std::exchange(pressed_, false)) return;
  const std::int16_t button = ButtonOf(event->button()), shift = ShiftOf(event->modifiers());
  const float x = ToTwips(event->pos().x()), y = ToTwips(event->pos().y());
  Run([=](ctlPlexelBaseElement& element) { element.UserControl_MouseUp(button, shift, x, y); });
}

void ElementWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return mousePressEvent(event);
  Run([](ctlPlexelBaseElement& element) { element.UserControl_DblClick(); });
}

bool ElementWidget::event(QEvent* event) {
  // Where the host says nothing, the element speaks for itself.
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    const QString name = legend_.isEmpty() ? objectName() : legend_;
    const QString words = Summary();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       ToolTipOf(words.isEmpty() ? name : name + '\n' + words), this);
    return true;
  }
  if (event->type() == QEvent::QueryWhatsThis && whatsThis().isEmpty() && !ButtonNotes().isEmpty()) return true;
  if (event->type() == QEvent::WhatsThis && whatsThis().isEmpty()) {
    QWhatsThis::showText(static_cast<QHelpEvent*>(event)->globalPos(), ToolTipOf(ButtonNotes()), this);
    return true;
  }
  return QWidget::event(event);
}

}  // namespace plexel
