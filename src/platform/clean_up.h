#pragma once

#include <utility>

namespace plexel {

/// Leaves nothing half done behind an exception, of whatever kind, which goes on to the caller.

/// Runs an action that cannot fail at the end of a scope.
template <typename Action>
class AtEnd {
 public:
  explicit AtEnd(Action action) : action_(std::move(action)) {}
  ~AtEnd() { action_(); }
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;

 private:
  Action action_;
};

/// Runs a procedure and undoes it when it throws. What undoing throws goes on in place of the first exception.
template <typename Procedure, typename Undo>
decltype(auto) OrUndo(Procedure&& procedure, Undo&& undo) {
  try {
    return std::forward<Procedure>(procedure)();
  } catch (...) {
    std::forward<Undo>(undo)();
    throw;
  }
}

/// Runs a procedure and then its clean-up, which may throw too, whatever the procedure throws.
template <typename Procedure, typename CleanUp>
void AndThen(Procedure&& procedure, CleanUp&& cleanUp) {
  OrUndo(std::forward<Procedure>(procedure), cleanUp);
  cleanUp();
}

}  // namespace plexel
