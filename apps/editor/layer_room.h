#pragma once

#include <cstdint>

#include "element/ctlPlexelBaseElement.h"
#include "services/element_types.h"

namespace plexel {

/// The code bytes of a layer, without end marks.
struct LayerRoom {
  std::int32_t used = 0, free = 0;
  bool operator==(const LayerRoom&) const = default;
};

/// The room of a layer, 1 to 4, under the limit in force.
LayerRoom RoomOf(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer);
/// The same under the limit of the element, whose record it is; the limit in force stays.
LayerRoom RoomOf(const ctlPlexelBaseElement& element, const udtTactisBaseElement_ScanCodeInfo& record,
                 std::int32_t layer);

}  // namespace plexel
