#pragma once

#include <QFont>

namespace plexel {

/// Pixels of a size in points, at 15 twips to the pixel.
int FontPixels(double points);
/// The font of all dialogs: 9 points without serifs.
QFont DialogFont();

}  // namespace plexel
