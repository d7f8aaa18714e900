#include "win32/combo_view.h"

#include <commctrl.h>

#include <algorithm>

#include "win32/wide_text.h"

namespace plexel {

namespace {

constexpr int EntriesInView = 12;
/// An entry was chosen; the window itself has finished with it by then.
constexpr UINT Chosen = WM_APP + 1;

/// As much of an entry as can ever be seen of it; an endless one is not measured to its end.
std::wstring ShownPart(const std::string& text) {
  constexpr std::size_t most = 1024;
  return Wide(std::string_view(text).substr(0, most));
}

}  // namespace

ComboView::ComboView(ComboBox& model, HWND parent, ViewFrame& frame) : ControlView(model, frame), model_(model) {
  Make(parent, WC_COMBOBOXW,
       CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_NOINTEGRALHEIGHT | WS_VSCROLL);
}

bool ComboView::IsUnfolded() const { return SendMessageW(Outer(), CB_GETDROPPEDSTATE, 0, 0) != 0; }

void ComboView::Unfold() { SendMessageW(Outer(), CB_SHOWDROPDOWN, TRUE, 0); }

void ComboView::Fold() { SendMessageW(Outer(), CB_SHOWDROPDOWN, FALSE, 0); }

void ComboView::Rescaled() {
  ControlView::Rescaled();
  PlaceAt(Host().Measure().PixelRect(model_));
}

/// The window is as high as its line makes it; the height that it is given is that of the open list.
void ComboView::PlaceAt(const RECT& place) {
  const int line = HeightOf(Host().Measure().PixelRect(0, 0, 0, model_.Height()));
  RECT now;
  SendMessageW(Outer(), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), line);
  GetWindowRect(Outer(), &now);
  const int border = HeightOf(now) - line;
  SendMessageW(Outer(), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), HeightOf(place) - border);
  const int entry = Host().Measure().Of(16);
  SendMessageW(Outer(), CB_SETITEMHEIGHT, 0, entry);
  SetWindowPos(Outer(), nullptr, place.left, place.top, WidthOf(place), HeightOf(place) + entry * EntriesInView + 2,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void ComboView::Notified(UINT code) {
  if (Host().Syncing()) return;
  if (code == CBN_SELENDOK) {
    choosing_ = true;
    PostMessageW(Outer(), Chosen, 0, 0);
  }
  if (code == CBN_CLOSEUP) InvalidateRect(Outer(), nullptr, TRUE);
}

std::optional<LRESULT> ComboView::Ahead(HWND, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case Chosen: {
      choosing_ = false;
      const auto index = static_cast<int>(SendMessageW(Outer(), CB_GETCURSEL, 0, 0));
      if (index >= 0 && index < model_.ListCount()) {
        Host().Carry(model_, [this, index](Hand& hand) { hand.Select(model_, index); });
      }
      return 0;
    }
    case WM_MOUSEWHEEL:
      if (IsUnfolded()) return std::nullopt;
      if (model_.HasFocus()) Turn(GET_WHEEL_DELTA_WPARAM(wParam) > 0 ? -1 : 1);
      return 0;
    // To readers of the screen, too, its text is the model's.
    case WM_GETTEXTLENGTH:
      return static_cast<LRESULT>(ShownPart(model_.Text()).size());
    case WM_GETTEXT: {
      const std::wstring text = ShownPart(model_.Text());
      if (wParam == 0) return 0;
      const std::size_t count = std::min<std::size_t>(text.size(), wParam - 1);
      auto* const room = reinterpret_cast<wchar_t*>(lParam);
      std::copy_n(text.begin(), count, room);
      room[count] = 0;
      return static_cast<LRESULT>(count);
    }
    default:
      return std::nullopt;
  }
}

void ComboView::Turn(int step) {
  const int index = model_.ListIndex() + step;
  if (index < 0 || index >= model_.ListCount()) return;
  Host().Carry(model_, [this, index](Hand& hand) { hand.Select(model_, index); });
}

void ComboView::DrawItem(const DRAWITEMSTRUCT& item) {
  const bool field = (item.itemState & ODS_COMBOBOXEDIT) != 0;
  const bool disabled = (item.itemState & ODS_DISABLED) != 0 || !model_.Enabled();
  const bool selected = (item.itemState & ODS_SELECTED) != 0 && !disabled;
  const bool entry = item.itemID < static_cast<UINT>(model_.ListCount());
  if (!field && !entry) return;
  FillRect(item.hDC, &item.rcItem,
           GetSysColorBrush(selected   ? COLOR_HIGHLIGHT
                            : disabled ? COLOR_BTNFACE
                                       : COLOR_WINDOW));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : disabled ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
  const std::wstring text = ShownPart(field ? model_.Text() : model_.List(static_cast<int>(item.itemID)));
  RECT place = item.rcItem;
  place.left += Host().Measure().Of(3);
  DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &place,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0)
    DrawFocusRect(item.hDC, &item.rcItem);
}

void ComboView::SyncEntries() {
  if (filled_ && version_ == model_.ItemsVersion()) return;
  filled_ = true;
  version_ = model_.ItemsVersion();
  SendMessageW(Outer(), WM_SETREDRAW, FALSE, 0);
  SendMessageW(Outer(), CB_RESETCONTENT, 0, 0);
  for (const std::string& entry : model_.Items()) {
    SendMessageW(Outer(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ShownPart(entry).c_str()));
  }
  SendMessageW(Outer(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(Outer(), nullptr, TRUE);
}

void ComboView::SyncMore() {
  SyncEntries();
  if (text_ != model_.Text()) {
    text_ = model_.Text();
    InvalidateRect(Outer(), nullptr, TRUE);
  }
  // What is marked in the open list is the user's.
  if (IsUnfolded() || choosing_) return;
  if (static_cast<int>(SendMessageW(Outer(), CB_GETCURSEL, 0, 0)) != model_.ListIndex()) {
    SendMessageW(Outer(), CB_SETCURSEL, static_cast<WPARAM>(model_.ListIndex()), 0);
  }
}

}  // namespace plexel
