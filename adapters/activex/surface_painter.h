#pragma once

#include <windows.h>

#include "element/surface.h"

namespace plexel::activex {

/// A point of a device.
struct DevicePoint {
  double x = 0, y = 0;
};

/// Where and how large a surface is drawn.
struct Canvas {
  HDC device = nullptr;
  DevicePoint origin;
  double across = 1, down = 1;  ///< units of the device for a twip
  double line = 1;              ///< units of the device for a pixel of a line's width
};

/// Draws what the element shows, and nothing behind it. Lines of shapes run inside them.
void DrawSurface(const Canvas& canvas, const Surface& surface);

/// Whether two surfaces look the same, and are of one size.
bool LookTheSame(const Surface& one, const Surface& other);

}  // namespace plexel::activex
