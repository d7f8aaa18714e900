#include "platform/platform.h"

namespace plexel {

namespace {
Platform* current = nullptr;
}

Platform& Platform::Current() {
  if (current == nullptr) throw Failure(FailureKind::ObjectNotSet, "no platform is in force");
  return *current;
}

Platform::Use::Use(Platform& platform) : previous_(current) { current = &platform; }
Platform::Use::~Use() { current = previous_; }

}  // namespace plexel
