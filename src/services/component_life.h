#pragma once

#include <cstdint>

namespace plexel {

/// The life of a component: from its start to its end the module state is its own, fresh at the start and forgotten at
/// the end. Each life has a number, by which an element knows whether its component still lives.
class ComponentLife {
 public:
  /// std::logic_error while another component lives.
  ComponentLife();
  ~ComponentLife();
  ComponentLife(const ComponentLife&) = delete;
  ComponentLife& operator=(const ComponentLife&) = delete;

  /// The number of the life that lasts, 0 while there is none.
  static std::uint32_t Current() { return current_; }

 private:
  inline static std::uint32_t current_ = 0, last_ = 0;
};

}  // namespace plexel
