#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "keyboard/xkb_layout.h"
#include "platform/failure.h"
#include "x11/server_events.h"

namespace plexel {

namespace {

constexpr std::size_t FirstKeycode = 8;
constexpr std::string_view RulesProperty = "_XKB_RULES_NAMES";

struct Release {
  void operator()(void* reply) const { std::free(reply); }
  void operator()(xkb_context* context) const { xkb_context_unref(context); }
  void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
  void operator()(xkb_state* state) const { xkb_state_unref(state); }
};
template <typename Type>
using Owned = std::unique_ptr<Type, Release>;

std::vector<std::string> SplitAt(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

/// The property of the root window that names rules, model, layouts, variants and options, each closed by a NUL.
std::vector<std::string> RuleNames(xcb_connection_t* connection) {
  const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
      connection, xcb_intern_atom(connection, 1, RulesProperty.size(), RulesProperty.data()), nullptr));
  if (!atom || atom->atom == XCB_ATOM_NONE) return {};
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const Owned<xcb_get_property_reply_t> property(xcb_get_property_reply(
      connection, xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_STRING, 0, 1024), nullptr));
  if (!property) return {};
  const auto* bytes = static_cast<const char*>(xcb_get_property_value(property.get()));
  return SplitAt({bytes, static_cast<std::size_t>(xcb_get_property_value_length(property.get()))}, '\0');
}

/// The name of one group's layout, with its variant in round brackets; "us" when the server does not tell.
std::string GroupName(xcb_connection_t* connection, std::uint32_t group) {
  const std::vector<std::string> names = RuleNames(connection);
  if (names.size() < 4) return "us";
  const std::vector<std::string> layouts = SplitAt(names[2], ','), variants = SplitAt(names[3], ',');
  if (group >= layouts.size()) return "us";
  if (group >= variants.size() || variants[group].empty()) return layouts[group];
  return layouts[group] + "(" + variants[group] + ")";
}

/// The first event number of the keyboard extension, 0 for a server without it.
std::uint8_t KeyboardEventOf(xcb_connection_t* connection) {
  constexpr std::string_view Name = "XKEYBOARD";
  const Owned<xcb_query_extension_reply_t> reply(
      xcb_query_extension_reply(connection, xcb_query_extension(connection, Name.size(), Name.data()), nullptr));
  return reply && reply->present ? reply->first_event : std::uint8_t{0};
}

class ServerKeyboard : public DesktopKeyboard {
 public:
  explicit ServerKeyboard(xcb_connection_t* connection)
      : connection_(connection), keyboardEvent_(KeyboardEventOf(connection)) {}
  ~ServerKeyboard() override { LetGo(); }
  ServerKeyboard(const ServerKeyboard&) = delete;
  ServerKeyboard& operator=(const ServerKeyboard&) = delete;

  DesktopEvent Read(std::string_view kind, const void* message) const override;
  std::unique_ptr<TableLayout> ReadLayout() const override;
  WinKeys::KeySet ReadKeys() const override;
  bool Grab(std::uintptr_t window) override;
  void Ungrab() override { LetGo(); }

 private:
  void LetGo();

  xcb_connection_t* connection_;
  std::uint8_t keyboardEvent_;
  bool grabbed_ = false;
};

DesktopEvent ServerKeyboard::Read(std::string_view kind, const void* message) const {
  if (kind != "xcb_generic_event_t") return {};
  return ReadServerEvent(*static_cast<const xcb_generic_event_t*>(message), keyboardEvent_);
}

std::unique_ptr<TableLayout> ServerKeyboard::ReadLayout() const {
  const Owned<xkb_context> context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
  const bool extension =
      xkb_x11_setup_xkb_extension(connection_, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                  XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr) == 1;
  if (!context || !extension) throw Failure(FailureKind::Platform, "the X server has no keyboard extension");
  const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection_);
  const Owned<xkb_keymap> keymap(
      xkb_x11_keymap_new_from_device(context.get(), connection_, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
  if (!keymap) throw Failure(FailureKind::Platform, "the X server's keyboard layout cannot be read");
  const Owned<xkb_state> state(xkb_x11_state_new_from_device(keymap.get(), connection_, device));
  const std::uint32_t group = state ? xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE) : 0;
  auto source = [table = TableOfKeymap(keymap.get(), group)] { return table; };
  return std::make_unique<TableLayout>(GroupName(connection_, group), std::move(source));
}

WinKeys::KeySet ServerKeyboard::ReadKeys() const {
  WinKeys::KeySet keys;
  const Owned<xcb_query_keymap_reply_t> reply(
      xcb_query_keymap_reply(connection_, xcb_query_keymap(connection_), nullptr));
  if (!reply) return keys;
  for (std::size_t keycode = FirstKeycode; keycode < keys.size(); ++keycode)
    keys[keycode - FirstKeycode] = ((reply->keys[keycode / 8] >> (keycode % 8)) & 1) != 0;
  return keys;
}

bool ServerKeyboard::Grab(std::uintptr_t window) {
  const Owned<xcb_grab_keyboard_reply_t> reply(
      xcb_grab_keyboard_reply(connection_,
                              xcb_grab_keyboard(connection_, 1, static_cast<xcb_window_t>(window), XCB_CURRENT_TIME,
                                                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                              nullptr));
  grabbed_ = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
  return grabbed_;
}

void ServerKeyboard::LetGo() {
  if (!grabbed_) return;
  xcb_ungrab_keyboard(connection_, XCB_CURRENT_TIME);
  xcb_flush(connection_);
  grabbed_ = false;
}

}  // namespace

std::unique_ptr<DesktopKeyboard> KeyboardOfXServer(xcb_connection_t* connection) {
  return connection == nullptr ? nullptr : std::make_unique<ServerKeyboard>(connection);
}

}  // namespace plexel
