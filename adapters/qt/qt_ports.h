#pragma once

#include <memory>
#include <utility>

#include "keyboard/desktop_keyboard.h"
#include "keyboard/hook_table.h"
#include "qt/keyboard.h"
#include "qt/qt_message_boxes.h"
#include "qt/qt_modal_loop.h"
#include "qt/qt_platform.h"

namespace plexel {

class DesktopCapture;

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

/// The ports of a QtPlatform.
struct QtPlatform::Ports {
  Ports(Registry& userRegistry, HelpViewer& helpViewer, std::unique_ptr<DesktopKeyboard> keyboard);
  ~Ports();

  Registry& registry;
  HelpViewer& help;
  HookTable hooks;
  Keyboard keys;
  LogicalScreen screen;
  DesktopVersion version;
  QtModalLoop modal;
  QtMessageBoxes messages;
  QtEventPump events;
  std::unique_ptr<DesktopCapture> capture;
};

/// The platform with its ports as the classes that they are, for those who look into open dialogs.
class OpenQtPlatform : public QtPlatform {
 public:
  using QtPlatform::QtPlatform;
  OpenQtPlatform(Registry& registry, HelpViewer& help, std::unique_ptr<DesktopKeyboard> keyboard)
      : QtPlatform(registry, help, std::move(keyboard)) {}
  HookTable& Hooks() override { return Inside().hooks; }
  Keyboard& Keys() override { return Inside().keys; }
  TableLayout& Layout() override { return Inside().keys.Layout(); }
  QtModalLoop& Modal() override { return Inside().modal; }
  QtMessageBoxes& Messages() override { return Inside().messages; }
};

}  // namespace plexel
