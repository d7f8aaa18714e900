#include "x11/server_events.h"

namespace plexel {

namespace {

constexpr std::uint8_t FirstKeycode = 8;
constexpr std::uint8_t SyntheticBit = 0x80;

DesktopEvent KeyOf(const xcb_key_press_event_t& event, bool down) {
  if (event.detail < FirstKeycode) return {};  // no server sends one, but any client may
  const bool numLock = (event.state & XCB_MOD_MASK_2) != 0;
  const std::uint32_t group = (static_cast<std::uint32_t>(event.state) >> 13U) & 3U;
  return DesktopKey{{event.detail - FirstKeycode, down, event.time}, numLock, group};
}

DesktopEvent FocusOf(const xcb_focus_in_event_t& event, bool comes) {
  const bool ofThePointer = event.detail == XCB_NOTIFY_DETAIL_POINTER || event.detail == XCB_NOTIFY_DETAIL_INFERIOR;
  const bool grabBegins = event.mode == XCB_NOTIFY_MODE_GRAB, grabEnds = event.mode == XCB_NOTIFY_MODE_UNGRAB;
  if (ofThePointer || grabBegins || (grabEnds && !comes)) return {};
  return DesktopFocus{event.event, comes};
}

/// The X input extension reports the buttons in an event of its own.
bool IsButtonOfTheExtension(const xcb_generic_event_t& event) {
  constexpr std::uint16_t ButtonPress = 4, ButtonRelease = 5;
  const auto type = reinterpret_cast<const xcb_ge_generic_event_t&>(event).event_type;
  return type == ButtonPress || type == ButtonRelease;
}

bool IsNewKeymap(const xcb_generic_event_t& event) {
  constexpr std::uint8_t NewKeyboard = 0, NewMap = 1;
  return event.pad0 == NewKeyboard || event.pad0 == NewMap;
}

}  // namespace

DesktopEvent ReadServerEvent(const xcb_generic_event_t& event, std::uint8_t keyboardEvent) {
  const int type = event.response_type & ~SyntheticBit;
  switch (type) {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
      return KeyOf(reinterpret_cast<const xcb_key_press_event_t&>(event), type == XCB_KEY_PRESS);
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT:
      return FocusOf(reinterpret_cast<const xcb_focus_in_event_t&>(event), type == XCB_FOCUS_IN);
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE:
      return DesktopButton();
    case XCB_GE_GENERIC:
      if (IsButtonOfTheExtension(event)) return DesktopButton();
      return {};
    case XCB_MAPPING_NOTIFY:
      return DesktopLayout();
    default:
      break;
  }
  if (keyboardEvent != 0 && type == keyboardEvent && IsNewKeymap(event)) return DesktopLayout();
  return {};
}

}  // namespace plexel
