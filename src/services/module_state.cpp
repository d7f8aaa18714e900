#include "services/module_state.h"

namespace plexel {

ModuleState& Module() {
  static ModuleState state;
  return state;
}

}  // namespace plexel
