#include "win32/shown_form.h"

#include <commctrl.h>

#include <algorithm>
#include <sstream>

#include "forms/caption.h"
#include "forms/characters.h"
#include "win32/form_view.h"
#include "win32/grid_view.h"
#include "win32/wide_text.h"

namespace plexel {

namespace {

std::string TextOfWindow(HWND window) {
  std::wstring text(4000, L'\0');
  text.resize(
      static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return Narrow(text);
}

std::string EntryOf(HWND box, int entry) {
  std::wstring text(1100, L'\0');
  text.resize(static_cast<std::size_t>(
      SendMessageW(box, CB_GETLBTEXT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(text.data()))));
  return Narrow(text);
}

std::string TextOfTab(HWND strip, int page) {
  std::wstring text(200, L'\0');
  TCITEMW item = {};
  item.mask = TCIF_TEXT;
  item.pszText = text.data();
  item.cchTextMax = static_cast<int>(text.size());
  SendMessageW(strip, TCM_GETITEMW, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&item));
  return Narrow(item.pszText);
}

/// The window that has the title of a frame; null for a frame without one.
HWND TitleOf(HWND frame) {
  HWND box = FindWindowExW(frame, nullptr, WC_BUTTONW, nullptr);
  while (box != nullptr && (GetWindowLongW(box, GWL_STYLE) & BS_TYPEMASK) != BS_GROUPBOX) {
    box = FindWindowExW(frame, box, WC_BUTTONW, nullptr);
  }
  return box;
}

/// Collects what is not as it should be.
class Comparison {
 public:
  explicit Comparison(FormView& view) : view_(view), form_(view.Model()) {}

  std::vector<std::string> Run() {
    Same("the title", TextOfWindow(view_.Window()), form_.Caption());
    RECT client;
    GetClientRect(view_.Window(), &client);
    Same("the width", client.right, Pixels(form_.ClientWidth()));
    Same("the height", client.bottom, Pixels(form_.ClientHeight()));
    for (Control* const control : form_.Controls()) Look(*control);
    const ControlView* const focus = view_.ViewOf(form_.Focus());
    if (focus != nullptr && form_.Focus()->Shown()) {
      Same("the focus", GetFocus() == focus->FocusWindow(), true);
    } else {
      Same("the focus of the window itself", GetFocus() == view_.Window(), true);
    }
    return std::move(found_);
  }

 private:
  template <typename Value, typename Wanted>
  void Same(const std::string& what, const Value& shown, const Wanted& wanted) {
    if (shown == wanted) return;
    std::ostringstream told;
    told << what << " is " << shown << " and not " << wanted;
    found_.push_back(told.str());
  }

  static int Pixels(float twips) {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return static_cast<int>(std::lround(static_cast<double>(twips) * dpi / 1440));
  }

  void Look(Control& control) {
    const ControlView* const view = view_.ViewOf(&control);
    const bool windowless = control.Kind() == ControlKind::Menu || control.Kind() == ControlKind::ImageList ||
                            control.Kind() == ControlKind::Shape;
    Same(control.FullName() + ": a window", view != nullptr, !windowless);
    if (view == nullptr) return;
    const std::string name = control.FullName();
    const HWND window = view->Outer();
    Same(name + ": enabled", IsWindowEnabled(window) != FALSE, control.Enabled());
    Same(name + ": in view", IsWindowVisible(window) != FALSE, control.Shown());
    RECT place;
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    Same(name + ": left", place.left, Pixels(control.Left()));
    Same(name + ": top", place.top, Pixels(control.Top()));
    Same(name + ": right", place.right, Pixels(control.Left() + control.Width()));
    Same(name + ": bottom", place.bottom, Pixels(control.Top() + control.Height()));
    if (IsWindowVisible(window) != FALSE && !Holds(control)) {
      const POINT middle = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
      Same(name + ": on top", ChildWindowFromPointEx(GetParent(window), middle, CWP_SKIPINVISIBLE) == window, true);
    }
    LookInto(control, *view, name);
  }

