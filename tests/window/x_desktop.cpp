#include "window/x_desktop.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>

namespace plexel::window_test {

namespace {

constexpr int FirstKeycode = 8;
constexpr std::uint32_t LongestProperty = 4096;
/// Who asks the window manager: a pager, which acts for the user.
constexpr std::uint32_t FromTheUser = 2;
/// What another program may take for an answer.
constexpr std::chrono::seconds Patience{30};

struct Freed {
  void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Freed>;

/// The reply of a request, or an error that names it.
template <typename Reply>
Owned<Reply> Must(Reply* reply, const char* request) {
  if (reply == nullptr) throw std::runtime_error(std::string("the X server does not answer: ") + request);
  return Owned<Reply>(reply);
}

}  // namespace

XDesktop::XDesktop() : connection_(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(connection_) != 0) {
    xcb_disconnect(connection_);
    throw std::runtime_error("there is no X server");
  }
  screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
  const auto* const extension = xcb_get_extension_data(connection_, &xcb_test_id);
  if (extension == nullptr || extension->present == 0) throw std::runtime_error("the X server has no XTEST extension");
}

XDesktop::~XDesktop() { xcb_disconnect(connection_); }

void XDesktop::Fake(std::uint8_t type, std::uint8_t detail, int x, int y) {
  const auto request = xcb_test_fake_input_checked(connection_, type, detail, XCB_CURRENT_TIME, screen_->root,
                                                   static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
  if (const Owned<xcb_generic_error_t> error{xcb_request_check(connection_, request)}) {
    throw std::runtime_error("the X server refuses the input");
  }
}

void XDesktop::Key(int evdev, bool down) {
  if (evdev < 0 || evdev > 255 - FirstKeycode) throw std::runtime_error("there is no such key");
  Fake(down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, static_cast<std::uint8_t>(evdev + FirstKeycode), 0, 0);
}

void XDesktop::Button(int number, bool down) {
  Fake(down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(number), 0, 0);
}

void XDesktop::MoveTo(int x, int y) { Fake(XCB_MOTION_NOTIFY, 0, x, y); }

std::vector<int> XDesktop::HeldKeys() {
  const auto reply =
      Must(xcb_query_keymap_reply(connection_, xcb_query_keymap(connection_), nullptr), "the keys that are down");
  std::vector<int> held;
  for (int keycode = FirstKeycode; keycode < 256; ++keycode) {
    if ((reply->keys[keycode / 8] >> (keycode % 8) & 1) != 0) held.push_back(keycode - FirstKeycode);
  }
  return held;
}

bool XDesktop::KeyboardIsGrabbed() {
  const auto request =
      xcb_grab_keyboard(connection_, 1, screen_->root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  const auto reply = Must(xcb_grab_keyboard_reply(connection_, request, nullptr), "the grab of the keyboard");
  if (reply->status != XCB_GRAB_STATUS_SUCCESS) return true;
  xcb_ungrab_keyboard(connection_, XCB_CURRENT_TIME);
  xcb_flush(connection_);
  return false;
}

xcb_atom_t XDesktop::Atom(std::string_view name) {
  const auto request = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
  return Must(xcb_intern_atom_reply(connection_, request, nullptr), "a name")->atom;
}

std::vector<std::uint32_t> XDesktop::Numbers(xcb_window_t window, std::string_view property) {
  const auto request =
      xcb_get_property(connection_, 0, window, Atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, LongestProperty);
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, request, nullptr));
  if (!reply || reply->format != 32) return {};
  const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + reply->value_len};
}

std::string XDesktop::Title(xcb_window_t window) {
  const auto request = xcb_get_property(connection_, 0, window, Atom("_NET_WM_NAME"), Atom("UTF8_STRING"), 0, 512);
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, request, nullptr));
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

