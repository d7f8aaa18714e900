#include "qt/element_face.h"

#include <algorithm>
#include <array>

namespace plexel {

namespace {

/// How a kind looks on the panels that come with the program.
struct FaceRow {
  enumTactisBaseElementType kind;
  PanelPartKind part;
  std::int32_t fillColor, lineColor, cornerRadius, legendSize;
  std::int32_t ledWidth, ledHeight;  ///< of the LED on a key, 0 without
};
constexpr std::int32_t KeyFill = 0xFCFBFA, KeyLine = 0xB3A18F, LedFill = 0x6AC435, LedLine = 0x4D9A1F;
constexpr std::array faces = {FaceRow{Led, PanelPartKind::Led, LedFill, LedLine, 0, 12, 0, 0},
                              FaceRow{Oval, PanelPartKind::RoundKey, KeyFill, KeyLine, 0, 14, 0, 0},
                              FaceRow{OvalLed, PanelPartKind::RoundKey, KeyFill, KeyLine, 0, 14, 10, 10},
                              FaceRow{Rect, PanelPartKind::Key, KeyFill, KeyLine, 6, 15, 0, 0},
                              FaceRow{RectLed, PanelPartKind::Key, KeyFill, KeyLine, 6, 15, 12, 6},
                              FaceRow{Key, PanelPartKind::KeySwitch, 0xDDD2C6, 0x91806F, 0, 12, 0, 0}};
constexpr std::int32_t LegendColour = 0x4F3822;

/// The LED at the upper edge of a key, never more than a third of it.
PanelPart LedOn(const PanelBox& key, const FaceRow& row) {
  PanelPart led;
  led.kind = PanelPartKind::Led;
  led.fillColor = LedFill;
  led.lineColor = LedLine;
  led.box.width = std::min(row.ledWidth, key.width / 3);
  led.box.height = std::min(row.ledHeight, key.height / 3);
  led.box.left = (key.width - led.box.width) / 2;
  led.box.top = std::min(5, key.height / 9);
  return led;
}

}  // namespace

std::vector<PanelPart> UsualFace(enumTactisBaseElementType kind, std::int32_t width, std::int32_t height) {
  const auto* const row =
      std::find_if(faces.begin(), faces.end(), [kind](const FaceRow& one) { return one.kind == kind; });
  if (row == faces.end()) return {};
  PanelPart part;
  part.kind = row->part;
  part.box = {0, 0, width, height};
  part.fillColor = row->fillColor;
  part.lineColor = row->lineColor;
  part.cornerRadius = row->cornerRadius;
  part.legendColor = LegendColour;
  part.legendSize = row->legendSize;
  std::vector<PanelPart> parts = {part};
  if (row->ledWidth > 0) parts.push_back(LedOn(part.box, *row));
  return parts;
}

}  // namespace plexel
