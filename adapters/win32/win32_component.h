#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "element/ctlPlexelBaseElement.h"
#include "element/property_bag.h"
#include "platform/system.h"
#include "services/surroundings.h"

namespace plexel {

class Win32Platform;

/// The component in a program on Windows: the system as its platform, dialogs as native windows, and the host's
/// services. Everything runs on the thread that makes it, which needs a message queue and nothing else. One at a time;
/// it ends with no dialog open. An element's parent window is a HostObject whose window is a NativeWindow.
class Win32Component {
 public:
  /// Services kept in files, the places of dialogs too: the data beside the program or library, and the user's own
  /// files. FileError when texts or capability tables cannot be read.
  Win32Component();
  /// The same with directories of one's own.
  Win32Component(const std::filesystem::path& data, const std::filesystem::path& configuration);
  /// A host's own services, which outlive the component. The places of dialogs are kept in the system's registry.
  explicit Win32Component(Surroundings& surroundings);
  /// The same with a registry that outlives the component.
  Win32Component(Surroundings& surroundings, Registry& registry);
  ~Win32Component();
  Win32Component(const Win32Component&) = delete;
  Win32Component& operator=(const Win32Component&) = delete;

  /// Its platform.
  Win32Platform& Desktop();
  /// Its services.
  Surroundings& Services();
  /// A new element of a name. The host must outlive the element or be taken away with Detach.
  std::shared_ptr<ctlPlexelBaseElement> Create(std::string name, ElementHost& host);
  /// An element read from a bag.
  std::shared_ptr<ctlPlexelBaseElement> Read(std::string name, ElementHost& host, const PropertyBag& bag);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace plexel
