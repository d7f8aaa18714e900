#pragma once

#include <memory>
#include <string>

#include "element/ctlPlexelBaseElement.h"
#include "element/property_bag.h"
#include "platform/platform.h"
#include "services/surroundings.h"

namespace plexel {

/// Where a host program begins: with a component it has the dialogs and all that elements share, and from it come its
/// elements.
///
/// There is one at a time in a process, since there is one keyboard, one current element and one open dialog of each
/// kind; another may follow it. Everything runs on the thread of the user interface.
class Component {
 public:
  /// Puts a platform and surroundings in force; both must outlive the component. std::logic_error while there is
  /// another component, which goes on undisturbed.
  Component(Platform& platform, Surroundings& surroundings);
  /// Ends everything: takes the keyboard hooks away, closes the dialogs that are open without their events, and forgets
  /// the current element, the way back of Cancel and the clipboard. What the platform throws meanwhile is dropped.
  ///
  /// An element that outlives the component keeps its values. It tells its host nothing any more; what asks the
  /// container, opens the configuration dialog or lays out throws Failure (ObjectNotSet), behind its own failure style.
  ~Component();
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  /// A new element. The host must outlive the element or be taken away with Detach.
  std::shared_ptr<ctlPlexelBaseElement> Create(std::string name, ElementHost& host);
  /// An element read from a bag. What its setters throw ends the reading and is cleared: the rest keeps its initial
  /// values.
  std::shared_ptr<ctlPlexelBaseElement> Read(std::string name, ElementHost& host, const PropertyBag& bag);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace plexel
