#include "x11/server_events.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstring>

namespace plexel {
namespace {

constexpr std::uint8_t KeyboardEvent = 85;

/// What an event says, given as the kind of event that the server sends.
template <typename Event>
DesktopEvent Read(const Event& event) {
  // Each event comes with room for what the library adds to it.
  alignas(xcb_generic_event_t) std::array<std::byte, sizeof(Event) + sizeof(xcb_generic_event_t)> sent{};
  std::memcpy(sent.data(), &event, sizeof(event));
  return ReadServerEvent(reinterpret_cast<const xcb_generic_event_t&>(sent), KeyboardEvent);
}

DesktopEvent ReadFocus(std::uint8_t type, std::uint8_t detail, std::uint8_t mode) {
  xcb_focus_in_event_t event{};
  event.response_type = type;
  event.detail = detail;
  event.mode = mode;
  event.event = 77;
  return Read(event);
}

/// An event of the keyboard extension tells its kind in the second byte.
DesktopEvent ReadExtension(std::uint8_t type, std::uint8_t kind) {
  xcb_generic_event_t event{};
  event.response_type = type;
  event.pad0 = kind;
  return Read(event);
}

TEST(ServerEvents, AKeyHasItsPlaceTimeNumLockAndGroup) {
  xcb_key_press_event_t event{};
  event.response_type = XCB_KEY_PRESS;
  event.detail = 38;
  event.time = 1234;
  event.state = XCB_MOD_MASK_2 | (1U << 13U);
  EXPECT_EQ(Read(event), DesktopEvent(DesktopKey{{30, true, 1234}, true, 1}));
  event.response_type = XCB_KEY_RELEASE;
  event.state = XCB_MOD_MASK_SHIFT;
  EXPECT_EQ(Read(event), DesktopEvent(DesktopKey{{30, false, 1234}, false, 0}));
}

TEST(ServerEvents, AKeySentByAnotherProgramIsAKey) {
  xcb_key_press_event_t event{};
  event.response_type = XCB_KEY_PRESS | 0x80;
  event.detail = 9;
  EXPECT_EQ(Read(event), DesktopEvent(DesktopKey{{1, true, 0}, false, 0}));
}

TEST(ServerEvents, AKeyBelowTheFirstOneSaysNothing) {
  xcb_key_press_event_t event{};
  event.response_type = XCB_KEY_PRESS | 0x80;
  event.detail = 7;
  EXPECT_EQ(Read(event), DesktopEvent());
}

TEST(ServerEvents, TheFocusComesAndLeaves) {
  const DesktopEvent comes = DesktopFocus{77, true}, leaves = DesktopFocus{77, false};
  EXPECT_EQ(ReadFocus(XCB_FOCUS_IN, XCB_NOTIFY_DETAIL_NONLINEAR, XCB_NOTIFY_MODE_NORMAL), comes);
  EXPECT_EQ(ReadFocus(XCB_FOCUS_OUT, XCB_NOTIFY_DETAIL_NONLINEAR, XCB_NOTIFY_MODE_NORMAL), leaves);
  EXPECT_EQ(ReadFocus(XCB_FOCUS_IN, XCB_NOTIFY_DETAIL_NONLINEAR, XCB_NOTIFY_MODE_UNGRAB), comes);
}

TEST(ServerEvents, AGrabAndThePointerMoveNoFocus) {
  const DesktopEvent nothing;
  EXPECT_EQ(ReadFocus(XCB_FOCUS_IN, XCB_NOTIFY_DETAIL_NONLINEAR, XCB_NOTIFY_MODE_GRAB), nothing);
  EXPECT_EQ(ReadFocus(XCB_FOCUS_OUT, XCB_NOTIFY_DETAIL_NONLINEAR, XCB_NOTIFY_MODE_GRAB), nothing);
  EXPECT_EQ(ReadFocus(XCB_FOCUS_OUT, XCB_NOTIFY_DETAIL_NONLINEAR, XCB_NOTIFY_MODE_UNGRAB), nothing);
  EXPECT_EQ(ReadFocus(XCB_FOCUS_OUT, XCB_NOTIFY_DETAIL_POINTER, XCB_NOTIFY_MODE_NORMAL), nothing);
  EXPECT_EQ(ReadFocus(XCB_FOCUS_IN, XCB_NOTIFY_DETAIL_INFERIOR, XCB_NOTIFY_MODE_NORMAL), nothing);
}

TEST(ServerEvents, ButtonsAreToldByTheServerAndByItsExtension) {
  const DesktopEvent button = DesktopButton();
  xcb_button_press_event_t press{};
  for (const auto type : std::array<std::uint8_t, 2>{XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE}) {
    press.response_type = type;
    EXPECT_EQ(Read(press), button);
  }
  xcb_ge_generic_event_t extended{};
  extended.response_type = XCB_GE_GENERIC;
  for (const auto type : std::array<std::uint16_t, 2>{4, 5}) {
    extended.event_type = type;
    EXPECT_EQ(Read(extended), button);
  }
  extended.event_type = 6;
  EXPECT_EQ(Read(extended), DesktopEvent());
}

TEST(ServerEvents, ANewMappingKeyboardOrMapIsAnotherLayout) {
  const DesktopEvent layout = DesktopLayout();
  EXPECT_EQ(ReadExtension(XCB_MAPPING_NOTIFY, 0), layout);
  EXPECT_EQ(ReadExtension(KeyboardEvent, 0), layout);
  EXPECT_EQ(ReadExtension(KeyboardEvent, 1), layout);
  EXPECT_EQ(ReadExtension(KeyboardEvent, 2), DesktopEvent());
}

TEST(ServerEvents, WithoutTheKeyboardExtensionNoEventIsItsOwn) {
  const xcb_generic_event_t event{};
  EXPECT_EQ(ReadServerEvent(event, 0), DesktopEvent());
}

TEST(ServerKeyboard, OfNoConnectionIsNone) { EXPECT_EQ(KeyboardOfXServer(nullptr), nullptr); }

}  // namespace
}  // namespace plexel
