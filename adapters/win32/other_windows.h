#pragma once

#include <windows.h>

#include <vector>

namespace plexel {

/// The other windows of the thread, which take nothing of the user while a dialog is open.
class OtherWindows {
 public:
  OtherWindows() = default;
  ~OtherWindows() { Enable(); }
  OtherWindows(const OtherWindows&) = delete;
  OtherWindows& operator=(const OtherWindows&) = delete;

  /// Disables those that are visible and enabled.
  void DisableAllBut(HWND window);
  /// Enables those again that are still there.
  void Enable();

 private:
  std::vector<HWND> disabled_;
};

}  // namespace plexel
