#include "host/message_window.h"

#include <exception>
#include <stdexcept>

#include "win32/scale.h"
#include "win32/wide_text.h"

namespace plexel::host {

MessageWindow::~MessageWindow() { Destroy(); }

void MessageWindow::Destroy() {
  if (handle_ != nullptr) DestroyWindow(handle_);
}

RECT MessageWindow::Inside() const {
  RECT inside{};
  GetClientRect(handle_, &inside);
  return inside;
}

void MessageWindow::Make(const wchar_t* kind, DWORD style, const RECT& place, HWND parent) {
  WNDCLASSEXW one = {};
  one.cbSize = sizeof one;
  one.style = CS_DBLCLKS;
  one.lpfnWndProc = Procedure;
  one.hInstance = GetModuleHandleW(nullptr);
  one.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  one.lpszClassName = kind;
  RegisterClassExW(&one);  // which does nothing from the second time on
  CreateWindowExW(0, kind, L"", style, place.left, place.top, WidthOf(place), HeightOf(place), parent, nullptr,
                  one.hInstance, this);
  if (handle_ == nullptr) throw std::runtime_error("the system has no window");
}

LRESULT MessageWindow::AsUsual(UINT message, WPARAM wide, LPARAM wider) const {
  return DefWindowProcW(handle_, message, wide, wider);
}

LRESULT MessageWindow::Fill(WPARAM wide, int colour) const {
  const RECT inside = Inside();
  FillRect(reinterpret_cast<HDC>(wide), &inside, GetSysColorBrush(colour));
  return 1;
}

LRESULT CALLBACK MessageWindow::Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider) {
  if (message == WM_NCCREATE) {
    auto* const made = static_cast<MessageWindow*>(reinterpret_cast<CREATESTRUCTW*>(wider)->lpCreateParams);
    made->handle_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
  }
  auto* const self = reinterpret_cast<MessageWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wide, wider);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    self->handle_ = nullptr;
    return DefWindowProcW(window, message, wide, wider);
  }
  try {
    return self->Message(message, wide, wider);
  } catch (const std::exception& failure) {
    TellFailure(window, failure.what());
    return 0;
  }
}

void TellFailure(HWND window, const std::string& what) {
  MessageBoxW(GetAncestor(window, GA_ROOT), Wide(what).c_str(), L"Plexel", MB_OK | MB_ICONWARNING);
}

}  // namespace plexel::host
