#include <xcb/xtest.h>

#include <cstdint>
#include <cstdlib>

#include "keyboard/key_sender.h"

namespace plexel {

namespace {

constexpr int FirstKeycode = 8, LastKeycode = 255;

class ServerKeySender : public KeySender {
 public:
  ServerKeySender() : connection_(xcb_connect(nullptr, nullptr)) {}
  ~ServerKeySender() override { xcb_disconnect(connection_); }
  ServerKeySender(const ServerKeySender&) = delete;
  ServerKeySender& operator=(const ServerKeySender&) = delete;

  bool IsUsable() const {
    if (xcb_connection_has_error(connection_) != 0) return false;
    const auto* const extension = xcb_get_extension_data(connection_, &xcb_test_id);
    return extension != nullptr && extension->present != 0;
  }
  bool Send(int evdev, bool down) override {
    const int keycode = evdev + FirstKeycode;
    if (evdev < 0 || keycode > LastKeycode) return false;
    // The answer of the server is waited for: a sender that ends behind this has sent.
    xcb_generic_error_t* const error =
        xcb_request_check(connection_, xcb_test_fake_input_checked(connection_, down ? XCB_KEY_PRESS : XCB_KEY_RELEASE,
                                                                   static_cast<std::uint8_t>(keycode), XCB_CURRENT_TIME,
                                                                   XCB_WINDOW_NONE, 0, 0, 0));
    const bool taken = error == nullptr && xcb_connection_has_error(connection_) == 0;
    std::free(error);
    return taken;
  }

 private:
  xcb_connection_t* connection_;
};

}  // namespace

std::unique_ptr<KeySender> KeySenderOfXServer() {
  auto sender = std::make_unique<ServerKeySender>();
  return sender->IsUsable() ? std::move(sender) : nullptr;
}

}  // namespace plexel