  /// Whether other controls lie in it, or keys alone go to it.
  bool Holds(const Control& control) const {
    if (control.Kind() == ControlKind::CommandButton && static_cast<const CommandButton&>(control).ParksFocus()) {
      return true;
    }
    return std::any_of(form_.Controls().begin(), form_.Controls().end(),
                       [&](const Control* one) { return one->Container() == &control; });
  }

  void LookInto(Control& control, const ControlView& view, const std::string& name) {
    const HWND window = view.Outer();
    switch (control.Kind()) {
      case ControlKind::CommandButton:
        return Caption(name, window, static_cast<CommandButton&>(control).Caption());
      case ControlKind::OptionButton:
        Same(name + ": set", SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED,
             static_cast<OptionButton&>(control).Value());
        return Caption(name, window, static_cast<OptionButton&>(control).Caption());
      case ControlKind::Label:
        return Caption(name, window, static_cast<Label&>(control).Caption());
      case ControlKind::ComboBox:
        return Entries(name, window, static_cast<ComboBox&>(control));
      case ControlKind::TextBox: {
        const auto& box = static_cast<TextBox&>(control);
        Same(name + ": text", TextOfWindow(window), box.Text());
        return Same(name + ": locked", (GetWindowLongW(window, GWL_STYLE) & ES_READONLY) != 0, box.Locked());
      }
      case ControlKind::Frame: {
        const auto& frame = static_cast<Frame&>(control);
        if (frame.Border() && frame.Height() > 90) Caption(name, TitleOf(window), frame.Caption());
        return;
      }
      case ControlKind::TabStrip:
        return Tabs(name, view, static_cast<TabStrip&>(control));
      case ControlKind::StatusBar:
        return Same(name + ": text", TextOfWindow(window), static_cast<StatusBar&>(control).SimpleText());
      default:
        return;
    }
  }

  /// The system writes "&&" for one that marks no letter.
  void Caption(const std::string& name, HWND window, const std::string& caption) {
    const std::string shown = TextOfWindow(window);
    Same(name + ": caption", ReadCaption(shown).text, ReadCaption(caption).text);
  }

  void Entries(const std::string& name, HWND window, const ComboBox& box) {
    Same(name + ": text", TextOfWindow(window), box.Text());
    Same(name + ": entries", SendMessageW(window, CB_GETCOUNT, 0, 0), box.ListCount());
    // In an open list the mark is the user's.
    if (SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) == 0) {
      Same(name + ": entry", SendMessageW(window, CB_GETCURSEL, 0, 0), box.ListIndex());
    }
    for (int entry = 0; entry < box.ListCount(); ++entry) {
      Same(name + ": entry " + std::to_string(entry), EntryOf(window, entry), box.List(entry));
    }
  }

  void Tabs(const std::string& name, const ControlView& view, const TabStrip& strip) {
    const HWND window = view.FocusWindow();
    Same(name + ": pages", TabCtrl_GetItemCount(window), strip.Pages());
    Same(name + ": page in front", TabCtrl_GetCurSel(window), strip.Tab());
    for (int page = 0; page < strip.Pages(); ++page) {
      Same(name + ": tab", ReadCaption(TextOfTab(window, page)).text, ReadCaption(strip.TabCaption(page)).text);
    }
  }

