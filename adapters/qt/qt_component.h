#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/system.h"
#include "services/surroundings.h"

namespace plexel {

class ctlPlexelBaseElement;
class ElementHost;
class HelpWindow;
class QtPlatform;

/// The component in a program of this toolkit: the desktop as its platform, the host's services, and help in a window.
/// Element widgets find it by themselves. It is made after the application object, before the first element widget, and
/// ends before the application object does, with no dialog open; one at a time. Element widgets that are still there at
/// its end show what they showed and do nothing any more.
class QtComponent {
 public:
  /// Services kept in files: the data of the installation and the user's own files. FileError when texts or capability
  /// tables cannot be read.
  QtComponent();
  /// The same with directories of one's own.
  QtComponent(const std::filesystem::path& data, const std::filesystem::path& configuration);
  /// A host's own services, which outlive the component. The registry keeps the places of the dialogs.
  QtComponent(Surroundings& surroundings, Registry& registry);
  ~QtComponent();
  QtComponent(const QtComponent&) = delete;
  QtComponent& operator=(const QtComponent&) = delete;

  /// The one of the program. std::logic_error when there is none.
  static QtComponent& Instance();
  /// Whether there is one.
  static bool Exists();

  /// Its platform.
  QtPlatform& Desktop();
  /// Its help.
  HelpWindow& Help();
  /// A new element of a name, in a container.
  std::shared_ptr<ctlPlexelBaseElement> Create(std::string name, ElementHost& container);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace plexel
