#pragma once

#include <QObject>
#include <functional>

#include "project/key_stroke.h"

class QWidget;

namespace plexel {

/// Hears the keys of one stroke on a widget, ahead of shortcuts, focus moves and the widget itself.
class KeyListener : public QObject {
 public:
  /// The widget must be able to take the focus.
  explicit KeyListener(QWidget& widget);

  /// Gives the widget the focus and hears until the keys of a stroke are all up again, or the focus goes.
  void Start();
  void Stop();
  bool Hears() const { return hears_; }

  /// The keys of a stroke that has ended; none for keys that have no code. The listener has stopped by then.
  std::function<void(const std::vector<KeyCode>& keys)> onStroke;
  /// It has stopped, with a stroke or without.
  std::function<void()> onStop;

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  QWidget& widget_;
  KeyStroke stroke_;
  bool hears_ = false;
};

}  // namespace plexel
