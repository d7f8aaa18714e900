#pragma once

#include "platform/window.h"

struct HWND__;

namespace plexel {

/// A window of the host, over which dialogs open. Whatever a host hands in as the parent window gives one of these.
class NativeWindow : public Window {
 public:
  /// The window's handle at this moment, null when it has none. Dialogs belong to the top-level window around it.
  virtual HWND__* Handle() const = 0;
};

}  // namespace plexel
