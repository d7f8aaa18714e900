#pragma once

#include <memory>

#include "win32/native_hooks.h"
#include "win32/native_keyboard.h"
#include "win32/native_message_boxes.h"
#include "win32/native_modal_loop.h"
#include "win32/native_system.h"
#include "win32/win32_platform.h"

namespace plexel {

/// Handles what waits, apart from what the user has done, which keeps its place in the order of events.
class NativeEventPump : public EventPump {
 public:
  explicit NativeEventPump(FormDesk& desk) : desk_(desk) {}
  void DoEvents() override;

 private:
  FormDesk& desk_;
};

/// The ports of a Win32Platform.
struct Win32Platform::Ports {
  /// With null the system's registry.
  explicit Ports(Registry* given) : registry(given != nullptr ? *given : systemRegistry), hooks(modal) {}

  NativeRegistry systemRegistry;
  Registry& registry;
  NativeScreen screen;
  NativeVersion version;
  NativeHelp help;
  NativeKeyState keys;
  NativeLayout layout;
  NativeModalLoop modal;
  NativeHooks hooks;
  NativeMessageBoxes messages;
  NativeEventPump events{modal};
};

/// The platform with its ports as the classes that they are, for those who look into open dialogs.
class OpenWin32Platform : public Win32Platform {
 public:
  using Win32Platform::Win32Platform;
  NativeHooks& Hooks() override { return Inside().hooks; }
  NativeModalLoop& Modal() override { return Inside().modal; }
  NativeHelp& Help() override { return Inside().help; }
};

}  // namespace plexel
