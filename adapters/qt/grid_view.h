#pragma once

#include "qt/control_view.h"
#include "qt/grid_widget.h"

namespace plexel {

class GridView : public ControlView {
 public:
  GridView(Grid& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override { return *widget_; }
  QWidget& MouseWidget() const override { return *widget_->viewport(); }
  bool TakesMouseItself() const override { return true; }

 protected:
  void SyncMore() override { widget_->Sync(); }

 private:
  GridWidget::Listener Listen(UserActs& acts);

  Grid& model_;
  GridWidget* widget_;
};

}  // namespace plexel
