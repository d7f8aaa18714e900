#pragma once

#include <vector>

#include "files/panel_file.h"

namespace plexel {

/// The parts of a panel that stand for an element of a kind, at zoom 100 from (0, 0): the key, the LED, or both. None
/// for no kind.
std::vector<PanelPart> UsualFace(enumTactisBaseElementType kind, std::int32_t width, std::int32_t height);

}  // namespace plexel
