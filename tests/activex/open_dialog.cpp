#include "activex/open_dialog.h"

#include <utility>

namespace plexel::activex {

namespace {

std::function<void()> onTimer;

void CALLBACK TimerProcedure(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  std::exchange(onTimer, nullptr)();
}

bool Is(HWND window, const wchar_t* kind, const wchar_t* text) {
  wchar_t name[100] = {};
  GetClassNameW(window, name, 100);
  return std::wstring(name) == kind && (text == nullptr || TitleOf(window) == text);
}

}  // namespace

void Soon(std::function<void()> act) {
  constexpr UINT Milliseconds = 300;
  onTimer = std::move(act);
  SetTimer(nullptr, 0, Milliseconds, TimerProcedure);
}

HWND DialogOver(HWND owner) {
  HWND found = nullptr;
  while ((found = FindWindowExW(nullptr, found, nullptr, nullptr)) != nullptr) {
    if (GetWindow(found, GW_OWNER) == owner && IsWindowVisible(found) != FALSE) return found;
  }
  return nullptr;
}

std::wstring TitleOf(HWND window) {
  wchar_t title[200] = {};
  GetWindowTextW(window, title, 200);
  return title;
}

HWND PartOf(HWND dialog, const wchar_t* kind, const wchar_t* text) {
  for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    if (Is(child, kind, text)) return child;
    if (const HWND within = PartOf(child, kind, text); within != nullptr) return within;
  }
  return nullptr;
}

int EntriesOf(HWND list) { return static_cast<int>(SendMessageW(list, CB_GETCOUNT, 0, 0)); }

void CloseBox(HWND dialog) { SendMessageW(dialog, WM_CLOSE, 0, 0); }

void Press(HWND button) { SendMessageW(button, BM_CLICK, 0, 0); }

void DoubleClickFirstCell(HWND dialog) {
  const HWND grid = PartOf(dialog, L"PlexelGrid");
  const LPARAM place = MAKELPARAM(100, 30);
  SendMessageW(grid, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
  SendMessageW(grid, WM_LBUTTONUP, 0, place);
}

}  // namespace plexel::activex
