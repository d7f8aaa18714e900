#pragma once

#include "forms/controls.h"
#include "win32/control_view.h"

namespace plexel {

/// A text box. The window edits; each change of text or caret goes to the model, whose word is the last.
class TextView : public ControlView {
 public:
  TextView(TextBox& model, HWND parent, ViewFrame& frame);
  bool EditsItself() const override { return true; }
  void Notified(UINT code) override;
  HBRUSH Colours(HDC context) override;
  void Behind(UINT message) override;
  std::optional<LRESULT> Ahead(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void SyncMore() override;
  FontLook Look() const override;

 private:
  void HandOver();
  std::wstring Shown() const;
  int Caret() const;

  TextBox& model_;
  std::int32_t paper_ = 0, ink_ = 0;
};

/// The text of a window.
std::wstring TextOfWindow(HWND window);

}  // namespace plexel
