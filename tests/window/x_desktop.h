#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plexel::window_test {

struct Box {
  int left = 0, top = 0, width = 0, height = 0;
};

/// A window on the screen: a managed one by its title, or a popup that the window manager leaves alone.
struct WindowFacts {
  xcb_window_t id = XCB_WINDOW_NONE;
  std::string title;
  Box client;             ///< without the frame, on the screen
  bool viewable = false;  ///< false while it comes and goes
  bool active = false;
  bool popup = false;
};

struct Pixels {
  Box box;
  std::vector<std::uint32_t> values;  ///< 0xRRGGBB, row by row
};

/// An X server as a user meets it: keys and mouse by the XTEST extension, windows as the window manager tells them, and
/// what is to be seen. Everything that fails throws std::runtime_error.
class XDesktop {
 public:
  XDesktop();
  ~XDesktop();
  XDesktop(const XDesktop&) = delete;
  XDesktop& operator=(const XDesktop&) = delete;

  void Key(int evdev, bool down);
  void Button(int number, bool down);
  void MoveTo(int x, int y);
  /// The keys that the server takes for held, as evdev codes.
  std::vector<int> HeldKeys();
  /// Whether a program holds the keyboard for itself.
  bool KeyboardIsGrabbed();

  /// Asks the window manager for something, and tells whether it has answered yet. It may pass over what reaches it
  /// while it starts, up to its next event: from its first answer on it hears everything.
  bool WindowManagerAnswers();
  std::vector<WindowFacts> Windows();
  /// Puts up a plain window of its own, which hears keys and the mouse.
  void Open(const std::string& title, const Box& box);
  /// The keys that its own windows have heard since this was asked last, as "+30" and "-30", evdev codes that go down
  /// and come up.
  std::vector<std::string> ReceivedKeys();
  /// Carries a file, by its address, from the last window of its own to a place on the screen over another program's
  /// window, and drops it there by the XDND protocol: what that window makes of it has been done when this returns.
  void Drop(xcb_window_t onto, int x, int y, const std::string& address);
  /// Asks the window manager to bring a window to the front with the focus.
  void Activate(xcb_window_t window);
  /// Asks the window manager to close a window, as its close box does.
  void Close(xcb_window_t window);

  Pixels Read(const Box& box);
  Box Screen() const { return {0, 0, screen_->width_in_pixels, screen_->height_in_pixels}; }

 private:
  xcb_atom_t Atom(std::string_view name);
  std::vector<std::uint32_t> Numbers(xcb_window_t window, std::string_view property);
  std::string Title(xcb_window_t window);
  WindowFacts Describe(xcb_window_t window, bool popup);
  void Ask(xcb_window_t window, std::string_view message, std::array<std::uint32_t, 2> words);
  void Send(xcb_window_t window, std::string_view message, const std::array<std::uint32_t, 5>& words);
  /// Gives what is carried to whoever asks for it, until a message comes; its words then.
  std::array<std::uint32_t, 5> Answer(std::string_view message, const std::string& carried);
  void Give(const xcb_selection_request_event_t& asked, const std::string& carried);
  void Fake(std::uint8_t type, std::uint8_t detail, int x, int y);

  xcb_connection_t* connection_;
  xcb_screen_t* screen_ = nullptr;
  xcb_window_t asking_ = XCB_WINDOW_NONE;  ///< never shown
  xcb_window_t opened_ = XCB_WINDOW_NONE;  ///< the last window of its own
};

}  // namespace plexel::window_test
