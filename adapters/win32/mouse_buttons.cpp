#include "win32/mouse_buttons.h"

#include <array>

#include "forms/control.h"

namespace plexel {

namespace {

struct MouseMessage {
  UINT message;
  MouseMove move;
  std::int16_t button;
};
constexpr std::array messages = {MouseMessage{WM_LBUTTONDOWN, MouseMove::Down, 1},
                                 MouseMessage{WM_LBUTTONUP, MouseMove::Up, 1},
                                 MouseMessage{WM_LBUTTONDBLCLK, MouseMove::DoubleClick, 1},
                                 MouseMessage{WM_RBUTTONDOWN, MouseMove::Down, 2},
                                 MouseMessage{WM_RBUTTONUP, MouseMove::Up, 2},
                                 MouseMessage{WM_RBUTTONDBLCLK, MouseMove::DoubleClick, 2},
                                 MouseMessage{WM_MBUTTONDOWN, MouseMove::Down, 4},
                                 MouseMessage{WM_MBUTTONUP, MouseMove::Up, 4},
                                 MouseMessage{WM_MBUTTONDBLCLK, MouseMove::DoubleClick, 4}};

}  // namespace

MouseMove MouseMoveOf(UINT message) {
  for (const MouseMessage& one : messages) {
    if (one.message == message) return one.move;
  }
  return MouseMove::None;
}

std::int16_t ButtonOf(UINT message) {
  for (const MouseMessage& one : messages) {
    if (one.message == message) return one.button;
  }
  return 0;
}

std::int16_t ShiftOf(WPARAM keys) {
  int shift = 0;
  if ((keys & MK_SHIFT) != 0) shift |= key::ShiftBit;
  if ((keys & MK_CONTROL) != 0) shift |= key::ControlBit;
  if (GetKeyState(VK_MENU) < 0) shift |= key::AltBit;
  return static_cast<std::int16_t>(shift);
}

}  // namespace plexel