  FormView& view_;
  Form& form_;
  std::vector<std::string> found_;
};

using dialogs::Lines;
using dialogs::ToldControl;
using dialogs::YesOrNo;

std::string CaptionOf(HWND window) { return dialogs::Readable(TextOfWindow(window)); }

ToldControl ToldOf(const Control& control, const ControlView& view) {
  const HWND window = view.Outer();
  ToldControl told{control.FullName(), IsWindowVisible(window) != FALSE, IsWindowEnabled(window) != FALSE, {}};
  const auto fact = [&](const char* name, std::string value) { told.facts.emplace_back(name, std::move(value)); };
  switch (control.Kind()) {
    case ControlKind::OptionButton:
      fact("set", YesOrNo(SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED));
      [[fallthrough]];
    case ControlKind::CommandButton:
    case ControlKind::Label:
      fact("caption", CaptionOf(window));
      break;
    case ControlKind::Frame: {
      const HWND title = TitleOf(window);
      fact("caption", title == nullptr ? std::string() : CaptionOf(title));
      break;
    }
    case ControlKind::ComboBox: {
      std::vector<std::string> entries;
      const auto count = static_cast<int>(SendMessageW(window, CB_GETCOUNT, 0, 0));
      for (int entry = 0; entry < count; ++entry) entries.push_back(EntryOf(window, entry));
      fact("text", TextOfWindow(window));
      fact("entry", std::to_string(SendMessageW(window, CB_GETCURSEL, 0, 0)));
      fact("entries", Lines(entries));
      break;
    }
    case ControlKind::TextBox:
      fact("text", TextOfWindow(window));
      fact("locked", YesOrNo((GetWindowLongW(window, GWL_STYLE) & ES_READONLY) != 0));
      break;
    case ControlKind::TabStrip: {
      const HWND strip = view.FocusWindow();
      std::vector<std::string> tabs;
      for (int page = 0; page < TabCtrl_GetItemCount(strip); ++page) {
        tabs.push_back(dialogs::Readable(TextOfTab(strip, page)));
      }
      fact("tabs", Lines(tabs));
      fact("front", std::to_string(TabCtrl_GetCurSel(strip)));
      break;
    }
    case ControlKind::Grid: {
      const auto& grid = static_cast<const GridView&>(view);
      fact("cell", std::to_string(grid.Drawn().row) + " " + std::to_string(grid.Drawn().col));
      fact("cells", dialogs::CellsOf(grid.Drawn().cells));
      break;
    }
    case ControlKind::StatusBar:
      fact("text", TextOfWindow(window));
      break;
    default:
      break;
  }
  return told;
}

std::string FocusOf(FormView& view) {
  const HWND focus = GetFocus();
  for (const Control* const control : view.Model().Controls()) {
    const ControlView* const one = view.ViewOf(control);
    if (one != nullptr && one->FocusWindow() == focus) return control->FullName();
  }
  return {};
}

}  // namespace

dialogs::ToldForm ToldOfWindows(FormView& view) {
  dialogs::ToldForm told;
  told.title = TextOfWindow(view.Window());
  for (const Control* const control : view.Model().Controls()) {
    if (dialogs::IsTold(*control)) told.controls.push_back(ToldOf(*control, *view.ViewOf(control)));
  }
  told.focus = FocusOf(view);
  return told;
}

std::vector<std::string> FollowTab(FormView& view) {
  return dialogs::FollowTab(FocusOf(view), [&view] {
    MSG key = {};
    key.hwnd = GetFocus();
    key.message = WM_KEYDOWN;
    key.wParam = VK_TAB;
    key.lParam = 1 | (static_cast<LPARAM>(MapVirtualKeyW(VK_TAB, MAPVK_VK_TO_VSC)) << 16U);
    view.TakeMessage(key);
    return FocusOf(view);
  });
}

RECT PlaceOfTab(HWND strip, int page) {
  RECT place = {};
  SendMessageW(strip, TCM_GETITEMRECT, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&place));
  return place;
}

std::wstring ToolTipOf(HWND dialog, HWND window) {
  HWND tips = nullptr;
  do {
    tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr);
  } while (tips != nullptr && GetWindow(tips, GW_OWNER) != dialog);
  std::wstring text(1000, L'\0');
  TOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = dialog;
  tool.uFlags = TTF_IDISHWND;
  tool.uId = reinterpret_cast<UINT_PTR>(window);
  tool.lpszText = text.data();
  SendMessageW(tips, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
  return text.c_str();
}

std::vector<std::string> DifferencesOf(FormView& view) { return Comparison(view).Run(); }

}  // namespace plexel
