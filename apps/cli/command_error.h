#pragma once

#include <stdexcept>

namespace plexel {

/// A command that cannot be carried out as it is written. It is the script's fault, no failure of the system.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace plexel
