#pragma once

namespace plexel {

/// Recomputes whether the current element counts as defined and shows or hides its tick. Ends quietly on a failure.
void UpdateDefinedMarker();

}  // namespace plexel
