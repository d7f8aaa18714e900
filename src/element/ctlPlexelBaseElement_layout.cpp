#include "element/ctlPlexelBaseElement.h"

#include "platform/platform.h"
#include "services/conversion.h"

namespace plexel {

/// One direction of the layout.
struct ctlPlexelBaseElement::Axis {
  float (Screen::*twipsPerPixel)();
  float Surface::* extent;
  float SurfaceShape::* start;
  float SurfaceShape::* length;
};

namespace {

constexpr float smallestShape = 5;  ///< twips

float Single(double value) { return static_cast<float>(value); }

}  // namespace

/// Sizes the surface and both shapes and gives the extent of the surface. What has no result ends it where it stands.
double ctlPlexelBaseElement::LayOutShapes(const Axis& axis, std::int16_t size) {
  const auto twipsPerPixel = [&]() -> double { return (Platform::Current().TheScreen().*axis.twipsPerPixel)(); };

  const double extent = RoundToInt32(size * twipsPerPixel() / 100 * zoomFactor_ * dpiFontScaleFactor_);
  surface_.*axis.extent = Single(extent);
  surface_.shpRect.*axis.start = Single(RoundToInt32(focusWidth_ * twipsPerPixel()));
  surface_.shpOval.*axis.start = surface_.shpRect.*axis.start;

  const double outer = size * twipsPerPixel() / 100 * zoomFactor_;
  const std::int32_t inner = RoundToInt32((outer - focusWidth_ * twipsPerPixel()) * dpiFontScaleFactor_);
  surface_.shpRect.*axis.length = inner < 1 ? smallestShape : Single(inner);
  surface_.shpOval.*axis.length = surface_.shpRect.*axis.length;
  return extent;
}

std::int32_t ctlPlexelBaseElement::CrossMargin() const {
  return RoundToInt32(static_cast<double>(zoomFactor_) * static_cast<std::int32_t>(xElementSize_));
}

void ctlPlexelBaseElement::LayOutHorizontally() {
  if (sizeX_ == 0 || zoomFactor_ == 0) return;
  constexpr Axis axis{&Screen::TwipsPerPixelX, &Surface::Width, &SurfaceShape::Left, &SurfaceShape::Width};
  const double width = LayOutShapes(axis, sizeX_);

  Surface& s = surface_;
  const double margin = CrossMargin();
  s.linX1.X1 = Single(s.shpRect.Left + margin);
  s.linX1.X2 = Single(static_cast<double>(s.shpRect.Width) + s.shpRect.Left - margin);
  s.linX2.X1 = s.linX1.X2;
  s.linX2.X2 = s.linX1.X1;
  s.linOK1.X1 = Single(width / 3);
  s.linOK1.X2 = Single(width / 2);
  s.linOK2.X1 = Single(width / 2);
  s.linOK2.X2 = Single(width / 4 * 3);
}

void ctlPlexelBaseElement::LayOutVertically() {
  if (sizeY_ == 0 || zoomFactor_ == 0) return;
  constexpr Axis axis{&Screen::TwipsPerPixelY, &Surface::Height, &SurfaceShape::Top, &SurfaceShape::Height};
  const double height = LayOutShapes(axis, sizeY_);

  Surface& s = surface_;
  const double margin = CrossMargin();
  s.linX1.Y1 = Single(s.shpRect.Top + margin);
  s.linX1.Y2 = Single(static_cast<double>(s.shpRect.Height) + s.shpRect.Top - margin);
  s.linX2.Y1 = s.linX1.Y1;
  s.linX2.Y2 = s.linX1.Y2;
  s.linOK1.Y1 = Single(height / 2);
  s.linOK1.Y2 = Single(height / 4 * 3);
  s.linOK2.Y1 = Single(height / 4 * 3);
  s.linOK2.Y2 = Single(height / 4);
}

void ctlPlexelBaseElement::ReapplySizes() {
  SizeX(SizeX());
  SizeY(SizeY());
}

}  // namespace plexel
