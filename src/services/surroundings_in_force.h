#pragma once

#include "services/surroundings.h"

namespace plexel {

/// Makes surroundings the current ones for the life of this object; they must outlive it.
class SurroundingsInForce {
 public:
  explicit SurroundingsInForce(Surroundings& surroundings) : previous_(Surroundings::current_) {
    Surroundings::current_ = &surroundings;
  }
  ~SurroundingsInForce() { Surroundings::current_ = previous_; }
  SurroundingsInForce(const SurroundingsInForce&) = delete;
  SurroundingsInForce& operator=(const SurroundingsInForce&) = delete;

 private:
  Surroundings* previous_;
};

}  // namespace plexel
