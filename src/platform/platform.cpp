#include "platform/platform.h"

namespace plexel {

Platform* Platform::current_ = nullptr;

Platform& Platform::Current() {
  if (current_ == nullptr) throw Failure(FailureKind::ObjectNotSet, "no platform is in force");
  return *current_;
}

}  // namespace plexel
