#include "forms/acting.h"

namespace plexel {

void CheckUsable(const Control& control) {
  const std::string_view hindrance = control.Hindrance();
  if (!hindrance.empty()) throw Failure(FailureKind::InvalidCall, control.FullName() + ' ' + std::string(hindrance));
}

bool GetsKeys(const Control* focus) { return focus != nullptr && focus->OwnHindrance().empty(); }

void MoveTo(Grid& grid, int row, int col) {
  const OpenForm open(grid.Owner());
  grid.Current(row, col);
  if (open) grid.ScrollIntoView(row, col);
}

}  // namespace plexel
