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
  virtual KeyboardHooks& Hooks() = 0;
  virtual KeyState& Keys() = 0;
  virtual KeyboardLayout& Layout() = 0;
  virtual Registry& UserRegistry() = 0;
  virtual Screen& TheScreen() = 0;
  virtual OsVersion& Version() = 0;
  virtual HelpViewer& Help() = 0;
  virtual ModalLoop& Modal() = 0;
  virtual MessageBoxes& Messages() = 0;
  virtual EventPump& Events() = 0;

  /// The platform in force; Failure (ObjectNotSet) when there is none.
  static Platform& Current();

 private:
  friend class PlatformInForce;
  static Platform* current_;
};

}  // namespace plexel
