#pragma once

#include "element/ctlPlexelBaseElement.h"

namespace plexel {

/// What the component's own forms and procedures ask of an element beside its interface. What a handler of the host
/// throws reaches the caller.
class ElementAccess {
 public:
  static void RaiseProjectModified(ctlPlexelBaseElement& element) { element.RaiseProjectModified(); }
  static void RaiseDirectInputStatusChanged(ctlPlexelBaseElement& element, Boolean bDirectInputStatus) {
    element.RaiseDirectInputStatusChanged(bDirectInputStatus);
  }
  /// Whether all eight definition texts are empty.
  static bool IsDefinitionEmpty(const ctlPlexelBaseElement& element) { return element.IsDefinitionEmpty(); }
  /// The bytes of the eight code buffers, as PackCodes makes them.
  static const std::vector<std::uint8_t>& Codes(const ctlPlexelBaseElement& element) { return element.codes_; }
  /// Takes such bytes over as the record's setter does, where all else in the record is as the element has it.
  static void Codes(ctlPlexelBaseElement& element, std::vector<std::uint8_t> packed);
};

}  // namespace plexel
