#pragma once

#include <cstdint>

#include "platform/failure.h"
#include "platform/platform.h"

namespace plexel {

/// A platform whose keys are all up with their toggle bit set, and which has nothing else.
class ToggledPlatform : public Platform, public KeyState {
 public:
  std::int16_t Asynchronous(std::int32_t) override { return 0x0001; }
  std::int16_t Synchronous(std::int32_t) override { return 0x0001; }
  KeyState& Keys() override { return *this; }
  KeyboardHooks& Hooks() override { return Nothing<KeyboardHooks>(); }
  KeyboardLayout& Layout() override { return Nothing<KeyboardLayout>(); }
  Registry& UserRegistry() override { return Nothing<Registry>(); }
  Screen& TheScreen() override { return Nothing<Screen>(); }
  OsVersion& Version() override { return Nothing<OsVersion>(); }
  HelpViewer& Help() override { return Nothing<HelpViewer>(); }
  ModalLoop& Modal() override { return Nothing<ModalLoop>(); }
  MessageBoxes& Messages() override { return Nothing<MessageBoxes>(); }
  EventPump& Events() override { return Nothing<EventPump>(); }

 private:
  template <typename Port>
  static Port& Nothing() {
    throw Failure(FailureKind::Platform, "there is no such port");
  }
};

}  // namespace plexel
