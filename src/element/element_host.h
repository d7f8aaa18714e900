#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "services/element_types.h"

namespace plexel {

class ctlPlexelBaseElement;

/// What a setter passes to the container: the property's name, or deliberately its new value.
struct Notice {
  enum class Kind { Text, Integer };
  Kind kind = Kind::Text;
  std::string_view text;     ///< valid during the notice
  std::int32_t integer = 0;  ///< a boolean as its 16-bit value

  static Notice Of(std::string_view value) { return {Kind::Text, value, 0}; }
  static Notice Of(std::int32_t value) { return {Kind::Integer, {}, value}; }
  static Notice Of(Boolean value) { return Of(std::int32_t{value.Value()}); }
};

/// The arguments of SendKeyDefinition.
struct KeyDefinition {
  std::string strLayer1Press, strLayer1Release, strLayer2Press, strLayer2Release;
  std::string strLayer3Press, strLayer3Release, strLayer4Press, strLayer4Release;
  std::int32_t LEDTypeLayer1 = 0, LEDTypeLayer2 = 0, LEDTypeLayer3 = 0, LEDTypeLayer4 = 0;
};

/// The host of an element: its container and the listener to its events. Handlers may throw Failure. A host keeps the
/// element at least until a notice to it has returned; in the handlers of events it may let the element go.
class ElementHost {
 public:
  virtual ~ElementHost() = default;

  virtual void PropertyChanged(ctlPlexelBaseElement& element, const Notice& notice) = 0;
  /// Whether any element of the panel has the LED function in the layer, as a 16-bit boolean. A container that lacks
  /// the member throws Failure (NoSuchMember).
  virtual Boolean CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) = 0;

  virtual void DirectInputStatusChanged(ctlPlexelBaseElement& element, Boolean& bDirectInputStatus) = 0;
  /// The arguments are copies of the element's state; what a handler writes to them is lost.
  virtual void SendKeyDefinition(ctlPlexelBaseElement& element, KeyDefinition& definition) = 0;
  /// Coordinates in twips of the element's surface.
  virtual void MouseClicked(ctlPlexelBaseElement& element, std::int16_t& Button, std::int16_t& Shift, float& x,
                            float& Y) = 0;
  virtual void MouseDblClicked(ctlPlexelBaseElement& element) = 0;
  virtual void ProjectModified(ctlPlexelBaseElement& element) = 0;
};

}  // namespace plexel
