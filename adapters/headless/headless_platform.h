#pragma once

#include "headless/faults.h"
#include "headless/headless_hooks.h"
#include "headless/headless_keys.h"
#include "headless/headless_layout.h"
#include "headless/headless_message_boxes.h"
#include "headless/headless_modal_loop.h"
#include "headless/headless_system.h"
#include "headless/memory_registry.h"
#include "platform/platform.h"

namespace plexel {

/// An operating system without a screen and without a keyboard. Whatever it answers can be set, and every port can be
/// made to fail through `faults`.
class HeadlessPlatform : public Platform {
 public:
  /// Nothing fails, no key is down, nothing is stored.
  HeadlessPlatform();
  HeadlessHooks& Hooks() override { return hooks_; }
  HeadlessKeys& Keys() override { return keys_; }
  HeadlessLayout& Layout() override { return layout_; }
  MemoryRegistry& UserRegistry() override { return registry_; }
  HeadlessScreen& TheScreen() override { return screen_; }
  HeadlessVersion& Version() override { return version_; }
  HeadlessHelp& Help() override { return help_; }
  HeadlessModalLoop& Modal() override { return modal_; }
  HeadlessMessageBoxes& Messages() override { return messages_; }
  HeadlessEvents& Events() override { return events_; }

  /// What is to fail.
  Faults faults;

 private:
  HeadlessHooks hooks_;
  HeadlessKeys keys_;
  HeadlessLayout layout_;
  MemoryRegistry registry_;
  HeadlessScreen screen_;
  HeadlessVersion version_;
  HeadlessHelp help_;
  HeadlessModalLoop modal_;
  HeadlessMessageBoxes messages_;
  HeadlessEvents events_;
};

}  // namespace plexel
