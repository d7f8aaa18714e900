#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "element/ctlPlexelBaseElement.h"
#include "files/project_file.h"

namespace plexel {

/// What a person defines of an element, apart from what it is and where it stands: texts and bytes of its layers, LED
/// functions, notes, and the road on which it was defined.
///
/// A part of it is some of the layers, with their texts, bytes and LED functions; notes and road go with all of them.
class LayerSet {
 public:
  /// All four layers.
  LayerSet() = default;
  /// Some layers, 1 to 4 each.
  LayerSet(std::initializer_list<std::int32_t> layers) : LayerSet(std::vector<std::int32_t>(layers)) {}
  explicit LayerSet(const std::vector<std::int32_t>& layers);
  bool Has(std::int32_t layer) const { return (bits_ & (1U << static_cast<unsigned>(layer))) != 0; }
  bool IsAll() const { return bits_ == All; }

 private:
  static constexpr unsigned All = 0b11110;
  unsigned bits_ = All;
};

using ElementRecord = udtTactisBaseElement_ScanCodeInfo;

/// The definition in what a project keeps of an element; the other fields of the record are left as in a new one.
/// Failure (Conversion) or (Overflow) for a value that is not of its type.
ElementRecord DefinitionOf(const ProjectElement& element);
/// The definition of a new element.
ElementRecord EmptyDefinition();

/// Copies one layer of a record onto another: texts, bytes and the LED function. The layers are 1 to 4.
void CopyLayer(const ElementRecord& from, std::int32_t layer, ElementRecord& to, std::int32_t onto);
/// The LED function of a layer, 1 to 4.
enumLedType LedOf(const ElementRecord& record, std::int32_t layer);
/// Whether what a layer holds stays below the limit that VantaEnabled demands; a damaged buffer does not.
bool HasRoomFor(const ElementRecord& record, std::int32_t layer, Boolean vantaEnabled);
/// Gives the element what it can take of a definition, or of some layers of it: a key switch takes nothing, an LED no
/// texts and bytes, a key without an LED no LED function, and none takes a layer that it has no room for. With `leds`
/// false its LED functions stay.
void Define(ctlPlexelBaseElement& element, const ElementRecord& definition, const LayerSet& layers, bool leds);

/// Something that an element cannot take of a definition.
struct Misfit {
  enum class Kind {
    KeySwitch,  ///< a key switch is not defined at all
    NoKey,      ///< texts or bytes for an LED, which sends nothing
    NoLed,      ///< an LED function for a key without an LED
    OverLimit,  ///< a layer holds more bytes than the element has room for
    LedTwice,   ///< another element shows the LED function on the layer
  };
  Kind kind{};
  std::string element;
  std::int32_t layer = 0;  ///< the first layer that it is about; 0 where it is about none
  std::string with;        ///< the other element of LedTwice
  bool operator==(const Misfit&) const = default;
};

/// What the element could not take, but for LED functions that stand twice.
std::vector<Misfit> MisfitsOf(const ctlPlexelBaseElement& element, const ElementRecord& definition,
                              const LayerSet& layers);

}  // namespace plexel
