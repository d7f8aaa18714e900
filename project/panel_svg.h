#pragma once

#include <string>

#include "files/panel_file.h"

namespace plexel {

/// Whether small letters tell the place of each element that does not bear it as its legend.
enum class PanelPlaces { Hidden, Shown };

/// The picture of a panel as an SVG document of its own, in pixels at zoom 100: its parts in the order of drawing, lit
/// and lettered as the editor shows them. Each element is a group with its place as the title. No script, no style
/// sheet, nothing from outside.
std::string PanelSvg(const Panel& panel, PanelPlaces places = PanelPlaces::Hidden);

}  // namespace plexel
