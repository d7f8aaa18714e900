#pragma once

#include <QPainter>

#include "element/surface.h"
#include "files/panel_file.h"

namespace plexel {

/// Draws the parts of a panel and the surfaces of its elements. The painter's units are pixels at zoom 100 for parts
/// and logical pixels of the screen for surfaces.
void DrawPart(QPainter& painter, const PanelPart& part);
/// What an element shows, at the painter's origin.
void DrawSurface(QPainter& painter, const Surface& surface);

}  // namespace plexel
