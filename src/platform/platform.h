#pragma once

#include "platform/failure.h"
#include "platform/interaction.h"
#include "platform/keyboard.h"
#include "platform/system.h"

namespace plexel {

/// The operating system as the component sees it: one port for each thing that it asks. Ports are asked anew at each
/// use and every one of them may throw Failure.
class Platform {
 public:
  virtual ~Platform() = default;
  /// Hooks that see keys ahead of windows.
  virtual KeyboardHooks& Hooks() = 0;
  /// Which keys are down.
  virtual KeyState& Keys() = 0;
  /// The characters on the keys.
  virtual KeyboardLayout& Layout() = 0;
  /// Where the places of dialogs are kept.
  virtual Registry& UserRegistry() = 0;
  /// The measures of the screen.
  virtual Screen& TheScreen() = 0;
  /// The kind of operating system.
  virtual OsVersion& Version() = 0;
  /// Shows topics of help files.
  virtual HelpViewer& Help() = 0;
  /// Shows forms.
  virtual ModalLoop& Modal() = 0;
  /// Shows message boxes.
  virtual MessageBoxes& Messages() = 0;
  /// Handles waiting events.
  virtual EventPump& Events() = 0;

  /// The platform in force; Failure (ObjectNotSet) when there is none.
  static Platform& Current();

 private:
  friend class PlatformInForce;
  static Platform* current_;
};

}  // namespace plexel
