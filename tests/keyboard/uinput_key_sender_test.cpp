#include "keyboard/uinput_key_sender.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>

#include <cerrno>
#include <cstdarg>
#include <fstream>
#include <string>
#include <vector>

#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel::testing {
namespace {

/// What the kernel is asked for while this stands, in place of the kernel.
struct Kernel {
  static inline Kernel* inForce = nullptr;
  Kernel() { inForce = this; }
  ~Kernel() { inForce = nullptr; }
  Kernel(const Kernel&) = delete;
  Kernel& operator=(const Kernel&) = delete;

  int Answer(unsigned long request, void* argument) {
    if (request == UI_SET_KEYBIT) keys.push_back(static_cast<int>(reinterpret_cast<std::intptr_t>(argument)));
    if (request == UI_SET_EVBIT) kinds.push_back(static_cast<int>(reinterpret_cast<std::intptr_t>(argument)));
    if (request == UI_DEV_SETUP) name = static_cast<uinput_setup*>(argument)->name;
    if (request == UI_DEV_CREATE) ++made;
    if (request == UI_DEV_DESTROY) ++gone;
    if (request != refused) return 0;
    errno = EINVAL;
    return -1;
  }

  std::vector<int> keys, kinds;
  std::string name;
  int made = 0, gone = 0;
  unsigned long refused = 0;
};

class KernelKeys : public ::testing::Test {
 protected:
  std::vector<input_event> Written() {
    std::ifstream file(device, std::ios::binary);
    std::vector<input_event> events;
    for (input_event event{}; file.read(reinterpret_cast<char*>(&event), sizeof(event));) events.push_back(event);
    return events;
  }

  TemporaryDirectory directory;
  const std::filesystem::path device = directory.Put("uinput", "");
  Kernel kernel;
};

TEST_F(KernelKeys, AKeyboardIsMadeWithEveryKeyAndGoesWithTheSender) {
  auto sender = KeySenderOfKernel(device);
  ASSERT_NE(sender, nullptr);
  EXPECT_THAT(kernel.kinds, ::testing::ElementsAre(EV_KEY));
  ASSERT_EQ(kernel.keys.size(), 247U);
  EXPECT_EQ(kernel.keys.front(), KEY_ESC);
  EXPECT_EQ(kernel.keys.back(), 247);
  EXPECT_EQ(kernel.name, "Plexel virtual panel");
  EXPECT_EQ(kernel.made, 1);
  EXPECT_EQ(kernel.gone, 0);
  sender.reset();
  EXPECT_EQ(kernel.gone, 1);
}

TEST_F(KernelKeys, EachKeyIsWrittenWithTheEndOfItsReport) {
  const auto sender = KeySenderOfKernel(device);
  ASSERT_NE(sender, nullptr);
  EXPECT_TRUE(sender->Send(KEY_F13, true));
  EXPECT_TRUE(sender->Send(KEY_F13, false));
  const std::vector<input_event> events = Written();
  ASSERT_EQ(events.size(), 4U);
  for (const std::size_t event : {0U, 2U}) {
    EXPECT_EQ(events[event].type, EV_KEY);
    EXPECT_EQ(events[event].code, KEY_F13);
    EXPECT_EQ(events[event].value, event == 0 ? 1 : 0);
    EXPECT_EQ(events[event + 1].type, EV_SYN);
    EXPECT_EQ(events[event + 1].code, SYN_REPORT);
  }
}

TEST_F(KernelKeys, WritingThatASignalInterruptsGoesOnAndADeviceThatFailsIsToldOf) {
  const FileFaults faults(device, "write", {EINTR, 0, EIO});
  const auto sender = KeySenderOfKernel(device);
  ASSERT_NE(sender, nullptr);
  EXPECT_TRUE(sender->Send(KEY_A, true));
  EXPECT_FALSE(sender->Send(KEY_A, false));
  EXPECT_EQ(Written().size(), 2U);
}

TEST_F(KernelKeys, WhatIsNoKeyIsRefusedAndNotWritten) {
  const auto sender = KeySenderOfKernel(device);
  ASSERT_NE(sender, nullptr);
  for (const int code : {-1, 0, 248, 0x110}) EXPECT_FALSE(sender->Send(code, true)) << code;
  EXPECT_TRUE(Written().empty());
}

TEST_F(KernelKeys, WithoutTheDeviceOrARightToItThereIsNoSender) {
  EXPECT_EQ(KeySenderOfKernel(device / "none"), nullptr);
  for (const unsigned long request :
       {static_cast<unsigned long>(UI_SET_EVBIT), static_cast<unsigned long>(UI_SET_KEYBIT),
        static_cast<unsigned long>(UI_DEV_SETUP), static_cast<unsigned long>(UI_DEV_CREATE)}) {
    kernel.refused = request;
    EXPECT_EQ(KeySenderOfKernel(device), nullptr) << request;
  }
  EXPECT_EQ(kernel.gone, 0);
}

}  // namespace
}  // namespace plexel::testing

/// The system's function by its own name. What is asked of anything but a keyboard to be made goes on to it.
extern "C" __attribute__((visibility("default"))) int PlexelIoctl(int handle, unsigned long request,
                                                                  ...) __asm__("ioctl");
int PlexelIoctl(int handle, unsigned long request, ...) {
  va_list more;
  va_start(more, request);
  void* const argument = va_arg(more, void*);
  va_end(more);
  using plexel::testing::Kernel;
  if (Kernel::inForce != nullptr && _IOC_TYPE(request) == UINPUT_IOCTL_BASE) {
    return Kernel::inForce->Answer(request, argument);
  }
  return reinterpret_cast<int (*)(int, unsigned long, ...)>(::dlsym(RTLD_NEXT, "ioctl"))(handle, request, argument);
}
