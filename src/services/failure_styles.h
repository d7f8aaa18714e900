#pragma once

#include <utility>

#include "platform/failure.h"

namespace plexel {

/// The three failure styles of the system's procedures. A procedure without a guard is the third and needs no helper:
/// its failure reaches the caller.

/// One handler: the first failure ends the procedure and is cleared; what was done stays.
template <typename Procedure>
void EndQuietly(Procedure&& procedure) {
  try {
    std::forward<Procedure>(procedure)();
  } catch (const Failure&) {  // cleared by design
  }
}

/// The same for a procedure with a result: the result as it stood when the failure came.
template <typename Result, typename Procedure>
Result EndQuietlyWith(Result result, Procedure&& procedure) {
  try {
    std::forward<Procedure>(procedure)(result);
  } catch (const Failure&) {  // cleared by design
  }
  return result;
}

/// One failing statement is skipped, and the next one runs.
template <typename Statement>
void PassOver(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const Failure&) {  // cleared by design
  }
}

}  // namespace plexel
