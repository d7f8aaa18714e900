#include "forms/acting.h"

namespace plexel {

void CheckUsable(const Control& control) {
  const std::string_view hindrance = control.Hindrance();
  if (!hindrance.empty()) throw Failure(FailureKind::InvalidCall, control.FullName() + ' ' + std::string(hindrance));
}

void MoveTo(Grid& grid, int row, int col) {
  const OpenForm open(grid.Owner());
  grid.Current(row, col);
  if (open) grid.ScrollIntoView(row, col);
}

}  // namespace plexel
