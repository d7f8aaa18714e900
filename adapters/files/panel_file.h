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

/// A place on the panel.
struct PanelBox {
  /// Left, top, width and height.
  std::int32_t left = 0, top = 0, width = 0, height = 0;
  bool operator==(const PanelBox&) const = default;
};

/// What a part is.
enum class PanelPartKind { Housing, Screen, Key, RoundKey, KeySwitch, Led, Legend };

/// Where a legend stands.
enum class LegendAlignment { Left, Center, Right };

/// The element that lies on a part.
struct PanelElement {
  std::string id;  ///< its place in a project
  /// The kind, the size, and the hardware numbers, of keys that are not there -1.
  enumTactisBaseElementType type{};
  std::int16_t sizeX = 0, sizeY = 0;
  std::array<std::int32_t, 8> hardwareNumberKeys = {-1, -1, -1, -1, -1, -1, -1, -1};
  std::int32_t hardwareNumberLed = 0, hardwareNumberButton = 0;
};

/// One thing to draw.
struct PanelPart {
  /// What it is, where it lies, and how it is filled and edged.
  PanelPartKind kind{};
  PanelBox box;
  std::int32_t fillColor = 0xFFFFFF, lineColor = 0;
  std::int32_t cornerRadius = 0;
  std::string legend;  ///< may have line breaks; empty for none
  /// Colour, height in pixels and place of the legend.
  std::int32_t legendColor = 0, legendSize = 12;
  LegendAlignment legendAlignment = LegendAlignment::Center;
  /// The element on it.
  std::optional<PanelElement> element;
};

/// A panel as its file tells it.
struct Panel {
  /// The title and the size.
  std::string title;
  std::int32_t width = 0, height = 0;
  std::string targetSystem;  ///< what every element of the panel gets
  /// What every element of the panel gets too.
  std::int32_t deviceType = 0;
  Boolean vantaEnabled = False;
  std::vector<PanelPart> parts;  ///< in the order of drawing

  /// The part of an element, or null.
  const PanelPart* Find(std::string_view elementId) const;
};

/// Reads a panel file, see docs/formats.md. FileError with the line for anything that is no whole and proper panel.
Panel ReadPanel(const std::filesystem::path& file);
/// The text of a panel file, lines ended by LF. FileError when it cannot be read.
std::string ReadPanelText(const std::filesystem::path& file);
/// Reads such a text; `origin` is named in a FileError.
Panel ParsePanel(const std::filesystem::path& origin, std::string text);

/// The file of a panel's name in a directory. FileError for a name that is no plain file name.
std::filesystem::path PanelFile(const std::filesystem::path& directory, const std::string& name);
/// The names of the panels that a directory holds, sorted.
std::vector<std::string> PanelNames(const std::filesystem::path& directory);

}  // namespace plexel
