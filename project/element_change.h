#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "element/ctlPlexelBaseElement.h"
#include "element/property_table.h"

namespace plexel {

/// Whether what stands under a key in a project belongs to the screen or to the user's settings. No step changes it.
bool IsOfTheScreen(std::string_view key);

/// All that a project keeps of an element and a person can change in it: its properties and code bytes, but for what
/// belongs to the screen (zoom and focus) and to the user's settings (colours, marks, the wizard).
struct ElementValues {
  /// By row of the property table; the integer 0 for a row that is not kept.
  std::vector<PropertyData> properties;
  /// The eight code buffers, packed.
  std::vector<std::uint8_t> codes;
  bool operator==(const ElementValues&) const = default;
};

/// What an element holds now.
ElementValues ValuesOf(const ctlPlexelBaseElement& element);

/// Values of one element that differ from those that it holds: what it held before, or will hold again.
class ElementChange {
 public:
  ElementChange() = default;
  /// The values of `wanted` that differ from those of `held`.
  ElementChange(const ElementValues& wanted, const ElementValues& held);

  bool IsEmpty() const { return properties_.empty() && !codes_; }
  /// Gives the element these values, through its setters, and keeps those that it had. The tick of a defined element
  /// follows.
  void Exchange(ctlPlexelBaseElement& element);
  /// Takes over from `earlier`, a change of the same element that was made before this one, what is not here; what the
  /// element holds anyway is dropped. Then this change leads to where `earlier` led.
  void Precede(const ElementChange& earlier, const ctlPlexelBaseElement& element);

 private:
  std::vector<std::pair<std::uint8_t, PropertyData>> properties_;  ///< by row of the property table, ascending
  std::optional<std::vector<std::uint8_t>> codes_;
};

}  // namespace plexel
