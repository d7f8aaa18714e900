#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/platform.h"

namespace plexel {

/// Windows as the component sees it, on the thread that makes it: its hooks, keys and layouts, and dialogs as windows
/// of its own controls. One at a time.
class Win32Platform : public Platform {
 public:
  /// The places of dialogs are kept in the system's registry.
  Win32Platform();
  /// They are kept in a registry that outlives the platform.
  explicit Win32Platform(Registry& registry);
  ~Win32Platform() override;

  KeyboardHooks& Hooks() override;
  KeyState& Keys() override;
  KeyboardLayout& Layout() override;
  Registry& UserRegistry() override;
  Screen& TheScreen() override;
  OsVersion& Version() override;
  HelpViewer& Help() override;
  ModalLoop& Modal() override;
  MessageBoxes& Messages() override;
  EventPump& Events() override;

  /// Takes the open dialogs away, whose host has gone: each closes as by its close box, and whoever has shown it goes
  /// on.
  void CloseDialogs();

  /// Tells the user, and a debugger, of a failure that came out of one of his acts.
  void Report(const std::string& what);
  /// Shows the text of such a failure; without it the debugger alone tells.
  void OnFailure(std::function<void(const std::string& what)> show);

 protected:
  /// The ports, which derived platforms may reach.
  struct Ports;
  /// The ports.
  Ports& Inside() { return *ports_; }

 private:
  std::unique_ptr<Ports> ports_;
};

}  // namespace plexel
