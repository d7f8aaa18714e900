#pragma once

#include "qt/control_view.h"

namespace plexel {

class ComboWidget;
class ItemsModel;

/// A drop-down list that shows the model's text, whether or not it is an entry.
class ComboView : public ControlView {
 public:
  ComboView(ComboBox& model, QWidget& parent, UserActs& acts);
  QWidget& Outer() const override;
  bool ClicksItself() const override { return true; }
  void Unfold() override;
  /// The text that stands in the folded box.
  QString Shown() const;

 protected:
  void SyncMore() override;

 private:
  ComboBox& model_;
  ComboWidget* box_;
  ItemsModel* items_;
};

}  // namespace plexel
