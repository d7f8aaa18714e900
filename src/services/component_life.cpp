#include "services/component_life.h"

#include <stdexcept>

#include "services/module_state.h"

namespace plexel {

ComponentLife::ComponentLife() {
  if (current_ != 0) throw std::logic_error("there is a component already, and a process has one at a time");
  Module() = ModuleState();
  current_ = ++last_;
}

ComponentLife::~ComponentLife() {
  current_ = 0;
  Module() = ModuleState();
}

}  // namespace plexel
