#pragma once

#include <cstdint>

#include "services/boolean.h"

namespace plexel {

/// A focus mark: an oval or a rectangle. Twips; line width in pixels.
struct SurfaceShape {
  /// Place and size.
  float Left = 0, Top = 0, Width = 0, Height = 0;
  /// Colour as 0x00BBGGRR, width of the line, and whether it is drawn.
  std::int32_t BorderColor = 255;
  std::int16_t BorderWidth = 1;
  bool Visible = false;
};

/// A line of a mark. Twips; line width in pixels.
struct SurfaceLine {
  /// The two ends.
  float X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  std::int32_t BorderColor = 255;
  std::int16_t BorderWidth = 2;
  bool Visible = false;
};

/// All that an element shows, as designed. Sizes in twips.
struct Surface {
  /// Size of the whole.
  float Width = 495, Height = 495;
  bool Picture = true;  ///< the design-time icon
  /// The focus marks, the cross of the focus (linX), and the tick of a defined element (linOK).
  SurfaceShape shpOval{2280, 120, 495, 495};
  SurfaceShape shpRect{1680, 120, 495, 495};
  SurfaceLine linX1{1080, 120, 1080, 600};
  SurfaceLine linX2{840, 120, 840, 600};
  SurfaceLine linOK1{1320, 120, 1320, 600};
  SurfaceLine linOK2{1560, 120, 1560, 600};
};

}  // namespace plexel
