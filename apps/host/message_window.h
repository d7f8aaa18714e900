#pragma once

#include <windows.h>

#include <string>

namespace plexel::host {

/// A window whose messages go to its object, and which goes with it.
class MessageWindow {
 public:
  virtual ~MessageWindow();
  MessageWindow(const MessageWindow&) = delete;
  MessageWindow& operator=(const MessageWindow&) = delete;

  HWND Handle() const { return handle_; }
  /// The area of it without borders, from 0, 0.
  RECT Inside() const;

 protected:
  MessageWindow() = default;
  /// Makes the window, of a kind that is registered when it is the first. Throws std::runtime_error when the system has
  /// none.
  void Make(const wchar_t* kind, DWORD style, const RECT& place, HWND parent);
  /// Takes a message. What it throws is told in a box, and the message answered with 0.
  virtual LRESULT Message(UINT message, WPARAM wide, LPARAM wider) = 0;
  /// What the system does with a message by itself.
  LRESULT AsUsual(UINT message, WPARAM wide, LPARAM wider) const;
  /// Answers WM_ERASEBKGND with one of the system's colours all over.
  LRESULT Fill(WPARAM wide, int colour) const;
  void Destroy();

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider);

  HWND handle_ = nullptr;
};

/// Tells a failure in a box over the window's program.
void TellFailure(HWND window, const std::string& what);

}  // namespace plexel::host
