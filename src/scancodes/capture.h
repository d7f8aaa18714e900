#pragma once

#include <cstdint>

#include "services/boolean.h"

namespace plexel {

/// Starts or stops capture for a target (0 configuration dialog, 2 wizard). The result of the hook call that it made,
/// not 0 on success; 0 when it did nothing. An exception that is no Failure leaves capture off.
std::int32_t SetDirectInput(Boolean bActive, std::int32_t lngTarget);
/// Capture off, whatever its state: all hooks go that are installed, and nobody is told.
void DropCapture();
/// The same, and the host is told when capture was on.
void AbandonCapture();

/// A member of each dialog that can start capture. As the dialog is made and as it goes, the hooks that a failed start
/// or stop has left installed are removed, and capture is off then. One that cannot be removed is tried again the next
/// time. A capture that runs as the dialog is made goes on.
class LeftHooks {
 public:
  LeftHooks();
  ~LeftHooks() { Remove(); }
  LeftHooks(const LeftHooks&) = delete;
  LeftHooks& operator=(const LeftHooks&) = delete;

 private:
  static void Remove();
};

}  // namespace plexel
