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
};

}  // namespace plexel
