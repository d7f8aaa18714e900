#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "services/element_types.h"

namespace plexel {

class ctlPlexelBaseElement;

/// What a setter passes to the container: the property's name, or deliberately its new value.
struct Notice {
  /// Which of the two it carries.
  enum class Kind { Text, Integer };
  /// The one of `text` and `integer` that counts.
  Kind kind = Kind::Text;
  std::string_view text;     ///< valid during the notice
  std::int32_t integer = 0;  ///< a boolean as its 16-bit value

  /// A notice with a value of its kind.
  static constexpr Notice Of(std::string_view value) { return {Kind::Text, value, 0}; }
  static constexpr Notice Of(std::int32_t value) { return {Kind::Integer, {}, value}; }
  static Notice Of(Boolean value) { return Of(std::int32_t{value.Value()}); }
};

/// The arguments of SendKeyDefinition.
struct KeyDefinition {
  /// The definition texts, UTF-8; empty for none.
  std::string strLayer1Press, strLayer1Release, strLayer2Press, strLayer2Release;
  std::string strLayer3Press, strLayer3Release, strLayer4Press, strLayer4Release;
  /// The LED functions, as enumLedType.
  std::int32_t LEDTypeLayer1 = 0, LEDTypeLayer2 = 0, LEDTypeLayer3 = 0, LEDTypeLayer4 = 0;
};

/// The host of an element: its container and the listener to its events. One question a host must answer; of the notice
/// and the events it overrides those that it wants to hear, and the others do nothing.
///
/// Handlers may throw. A Failure is cleared where the system's procedures clear failures; anything else reaches the
/// caller, and nothing stays half done behind it. A host keeps the element at least until a notice to it has returned;
/// in the handlers of events it may let the element go. What a handler writes to its arguments is lost.
class ElementHost {
 public:
  virtual ~ElementHost() = default;

  /// Whether any element of the panel has the LED function in the layer; any value that is not 0 counts as yes. A
  /// container that lacks the member throws Failure (NoSuchMember).
  virtual Boolean CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) = 0;

  /// A property was set: the notice to the container.
  virtual void PropertyChanged(ctlPlexelBaseElement& /*element*/, const Notice& /*notice*/) {}
  /// Keyboard capture has begun (true) or ended (false).
  virtual void DirectInputStatusChanged(ctlPlexelBaseElement& /*element*/, Boolean& /*bDirectInputStatus*/) {}
  /// The definition of the element, after its configuration dialog has closed and when it gets the focus.
  virtual void SendKeyDefinition(ctlPlexelBaseElement& /*element*/, KeyDefinition& /*definition*/) {}
  /// The mouse was released over the element. Coordinates in twips of the element's surface.
  virtual void MouseClicked(ctlPlexelBaseElement& /*element*/, std::int16_t& /*Button*/, std::int16_t& /*Shift*/,
                            float& /*x*/, float& /*Y*/) {}
  /// The left button was pressed twice over the element.
  virtual void MouseDblClicked(ctlPlexelBaseElement& /*element*/) {}
  /// A dialog has stored something new in the element.
  virtual void ProjectModified(ctlPlexelBaseElement& /*element*/) {}
};

}  // namespace plexel
