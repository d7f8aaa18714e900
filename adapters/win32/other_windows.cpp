#include "win32/other_windows.h"

namespace plexel {

namespace {

struct Search {
  HWND kept;
  std::vector<HWND>* found;
};

BOOL CALLBACK Note(HWND window, LPARAM given) {
  const auto& search = *reinterpret_cast<const Search*>(given);
  if (window != search.kept && IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE) {
    search.found->push_back(window);
  }
  return TRUE;
}

}  // namespace

void OtherWindows::DisableAllBut(HWND window) {
  std::vector<HWND> found;
  const Search search = {window, &found};
  EnumThreadWindows(GetCurrentThreadId(), Note, reinterpret_cast<LPARAM>(&search));
  for (const HWND one : found) {
    EnableWindow(one, FALSE);
    disabled_.push_back(one);
  }
}

void OtherWindows::Enable() {
  for (const HWND one : disabled_) EnableWindow(one, TRUE);
  disabled_.clear();
}

}  // namespace plexel
