#pragma once

#include <cstdint>

#include "forms/control.h"

namespace plexel {

/// The key filter of a list in which nobody may type: every key but Down, Up and Return is dropped.
inline void KeepListKeys(std::int16_t& keyCode) {
  if (keyCode != key::Down && keyCode != key::Up && keyCode != key::Return) keyCode = 0;
}

}  // namespace plexel
