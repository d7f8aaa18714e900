#pragma once

#include <QCursor>
#include <QGuiApplication>
#include <utility>

namespace plexel {

/// The pointer tells that the program waits for something, as long as this stands.
class WaitCursor {
 public:
  WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { End(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;

  /// Ends it ahead of its time.
  void End() {
    if (std::exchange(waits_, false)) QGuiApplication::restoreOverrideCursor();
  }

 private:
  bool waits_ = true;
};

}  // namespace plexel
