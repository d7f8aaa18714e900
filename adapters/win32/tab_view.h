#pragma once

#include <vector>

#include "forms/controls.h"
#include "win32/control_view.h"

namespace plexel {

/// A strip of tabs that brings no page to the front by itself, and its pages. Tabs of pages that are off are grey.
class TabView : public ControlView {
 public:
  TabView(TabStrip& model, HWND parent, ViewFrame& frame);
  HWND FocusWindow() const override { return strip_; }
  HWND Inner(int page) const override { return pages_.at(static_cast<std::size_t>(page)); }
  /// The standard control.
  HWND Strip() const { return strip_; }
  bool TakesMouseItself() const override { return true; }
  std::optional<LRESULT> NotifiedBy(const NMHDR& told) override;
  void DrawItem(const DRAWITEMSTRUCT& item) override;
  std::optional<LRESULT> Ahead(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void Rescaled() override;

 protected:
  void SyncMore() override;
  void PlaceAt(const RECT& place) override;

 private:
  struct Shown {
    std::wstring caption;
    bool enabled = true;
  };

  TabStrip& model_;
  HWND strip_ = nullptr;
  std::vector<HWND> pages_;
  std::vector<Shown> shown_;
  bool focused_ = false;
};

}  // namespace plexel
