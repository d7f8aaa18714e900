#pragma once

#include <memory>

#include "keyboard/hook_table.h"
#include "platform/platform.h"
#include "qt/keyboard.h"
#include "qt/qt_message_boxes.h"
#include "qt/qt_modal_loop.h"

namespace plexel {

class X11Capture;

/// 15 twips to the logical pixel, 96 logical pixels to the inch: the toolkit scales to the real screen.
class LogicalScreen : public Screen {
 public:
  float TwipsPerPixelX() override;
  float TwipsPerPixelY() override;
  std::intptr_t CreateInformationContext() override { return 1; }
  std::int32_t DeviceCapability(std::intptr_t context, std::int32_t index) override;
  void DeleteContext(std::intptr_t) override {}
};

/// A system whose keys have names of their own on both sides.
class DesktopVersion : public OsVersion {
 public:
  void Get(OsVersionRecord& record) override;
};

class QtEventPump : public EventPump {
 public:
  explicit QtEventPump(FormDesk& desk) : desk_(desk) {}
  /// Handles what waits, apart from what the user has done, which keeps its place in the order of events.
  void DoEvents() override;

 private:
  FormDesk& desk_;
};

/// The desktop as the component sees it. The application object must exist before and outlive it.
class QtPlatform : public Platform {
 public:
  QtPlatform(Registry& registry, HelpViewer& help);
  ~QtPlatform() override;

  HookTable& Hooks() override { return hooks_; }
  Keyboard& Keys() override { return keys_; }
  XkbLayout& Layout() override { return keys_.Layout(); }
  Registry& UserRegistry() override { return registry_; }
  LogicalScreen& TheScreen() override { return screen_; }
  DesktopVersion& Version() override { return version_; }
  HelpViewer& Help() override { return help_; }
  QtModalLoop& Modal() override { return modal_; }
  QtMessageBoxes& Messages() override { return messages_; }
  QtEventPump& Events() override { return events_; }

  /// Whether capture works as on an X server: every key arrives, and the desktop's task keys can be held back.
  bool HasFullCapture() const { return capture_ != nullptr; }

 private:
  Registry& registry_;
  HelpViewer& help_;
  HookTable hooks_;
  Keyboard keys_;
  LogicalScreen screen_;
  DesktopVersion version_;
  QtModalLoop modal_;
  QtMessageBoxes messages_;
  QtEventPump events_;
  std::unique_ptr<X11Capture> capture_;
};

}  // namespace plexel
