#pragma once

#include <windows.h>

#include <cmath>

#include "forms/control.h"

namespace plexel {

/// Twips of the form model and pixels of a window, turned into each other.
class Scale {
 public:
  /// Twips, and logical pixels, of an inch.
  static constexpr float TwipsPerInch = 1440;
  static constexpr int DesignDpi = 96;

  explicit Scale(int dpi = DesignDpi) : dpi_(dpi) {}
  int Dpi() const { return dpi_; }
  int ToPixels(float twips) const {
    return static_cast<int>(std::lround(twips * static_cast<float>(dpi_) / TwipsPerInch));
  }
  float ToTwips(int pixels) const { return static_cast<float>(pixels) * TwipsPerInch / static_cast<float>(dpi_); }
  /// A measure in logical pixels.
  int Of(int logicalPixels) const { return MulDiv(logicalPixels, dpi_, DesignDpi); }
  /// A rectangle in whole pixels. Its edges are rounded, so that what touches in twips touches in pixels.
  RECT PixelRect(float left, float top, float width, float height) const {
    return {ToPixels(left), ToPixels(top), ToPixels(left + width), ToPixels(top + height)};
  }
  RECT PixelRect(const Control& control) const {
    return PixelRect(control.Left(), control.Top(), control.Width(), control.Height());
  }

 private:
  int dpi_;
};

inline int WidthOf(const RECT& rect) { return rect.right - rect.left; }
inline int HeightOf(const RECT& rect) { return rect.bottom - rect.top; }
inline bool IsEmpty(const RECT& rect) { return rect.right <= rect.left || rect.bottom <= rect.top; }
inline bool Same(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }

/// A colour of the model is one of the system's.
inline COLORREF ColourOf(std::int32_t number) { return static_cast<COLORREF>(number) & 0xFFFFFFU; }

}  // namespace plexel
