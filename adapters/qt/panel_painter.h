#pragma once

#include <QPainter>

#include "element/surface.h"
#include "files/panel_file.h"

namespace plexel {

/// Draws the parts of a panel and the surfaces of its elements. The painter's units are pixels at zoom 100 for parts
/// and logical pixels of the screen for surfaces.
void DrawPart(QPainter& painter, const PanelPart& part);
/// The same in two steps: the part without its legend, and the legend on it.
void DrawBody(QPainter& painter, const PanelPart& part);
void DrawLegend(QPainter& painter, const PanelPart& part);
/// What a part covers at most, its legend included.
QRect BoundsOf(const PanelPart& part);

/// Where the tick of a defined element stands: across the element as it was designed, small in the upper right corner
/// of a rectangle or an oval, where it leaves a legend readable, or nowhere.
enum class TickPlace { AsDesigned, Corner, RoundCorner, Nowhere };
/// What an element shows, at the painter's origin.
void DrawSurface(QPainter& painter, const Surface& surface, TickPlace tick = TickPlace::AsDesigned);
/// The tick in a corner by itself, for who draws the surface with the tick nowhere, and what it covers; empty where no
/// tick is to be seen.
void DrawCornerTick(QPainter& painter, const Surface& surface, TickPlace tick);
QRectF CornerTickBounds(const Surface& surface, TickPlace tick);

/// The mark of a chosen element, round a box in logical pixels, and how far it reaches beyond the box.
void DrawChoice(QPainter& painter, const QRect& box, const QColor& colour);
inline constexpr int ChoiceReach = 3;
/// The mark of an element that a search has found, inside its box in logical pixels.
void DrawFound(QPainter& painter, const QRect& box);
/// A label along the lower edge of a box in logical pixels, on a light ground, elided. `scale` is that of the picture.
/// Nothing is drawn where it would cover the middle of the box.
void DrawLabel(QPainter& painter, const QRect& box, const QString& text, qreal scale);

}  // namespace plexel
