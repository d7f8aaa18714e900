#pragma once

#include "platform/platform.h"

namespace plexel {

/// Makes a platform the current one for the life of this object; the platform must outlive it.
class PlatformInForce {
 public:
  explicit PlatformInForce(Platform& platform) : previous_(Platform::current_) { Platform::current_ = &platform; }
  ~PlatformInForce() { Platform::current_ = previous_; }
  PlatformInForce(const PlatformInForce&) = delete;
  PlatformInForce& operator=(const PlatformInForce&) = delete;

 private:
  Platform* previous_;
};

}  // namespace plexel
