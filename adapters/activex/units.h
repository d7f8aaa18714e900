#pragma once

#include <windows.h>

#include <cmath>

#include "platform/platform.h"

namespace plexel::activex {

/// Lengths: 1440 twips and 2540 units of 0.01 mm are an inch. The screen tells how many twips a pixel is.

inline constexpr double TwipsOfInch = 1440, HimetricOfInch = 2540;

inline LONG HimetricOfTwips(float twips) {
  return static_cast<LONG>(std::lround(static_cast<double>(twips) * HimetricOfInch / TwipsOfInch));
}

inline LONG PixelsOfHimetric(LONG length, float twipsOfPixel) {
  return static_cast<LONG>(std::lround(length * TwipsOfInch / HimetricOfInch / static_cast<double>(twipsOfPixel)));
}

inline SIZE PixelsOfHimetric(SIZEL extent) {
  Screen& screen = Platform::Current().TheScreen();
  return {PixelsOfHimetric(extent.cx, screen.TwipsPerPixelX()), PixelsOfHimetric(extent.cy, screen.TwipsPerPixelY())};
}

}  // namespace plexel::activex
