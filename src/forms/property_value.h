#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace plexel {

/// One cell of a grid as it stands.
struct GridCell {
  /// What the cell shows.
  std::string text;
  std::int32_t foreColor = 0;         ///< 0x00BBGGRR
  std::int32_t backColor = 0xFFFFFF;  ///< 0x00BBGGRR
  /// Whether the text stands in the middle.
  bool centred = false;
};

using GridCells = std::vector<std::vector<GridCell>>;

/// A value in the description of a form or a control. A bool stands for the system's 16-bit boolean.
using PropertyValue = std::variant<bool, std::int32_t, double, std::string, std::vector<std::string>,
                                   std::vector<std::int32_t>, std::vector<bool>, GridCells>;

/// The properties of a form or a control, by name, in a fixed order.
using Description = std::vector<std::pair<std::string, PropertyValue>>;

}  // namespace plexel
