#include "services/module_state.h"

#include "platform/failure.h"

namespace plexel {

ModuleState& Module() {
  static ModuleState state;
  return state;
}

ctlPlexelBaseElement& CurrentElement() {
  if (Module().ctlCurrentElement == nullptr) throw Failure(FailureKind::ObjectNotSet, "there is no current element");
  return *Module().ctlCurrentElement;
}

}  // namespace plexel
