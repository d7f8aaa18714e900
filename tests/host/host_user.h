#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace plexel::host {

/// Somebody at plexel-host, which runs as a process of its own: real mouse and keys, and what can be read of its
/// windows.
class HostUser {
 public:
  /// Starts the program beside this one with a project, and waits for its window.
  explicit HostUser(const std::filesystem::path& project);
  ~HostUser();
  HostUser(const HostUser&) = delete;
  HostUser& operator=(const HostUser&) = delete;

  HWND Window() const { return window_; }
  /// Another window of the program in front, such as a dialog; null for none.
  HWND Dialog() const;
  std::wstring Title() const;
  /// The lines of the list.
  std::vector<std::wstring> Events() const;
  /// The window of a kind and a text within another, null for none.
  static HWND Find(HWND within, const wchar_t* kind, const wchar_t* text = nullptr);
  static std::wstring TextOf(HWND window);

  /// The mouse at a place of a window, so many times.
  static void Click(HWND window, POINT place, int times = 1);
  /// Keys by their virtual keys; below 0 they go up.
  static void Keys(const std::vector<int>& keys);
  /// Waits until something holds; std::runtime_error with its name when it does not.
  static void Until(const std::string& what, const std::function<bool()>& holds);
  /// Waits for the end of the program, and gives its exit status.
  DWORD Ended();

 private:
  struct Wanted;
  static BOOL CALLBACK EndAtWanted(HWND child, LPARAM wanted);
  PROCESS_INFORMATION process_ = {};
  HWND window_ = nullptr;
};

}  // namespace plexel::host
