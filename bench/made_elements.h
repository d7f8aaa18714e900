#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "element/ctlPlexelBaseElement.h"

namespace bench {

using Elements = std::vector<std::shared_ptr<plexel::ctlPlexelBaseElement>>;

/// Keys as an engineer leaves them: each with a definition in layer 1, every third in all layers, some with a note.
Elements MakeElements(std::int64_t count);

}  // namespace bench
