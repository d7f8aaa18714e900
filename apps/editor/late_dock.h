#pragma once

#include <QDockWidget>

namespace plexel {

/// A dock that makes what it holds when it is first shown.
class LateDock : public QDockWidget {
 public:
  using QDockWidget::QDockWidget;
  void setVisible(bool visible) override {
    if (visible && !IsMade()) MakeContent();
    QDockWidget::setVisible(visible);
  }

 protected:
  bool IsMade() const { return widget() != nullptr; }
  /// Makes what it holds and takes it as its widget.
  virtual void MakeContent() = 0;
};

}  // namespace plexel
