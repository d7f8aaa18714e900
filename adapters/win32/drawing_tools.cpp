#include "win32/drawing_tools.h"

#include <cmath>

namespace plexel {

namespace {

constexpr float DialogPoints = 9, PointsPerInch = 72;

/// The family in which the system writes its own dialogs.
LOGFONTW DialogFont() {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return metrics.lfMessageFont;
}

}  // namespace

DrawingTools::~DrawingTools() {
  for (const auto& [look, font] : fonts_) DeleteObject(font);
  for (const auto& [colour, brush] : brushes_) DeleteObject(brush);
}

HFONT DrawingTools::Font(const FontLook& look, const Scale& scale) {
  const float points = look.points > 0 ? look.points : DialogPoints;
  const int pixels = static_cast<int>(std::lround(points * static_cast<float>(scale.Dpi()) / PointsPerInch));
  HFONT& font = fonts_[{look.bold, look.underlined, pixels}];
  if (font != nullptr) return font;
  LOGFONTW wanted = DialogFont();
  wanted.lfHeight = -pixels;
  wanted.lfWidth = 0;
  wanted.lfWeight = look.bold ? FW_BOLD : FW_NORMAL;
  wanted.lfUnderline = look.underlined ? TRUE : FALSE;
  font = CreateFontIndirectW(&wanted);
  return font;
}

HBRUSH DrawingTools::Brush(COLORREF colour) {
  HBRUSH& brush = brushes_[colour];
  if (brush == nullptr) brush = CreateSolidBrush(colour);
  return brush;
}

}  // namespace plexel
