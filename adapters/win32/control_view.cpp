#include "win32/control_view.h"

#include <commctrl.h>

#include <array>

#include "platform/failure.h"
#include "win32/combo_view.h"
#include "win32/grid_view.h"
#include "win32/simple_views.h"
#include "win32/tab_view.h"
#include "win32/text_view.h"
#include "win32/wide_text.h"

namespace plexel {

namespace {

using Maker = std::unique_ptr<ControlView> (*)(Control&, HWND, ViewFrame&);

template <typename View, typename Model>
std::unique_ptr<ControlView> MakeView(Control& control, HWND parent, ViewFrame& frame) {
  return std::make_unique<View>(static_cast<Model&>(control), parent, frame);
}

struct KindView {
  ControlKind kind;
  Maker make;
};

/// A shape is drawn by the window on which it lies.
constexpr std::array makers = {
    KindView{ControlKind::CommandButton, MakeView<ButtonView, CommandButton>},
    KindView{ControlKind::OptionButton, MakeView<OptionView, OptionButton>},
    KindView{ControlKind::ComboBox, MakeView<ComboView, ComboBox>},
    KindView{ControlKind::TextBox, MakeView<TextView, TextBox>},
    KindView{ControlKind::Label, MakeView<LabelView, Label>},
    KindView{ControlKind::Picture, MakeView<PictureView, PictureBox>},
    KindView{ControlKind::Frame, MakeView<FrameView, Frame>},
    KindView{ControlKind::TabStrip, MakeView<TabView, TabStrip>},
    KindView{ControlKind::Grid, MakeView<GridView, Grid>},
    KindView{ControlKind::StatusBar, MakeView<StatusView, StatusBar>},
};

constexpr UINT_PTR Subclass = 1;

LRESULT CALLBACK ChildProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR given) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, ChildProcedure, Subclass);
  auto* const view = reinterpret_cast<ControlView*>(given);
  return view->Host().ChildMessage(*view, window, message, wParam, lParam);
}

}  // namespace

HWND ControlView::Make(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extended) {
  const HWND made = CreateWindowExW(extended, windowClass, L"", style | WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, parent,
                                    nullptr, ThisInstance(), static_cast<WindowTarget*>(&frame_));
  if (made == nullptr) throw Failure(FailureKind::Platform, "the system has no window for " + control_.FullName());
  if (outer_ == nullptr) outer_ = made;
  UseFont(made);
  SetWindowSubclass(made, ChildProcedure, Subclass, reinterpret_cast<DWORD_PTR>(this));
  return made;
}

void ControlView::UseFont(HWND window) const {
  const HFONT font = frame_.Tools().Font(Look(), frame_.Measure());
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void ControlView::ShowText(const std::wstring& text) {
  if (text_ == text) return;
  text_ = text;
  SetWindowTextW(outer_, text_.c_str());
}

void ControlView::PlaceAt(const RECT& place) {
  SetWindowPos(outer_, nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

std::wstring ControlView::ToolTipAt(POINT) const { return Wide(control_.ToolTipText()); }

void ControlView::Rescaled() { UseFont(outer_); }

void ControlView::Sync() {
  const RECT place = frame_.Measure().PixelRect(control_);
  if (!Same(place, place_)) {
    place_ = place;
    PlaceAt(place);
  }
  if ((IsWindowEnabled(outer_) != FALSE) != control_.Enabled()) EnableWindow(outer_, control_.Enabled() ? TRUE : FALSE);
  const bool shown = (GetWindowLongW(outer_, GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown != control_.Visible()) ShowWindow(outer_, control_.Visible() ? SW_SHOWNA : SW_HIDE);
  // What appears on an open form stands on top of what was there.
  const bool appears = synced_ && !shown && control_.Visible();
  if (appears) SetWindowPos(outer_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  synced_ = true;
  SyncMore();
}

std::unique_ptr<ControlView> MakeControlView(Control& control, HWND parent, ViewFrame& frame) {
  for (const KindView& one : makers) {
    if (one.kind == control.Kind()) return one.make(control, parent, frame);
  }
  return nullptr;
}

}  // namespace plexel
