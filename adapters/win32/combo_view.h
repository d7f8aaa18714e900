#pragma once

#include "forms/controls.h"
#include "win32/control_view.h"

namespace plexel {

/// A drop-down list that shows the model's text, whether or not it is an entry.
class ComboView : public ControlView {
 public:
  ComboView(ComboBox& model, HWND parent, ViewFrame& frame);
  bool ClicksItself() const override { return true; }
  bool IsUnfolded() const override;
  void Unfold() override;
  void Fold() override;
  void Notified(UINT code) override;
  void DrawItem(const DRAWITEMSTRUCT& item) override;
  std::optional<LRESULT> Ahead(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void Rescaled() override;

 protected:
  void SyncMore() override;
  void PlaceAt(const RECT& place) override;

 private:
  void SyncEntries();
  void Turn(int step);

  ComboBox& model_;
  std::uint64_t version_ = 0;
  std::string text_;
  bool filled_ = false;
  bool choosing_ = false;  ///< the choice is on its way, and the model does not know of it yet
};

}  // namespace plexel
