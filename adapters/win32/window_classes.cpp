#include "win32/window_classes.h"

#include "platform/failure.h"
#include "win32/scale.h"

namespace plexel {

namespace {

int theUsers = 0;

constexpr const wchar_t* AllClasses[] = {FormClass, PaneClass, GridClass};

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* const created = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created->lpCreateParams));
  }
  auto* const target = reinterpret_cast<WindowTarget*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (target == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  return target->Message(window, message, wParam, lParam);
}

}  // namespace

HINSTANCE ThisInstance() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&AllClasses), &module);
  return module;
}

WindowClasses::WindowClasses() {
  if (theUsers++ > 0) return;
  for (const wchar_t* const name : AllClasses) {
    WNDCLASSEXW one = {};
    one.cbSize = sizeof one;
    one.style = CS_DBLCLKS;
    one.lpfnWndProc = Procedure;
    one.hInstance = ThisInstance();
    one.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    one.lpszClassName = name;
    RegisterClassExW(&one);
  }
}

WindowClasses::~WindowClasses() {
  if (--theUsers > 0) return;
  for (const wchar_t* const name : AllClasses) UnregisterClassW(name, ThisInstance());
}

HWND MakeWindow(WindowTarget& target, const wchar_t* windowClass, DWORD style, DWORD extended, const RECT& place,
                HWND parent) {
  const HWND made = CreateWindowExW(extended, windowClass, L"", style, place.left, place.top, WidthOf(place),
                                    HeightOf(place), parent, nullptr, ThisInstance(), &target);
  if (made == nullptr) throw Failure(FailureKind::Platform, "the system has no window");
  return made;
}

}  // namespace plexel
