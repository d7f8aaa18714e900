#include "win32/tab_view.h"

#include <commctrl.h>
#include <windowsx.h>

#include "win32/captions.h"

namespace plexel {

namespace {

constexpr int TabRowHeight = 24, PageBorder = 2, TabMargin = 9;  // logical pixels

}  // namespace

TabView::TabView(TabStrip& model, HWND parent, ViewFrame& frame)
    : ControlView(model, frame), model_(model), shown_(static_cast<std::size_t>(model.Pages())) {
  Make(parent, PaneClass, 0, WS_EX_CONTROLPARENT);
  strip_ = Make(Outer(), WC_TABCONTROLW, WS_VISIBLE | TCS_OWNERDRAWFIXED | TCS_FOCUSNEVER);
  for (int page = 0; page < model.Pages(); ++page) {
    pages_.push_back(Make(Outer(), PaneClass, 0, WS_EX_CONTROLPARENT));
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    std::wstring caption;
    item.pszText = caption.data();
    SendMessageW(strip_, TCM_INSERTITEMW, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&item));
  }
}

void TabView::Rescaled() {
  ControlView::Rescaled();
  UseFont(strip_);
  PlaceAt(Host().Measure().PixelRect(model_));
}

void TabView::PlaceAt(const RECT& place) {
  ControlView::PlaceAt(place);
  const Scale& scale = Host().Measure();
  const int row = scale.Of(TabRowHeight), border = scale.Of(PageBorder);
  constexpr UINT Quietly = SWP_NOACTIVATE | SWP_NOOWNERZORDER;
  TabCtrl_SetPadding(strip_, scale.Of(TabMargin), 0);
  TabCtrl_SetItemSize(strip_, 0, row - border);
  SetWindowPos(strip_, HWND_BOTTOM, 0, 0, WidthOf(place), HeightOf(place), Quietly);
  for (const HWND page : pages_) {
    SetWindowPos(page, nullptr, border, row, WidthOf(place) - 2 * border, HeightOf(place) - row - border,
                 Quietly | SWP_NOZORDER);
  }
}

std::optional<LRESULT> TabView::NotifiedBy(const NMHDR& told) {
  // The mouse goes another way: this comes of programs that act for the user.
  if (told.code != TCN_SELCHANGE || Host().Syncing()) return std::nullopt;
  const int page = TabCtrl_GetCurSel(strip_);
  if (page >= 0 && page != model_.Tab() && model_.TabEnabled(page)) {
    Host().Carry(model_, [this, page](Hand& hand) { hand.Tab(model_, page); });
  }
  return 0;
}

std::optional<LRESULT> TabView::Ahead(HWND window, UINT message, WPARAM, LPARAM lParam) {
  if (window != strip_ || (message != WM_LBUTTONDOWN && message != WM_LBUTTONDBLCLK)) return std::nullopt;
  TCHITTESTINFO hit = {};
  hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  const int page = TabCtrl_HitTest(strip_, &hit);
  if (page < 0 || !model_.TabEnabled(page)) return 0;
  Host().Carry(model_, [&](Hand& hand) {
    if (message == WM_LBUTTONDBLCLK) {
      hand.DblClickTab(model_, page);
    } else {
      hand.Tab(model_, page);
    }
  });
  return 0;
}

void TabView::DrawItem(const DRAWITEMSTRUCT& item) {
  const auto page = static_cast<int>(item.itemID);
  if (page < 0 || page >= model_.Pages()) return;
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, GetSysColor(model_.TabEnabled(page) ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
  const std::wstring caption = WithLetter(model_.TabCaption(page));
  RECT place = item.rcItem;
  DrawTextW(item.hDC, caption.c_str(), static_cast<int>(caption.size()), &place,
            DT_SINGLELINE | DT_CENTER | DT_VCENTER);
  if (page == model_.Tab() && model_.HasFocus()) {
    InflateRect(&place, -2, -2);
    DrawFocusRect(item.hDC, &place);
  }
}

void TabView::SyncMore() {
  if (focused_ != model_.HasFocus()) {
    focused_ = model_.HasFocus();
    InvalidateRect(strip_, nullptr, TRUE);
  }
  for (int page = 0; page < model_.Pages(); ++page) {
    Shown& shown = shown_[static_cast<std::size_t>(page)];
    std::wstring caption = WithLetter(model_.TabCaption(page));
    if (shown.caption != caption) {
      shown.caption = caption;
      TCITEMW item = {};
      item.mask = TCIF_TEXT;
      item.pszText = caption.data();
      SendMessageW(strip_, TCM_SETITEMW, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&item));
      InvalidateRect(strip_, nullptr, TRUE);
    }
    if (shown.enabled != model_.TabEnabled(page)) {
      shown.enabled = model_.TabEnabled(page);
      InvalidateRect(strip_, nullptr, TRUE);
    }
    const HWND inner = Inner(page);
    if ((IsWindowEnabled(inner) != FALSE) != shown.enabled) EnableWindow(inner, shown.enabled ? TRUE : FALSE);
    const bool visible = (GetWindowLongW(inner, GWL_STYLE) & WS_VISIBLE) != 0, front = page == model_.Tab();
    if (visible != front) ShowWindow(inner, front ? SW_SHOWNA : SW_HIDE);
  }
  if (TabCtrl_GetCurSel(strip_) != model_.Tab()) TabCtrl_SetCurSel(strip_, model_.Tab());
}

}  // namespace plexel
