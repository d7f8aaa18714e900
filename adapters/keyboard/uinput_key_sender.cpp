#include "keyboard/uinput_key_sender.h"

#include <fcntl.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <thread>

namespace plexel {

namespace {

/// As many keys as the X server has; the codes behind them are of buttons.
constexpr int LastKey = 247;
/// So long a desktop may take to find a new keyboard. What is sent before is lost.
constexpr std::chrono::milliseconds Settling{500};

class KernelKeySender : public KeySender {
 public:
  explicit KernelKeySender(const std::filesystem::path& device)
      : handle_(::open(device.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)), made_(handle_ >= 0 && Make()) {}
  ~KernelKeySender() override {
    if (made_) ::ioctl(handle_, UI_DEV_DESTROY);
    if (handle_ >= 0) ::close(handle_);
  }
  KernelKeySender(const KernelKeySender&) = delete;
  KernelKeySender& operator=(const KernelKeySender&) = delete;

  bool IsUsable() const { return made_; }
  bool Send(int evdev, bool down) override {
    if (evdev <= KEY_RESERVED || evdev > LastKey) return false;
    std::this_thread::sleep_until(ready_);
    std::array<input_event, 2> events{};
    events[0].type = EV_KEY;
    events[0].code = static_cast<std::uint16_t>(evdev);
    events[0].value = down ? 1 : 0;
    events[1].type = EV_SYN;
    events[1].code = SYN_REPORT;
    ssize_t written = 0;
    do {
      written = ::write(handle_, events.data(), sizeof(events));
    } while (written < 0 && errno == EINTR);
    return written == static_cast<ssize_t>(sizeof(events));
  }

 private:
  bool Make() {
    if (::ioctl(handle_, UI_SET_EVBIT, EV_KEY) != 0) return false;
    for (int key = KEY_RESERVED + 1; key <= LastKey; ++key) {
      if (::ioctl(handle_, UI_SET_KEYBIT, key) != 0) return false;
    }
    uinput_setup setup{};
    setup.id.bustype = BUS_VIRTUAL;
    std::strncpy(setup.name, "Plexel virtual panel", sizeof(setup.name) - 1);
    return ::ioctl(handle_, UI_DEV_SETUP, &setup) == 0 && ::ioctl(handle_, UI_DEV_CREATE) == 0;
  }

  int handle_;
  bool made_;
  std::chrono::steady_clock::time_point ready_ = std::chrono::steady_clock::now() + Settling;
};

}  // namespace

std::unique_ptr<KeySender> KeySenderOfKernel(const std::filesystem::path& device) {
  auto sender = std::make_unique<KernelKeySender>(device);
  return sender->IsUsable() ? std::move(sender) : nullptr;
}

}  // namespace plexel
