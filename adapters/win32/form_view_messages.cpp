#include "win32/form_view.h"

#include <commctrl.h>

#include "platform/clean_up.h"
#include "win32/captions.h"
#include "win32/mouse_buttons.h"

namespace plexel {

namespace {

/// The popup menu that is wanted opens.
constexpr UINT OpensMenu = WM_APP + 2;

}  // namespace

LRESULT FormView::ChildMessage(ControlView& view, HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  std::optional<LRESULT> answer;
  desk_.Contain([&] {
    if (MouseMoveOf(message) != MouseMove::None && !view.TakesMouseItself()) {
      if (MouseArrives(view, window, message, wParam, lParam)) answer = 0;
    } else {
      answer = view.Ahead(window, message, wParam, lParam);
    }
  });
  if (answer) return *answer;
  if (IsWindow(window) == FALSE) return 0;
  const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
  desk_.Contain([&] { view.Behind(message); });
  return result;
}

LRESULT FormView::Message(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  std::optional<LRESULT> answer;
  desk_.Contain([&] { answer = Answer(window, message, wParam, lParam); });
  if (message == WM_NCDESTROY && window == window_) {
    window_ = nullptr;
    // The loop may be waiting, and nothing else would wake it.
    PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
  }
  return answer ? *answer : DefWindowProcW(window, message, wParam, lParam);
}

std::optional<LRESULT> FormView::Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND: {
      ControlView* const view = lParam == 0 ? nullptr : ViewOfWindow(reinterpret_cast<HWND>(lParam));
      if (view != nullptr && !syncing_) view->Notified(HIWORD(wParam));
      return 0;
    }
    case WM_NOTIFY: {
      auto& told = *reinterpret_cast<NMHDR*>(lParam);
      if (told.code == TTN_GETDISPINFOW) return ShowToolTip(told);
      ControlView* const view = ViewOfWindow(told.hwndFrom);
      return view == nullptr ? std::nullopt : view->NotifiedBy(told);
    }
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
      return Colours(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (ControlView* const view = ViewOfWindow(item.hwndItem)) view->DrawItem(item);
      return TRUE;
    }
    case WM_ERASEBKGND:
      return Erase(reinterpret_cast<HDC>(wParam), window);
    default:
      return window == window_ ? AnswerOfWindow(message, wParam, lParam) : std::nullopt;
  }
}

std::optional<LRESULT> FormView::AnswerOfWindow(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CLOSE:
      CarryOnForm([](Hand& hand) { hand.Close(); });
      return 0;
    case WM_MOVE:
      WindowMoved();
      return std::nullopt;
    case WM_ACTIVATE:
    case WM_SETFOCUS:
      if (!syncing_ && (message == WM_SETFOCUS || LOWORD(wParam) != WA_INACTIVE)) {
        // An option tells of a click when it gets the focus by this.
        syncing_ = true;
        const AtEnd synced([this] { syncing_ = false; });
        SyncFocus();
      }
      return 0;
    case WM_DPICHANGED:
      Rescale(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return 0;
    case OpensMenu:
      ShowMenu();
      return 0;
    default:
      return std::nullopt;
  }
}

LRESULT FormView::ShowToolTip(NMHDR& told) {
  auto& wanted = reinterpret_cast<NMTTDISPINFOW&>(told);
  const auto window = reinterpret_cast<HWND>(told.idFrom);
  const ControlView* const view = ViewOfWindow(window);
  if (view == nullptr) return 0;
  POINT mouse;
  GetCursorPos(&mouse);
  ScreenToClient(window, &mouse);
  toolTip_ = view->ToolTipAt(mouse);
  wanted.lpszText = toolTip_.data();
  return 0;
}

void FormView::OpenMenu(MenuItem& menu, bool placed, float x, float y) {
  wantedMenu_ = {&menu, placed, x, y};
  PostMessageW(window_, OpensMenu, 0, 0);
}

void FormView::ShowMenu() {
  MenuItem* const menu = wantedMenu_.menu;
  if (menu == nullptr || !form_.IsShown() || form_.OpenPopup() != menu || tracking_) return;
  const HMENU shown = CreatePopupMenu();
  for (std::size_t place = 0; place < menu->Entries().size(); ++place) {
    const MenuItem& entry = *menu->Entries()[place];
    if (!entry.Visible()) continue;
    const UINT flags = entry.Separator() ? MF_SEPARATOR : MF_STRING | (entry.Enabled() ? MF_ENABLED : MF_GRAYED);
    AppendMenuW(shown, flags, place + 1, WithLetter(entry.Caption()).c_str());
  }
  POINT corner = {scale_.ToPixels(wantedMenu_.x), scale_.ToPixels(wantedMenu_.y)};
  if (wantedMenu_.placed) {
    ClientToScreen(window_, &corner);
  } else {
    GetCursorPos(&corner);
  }
  tracking_ = true;
  const int chosen =
      TrackPopupMenuEx(shown, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, corner.x, corner.y, window_, nullptr);
  tracking_ = false;
  DestroyMenu(shown);
  if (form_.OpenPopup() != menu) return;
  CarryOnForm([&](Hand& hand) {
    if (chosen > 0) {
      hand.Menu(*menu->Entries()[static_cast<std::size_t>(chosen) - 1]);
    } else {
      hand.DismissMenu();
    }
  });
}

}  // namespace plexel