WindowFacts XDesktop::Describe(xcb_window_t window, bool popup) {
  WindowFacts facts;
  facts.id = window;
  facts.popup = popup;
  const Owned<xcb_get_geometry_reply_t> size(
      xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
  const Owned<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
      connection_, xcb_translate_coordinates(connection_, window, screen_->root, 0, 0), nullptr));
  const Owned<xcb_get_window_attributes_reply_t> attributes(
      xcb_get_window_attributes_reply(connection_, xcb_get_window_attributes(connection_, window), nullptr));
  if (!size || !place || !attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE) return facts;
  const std::vector<std::uint32_t> active = Numbers(screen_->root, "_NET_ACTIVE_WINDOW");
  facts.viewable = true;
  facts.title = Title(window);
  facts.client = {place->dst_x, place->dst_y, size->width, size->height};
  facts.active = !active.empty() && active.front() == window;
  return facts;
}

std::vector<WindowFacts> XDesktop::Windows() {
  std::vector<WindowFacts> windows;
  for (const xcb_window_t window : Numbers(screen_->root, "_NET_CLIENT_LIST")) {
    windows.push_back(Describe(window, false));
  }
  const auto tree =
      Must(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, screen_->root), nullptr), "the windows");
  const xcb_window_t* const children = xcb_query_tree_children(tree.get());
  for (int child = 0; child < xcb_query_tree_children_length(tree.get()); ++child) {
    // Frames and helper windows of the window manager carry no type.
    if (!Numbers(children[child], "_NET_WM_WINDOW_TYPE").empty()) windows.push_back(Describe(children[child], true));
  }
  std::erase_if(windows, [](const WindowFacts& facts) { return facts.popup && !facts.viewable; });
  return windows;
}

void XDesktop::Ask(xcb_window_t window, std::string_view message, std::array<std::uint32_t, 2> words) {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = Atom(message);
  event.data.data32[0] = words[0];
  event.data.data32[1] = words[1];
  xcb_send_event(connection_, 0, screen_->root,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(connection_);
}

bool XDesktop::WindowManagerAnswers() {
  if (asking_ == XCB_WINDOW_NONE) {
    asking_ = xcb_generate_id(connection_);
    xcb_create_window(connection_, XCB_COPY_FROM_PARENT, asking_, screen_->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual, 0, nullptr);
  }
  Ask(asking_, "_NET_REQUEST_FRAME_EXTENTS", {});
  return !Numbers(asking_, "_NET_FRAME_EXTENTS").empty();
}

void XDesktop::Open(const std::string& title, const Box& box) {
  const xcb_window_t window = opened_ = xcb_generate_id(connection_);
  const std::array<std::uint32_t, 2> values = {
      screen_->white_pixel, XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS |
                                XCB_EVENT_MASK_BUTTON_RELEASE};
  xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window, screen_->root, static_cast<std::int16_t>(box.left),
                    static_cast<std::int16_t>(box.top), static_cast<std::uint16_t>(box.width),
                    static_cast<std::uint16_t>(box.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual,
                    XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, Atom("_NET_WM_NAME"), Atom("UTF8_STRING"), 8,
                      static_cast<std::uint32_t>(title.size()), title.data());
  xcb_map_window(connection_, window);
  xcb_flush(connection_);
}

std::vector<std::string> XDesktop::ReceivedKeys() {
  std::vector<std::string> keys;
  while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
    const int type = event->response_type & 0x7F;
    if (type != XCB_KEY_PRESS && type != XCB_KEY_RELEASE) continue;
    const int keycode = reinterpret_cast<const xcb_key_press_event_t&>(*event).detail;
    keys.push_back((type == XCB_KEY_PRESS ? '+' : '-') + std::to_string(keycode - FirstKeycode));
  }
  return keys;
}

void XDesktop::Send(xcb_window_t window, std::string_view message, const std::array<std::uint32_t, 5>& words) {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = Atom(message);
  std::copy(words.begin(), words.end(), event.data.data32);
  xcb_send_event(connection_, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
  xcb_flush(connection_);
}

void XDesktop::Give(const xcb_selection_request_event_t& asked, const std::string& carried) {
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, asked.requestor, asked.property, asked.target, 8,
                      static_cast<std::uint32_t>(carried.size()), carried.data());
  xcb_selection_notify_event_t given{};
  given.response_type = XCB_SELECTION_NOTIFY;
  given.time = asked.time;
  given.requestor = asked.requestor;
  given.selection = asked.selection;
  given.target = asked.target;
  given.property = asked.property;
  xcb_send_event(connection_, 0, asked.requestor, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&given));
  xcb_flush(connection_);
}

