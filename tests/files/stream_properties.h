#pragma once

#include <string_view>

namespace plexel {

struct World;

/// What must hold of the reader of element streams for any bytes: it refuses them, or an element comes out that is
/// saved as the same bytes. They are read as a whole stream, and as the values in one that is whole. A property that
/// does not hold ends in std::logic_error.
void CheckStream(World& world, std::string_view content);

}  // namespace plexel
