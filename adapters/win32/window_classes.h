#pragma once

#include <windows.h>

namespace plexel {

/// Takes the messages of windows of the classes below. Nothing is thrown out of it.
class WindowTarget {
 public:
  virtual ~WindowTarget() = default;
  virtual LRESULT Message(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept = 0;
};

/// The names of the classes: dialogs, areas in them, and grids.
inline constexpr wchar_t FormClass[] = L"PlexelForm", PaneClass[] = L"PlexelPane", GridClass[] = L"PlexelGrid";

/// Registers the classes as long as one lives.
class WindowClasses {
 public:
  WindowClasses();
  ~WindowClasses();
  WindowClasses(const WindowClasses&) = delete;
  WindowClasses& operator=(const WindowClasses&) = delete;
};

/// The module that holds this code.
HINSTANCE ThisInstance();

/// Makes a window of one of the classes, whose messages go to a target that outlives it; Failure (Platform) when the
/// system has none.
HWND MakeWindow(WindowTarget& target, const wchar_t* windowClass, DWORD style, DWORD extended, const RECT& place,
                HWND parent);

}  // namespace plexel
