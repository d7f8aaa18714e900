#pragma once

#include <QTabBar>
#include <vector>

#include "qt/control_view.h"

namespace plexel {

/// A strip of tabs with their pages. The pages lie under a row of tabs of fixed height and inside a narrow border.
class TabView : public ControlView {
 public:
  TabView(TabStrip& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *outer_; }
  QWidget& FocusWidget() const override { return *bar_; }
  QWidget& Inner(int page) const override { return *pages_.at(static_cast<std::size_t>(page)); }
  bool TakesMouseItself() const override { return true; }

 protected:
  void SyncMore() override;

 private:
  TabStrip& model_;
  QWidget* outer_;
  QTabBar* bar_;
  std::vector<QWidget*> pages_;
};

}  // namespace plexel