std::array<std::uint32_t, 5> XDesktop::Answer(std::string_view message, const std::string& carried) {
  const xcb_atom_t awaited = Atom(message);
  const auto end = std::chrono::steady_clock::now() + Patience;
  while (std::chrono::steady_clock::now() < end) {
    const Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection_)};
    if (!event) {
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
      continue;
    }
    const int type = event->response_type & 0x7F;
    if (type == XCB_SELECTION_REQUEST) Give(reinterpret_cast<const xcb_selection_request_event_t&>(*event), carried);
    if (type != XCB_CLIENT_MESSAGE) continue;
    const auto& said = reinterpret_cast<const xcb_client_message_event_t&>(*event);
    if (said.type != awaited) continue;
    std::array<std::uint32_t, 5> words{};
    std::copy_n(said.data.data32, words.size(), words.begin());
    return words;
  }
  throw std::runtime_error("waited in vain for " + std::string(message));
}

void XDesktop::Drop(xcb_window_t onto, int x, int y, const std::string& address) {
  constexpr std::uint32_t Version = 5, Accepted = 1;
  const std::vector<std::uint32_t> aware = Numbers(onto, "XdndAware");
  if (opened_ == XCB_WINDOW_NONE || aware.empty() || aware.front() < Version) {
    throw std::runtime_error("there is nothing to carry files from, or nowhere to");
  }
  const std::string carried = address + "\r\n";
  const std::uint32_t copy = Atom("XdndActionCopy");
  xcb_set_selection_owner(connection_, opened_, Atom("XdndSelection"), XCB_CURRENT_TIME);
  MoveTo(x, y);
  Send(onto, "XdndEnter", {opened_, Version << 24U, Atom("text/uri-list"), XCB_ATOM_NONE, XCB_ATOM_NONE});
  Send(onto, "XdndPosition",
       {opened_, 0, static_cast<std::uint32_t>(x) << 16U | static_cast<std::uint32_t>(y), XCB_CURRENT_TIME, copy});
  if ((Answer("XdndStatus", carried)[1] & Accepted) == 0) {
    Send(onto, "XdndLeave", {opened_, 0, 0, 0, 0});
    throw std::runtime_error("the window does not take the file there");
  }
  Send(onto, "XdndDrop", {opened_, 0, XCB_CURRENT_TIME, 0, 0});
  if ((Answer("XdndFinished", carried)[1] & Accepted) == 0) throw std::runtime_error("the window drops the file");
}

void XDesktop::Activate(xcb_window_t window) { Ask(window, "_NET_ACTIVE_WINDOW", {FromTheUser, XCB_CURRENT_TIME}); }

void XDesktop::Close(xcb_window_t window) { Ask(window, "_NET_CLOSE_WINDOW", {XCB_CURRENT_TIME, FromTheUser}); }

Pixels XDesktop::Read(const Box& box) {
  const Box screen = Screen();
  if (box.left < 0 || box.top < 0 || box.width < 1 || box.height < 1 || box.left + box.width > screen.width ||
      box.top + box.height > screen.height) {
    throw std::runtime_error("the box does not lie on the screen");
  }
  const auto request =
      xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, static_cast<std::int16_t>(box.left),
                    static_cast<std::int16_t>(box.top), static_cast<std::uint16_t>(box.width),
                    static_cast<std::uint16_t>(box.height), ~0U);
  const auto image = Must(xcb_get_image_reply(connection_, request, nullptr), "the picture of the screen");
  const auto count = static_cast<std::size_t>(box.width) * static_cast<std::size_t>(box.height);
  if (static_cast<std::size_t>(xcb_get_image_data_length(image.get())) < 4 * count) {
    throw std::runtime_error("the screen has no 32 bits for a pixel");
  }
  const std::uint8_t* const bytes = xcb_get_image_data(image.get());
  Pixels pixels{box, std::vector<std::uint32_t>(count)};
  for (std::size_t place = 0; place < count; ++place) {
    const std::uint8_t* const pixel = bytes + 4 * place;
    pixels.values[place] = static_cast<std::uint32_t>(pixel[2] << 16 | pixel[1] << 8 | pixel[0]);
  }
  return pixels;
}

}  // namespace plexel::window_test
