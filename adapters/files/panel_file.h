#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/boolean.h"
#include "services/element_types.h"

namespace plexel {

/// The picture of a display unit. All places are pixels at zoom 100, colours are 0x00BBGGRR.

struct PanelBox {
  std::int32_t left = 0, top = 0, width = 0, height = 0;
  bool operator==(const PanelBox&) const = default;
};

enum class PanelPartKind { Housing, Screen, Key, RoundKey, KeySwitch, Led, Legend };

enum class LegendAlignment { Left, Center, Right };

/// The element that lies on a part.
struct PanelElement {
  std::string id;  ///< its place in a project
  enumTactisBaseElementType type{};
  std::int16_t sizeX = 0, sizeY = 0;
  std::array<std::int32_t, 8> hardwareNumberKeys = {-1, -1, -1, -1, -1, -1, -1, -1};
  std::int32_t hardwareNumberLed = 0, hardwareNumberButton = 0;
};

/// One thing to draw.
struct PanelPart {
  PanelPartKind kind{};
  PanelBox box;
  std::int32_t fillColor = 0xFFFFFF, lineColor = 0;
  std::int32_t cornerRadius = 0;
  std::string legend;  ///< may have line breaks; empty for none
  std::int32_t legendColor = 0, legendSize = 12;
  LegendAlignment legendAlignment = LegendAlignment::Center;
  std::optional<PanelElement> element;
};

struct Panel {
  std::string title;
  std::int32_t width = 0, height = 0;
  std::string targetSystem;  ///< what every element of the panel gets
  std::int32_t deviceType = 0;
  Boolean vantaEnabled = False;
  std::vector<PanelPart> parts;  ///< in the order of drawing

  /// The part of an element, or null.
  const PanelPart* Find(std::string_view elementId) const;
};

/// Reads a panel file, see docs/formats.md. FileError with the line for anything that is no whole and proper panel.
Panel ReadPanel(const std::filesystem::path& file);

/// The file of a panel's name in a directory. FileError for a name that is no plain file name.
std::filesystem::path PanelFile(const std::filesystem::path& directory, const std::string& name);
/// The names of the panels that a directory holds, sorted.
std::vector<std::string> PanelNames(const std::filesystem::path& directory);

}  // namespace plexel
