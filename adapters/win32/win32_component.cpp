#include "win32/win32_component.h"

#include <stdexcept>

#include "component/component.h"
#include "files/data_directory.h"
#include "files/file_surroundings.h"
#include "win32/win32_platform.h"

namespace plexel {

struct Win32Component::Parts {
  explicit Parts(std::unique_ptr<FileSurroundings> files)
      : own(std::move(files)), services(*own), platform(own->UserRegistry()), component(platform, services) {}
  explicit Parts(Surroundings& surroundings) : services(surroundings), component(platform, services) {}
  Parts(Surroundings& surroundings, Registry& registry)
      : services(surroundings), platform(registry), component(platform, services) {}

  std::unique_ptr<FileSurroundings> own;
  Surroundings& services;
  Win32Platform platform;
  Component component;
};

Win32Component::Win32Component() : Win32Component(DataDirectory(), ConfigurationDirectory()) {}

Win32Component::Win32Component(const std::filesystem::path& data, const std::filesystem::path& configuration)
    : parts_(std::make_unique<Parts>(std::make_unique<FileSurroundings>(data, configuration))) {}

Win32Component::Win32Component(Surroundings& surroundings) : parts_(std::make_unique<Parts>(surroundings)) {}

Win32Component::Win32Component(Surroundings& surroundings, Registry& registry)
    : parts_(std::make_unique<Parts>(surroundings, registry)) {}

Win32Component::~Win32Component() = default;

Win32Platform& Win32Component::Desktop() { return parts_->platform; }

Surroundings& Win32Component::Services() { return parts_->services; }

std::shared_ptr<ctlPlexelBaseElement> Win32Component::Create(std::string name, ElementHost& host) {
  return parts_->component.Create(std::move(name), host);
}

std::shared_ptr<ctlPlexelBaseElement> Win32Component::Read(std::string name, ElementHost& host,
                                                           const PropertyBag& bag) {
  return parts_->component.Read(std::move(name), host, bag);
}

}  // namespace plexel
