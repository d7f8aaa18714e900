#include "editor/key_listener.h"

#include <QKeyEvent>
#include <QWidget>

#include "keyboard/key_table.h"
#include "qt/input_events.h"

namespace plexel {

KeyListener::KeyListener(QWidget& widget) : QObject(&widget), widget_(widget) { widget_.installEventFilter(this); }

void KeyListener::Start() {
  stroke_.Reset();
  widget_.setFocus();
  hears_ = true;
}

void KeyListener::Stop() {
  if (!std::exchange(hears_, false)) return;
  if (onStop) onStop();
}

bool KeyListener::eventFilter(QObject* receiver, QEvent* event) {
  if (!hears_) return QObject::eventFilter(receiver, event);
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      event->accept();
      return true;
    case QEvent::FocusOut:
      Stop();
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      break;
    default:
      return false;
  }
  const auto& key = *static_cast<const QKeyEvent*>(event);
  const KeyPosition* const position = key.isAutoRepeat() ? nullptr : FindKeyPosition(EvdevOf(key));
  if (position == nullptr) return true;
  const bool down = event->type() == QEvent::KeyPress;
  stroke_.Take({position->virtualKeyNumLock, position->scanCode, position->extended, down, 0});
  if (!stroke_.IsOver()) return true;
  const std::vector<KeyCode> keys = stroke_.Keys();
  Stop();
  if (onStroke) onStroke(keys);
  return true;
}

}  // namespace plexel
