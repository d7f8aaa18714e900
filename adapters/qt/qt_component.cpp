#include "qt/qt_component.h"

#include <QApplication>
#include <stdexcept>

#include "component/component.h"
#include "files/data_directory.h"
#include "files/file_surroundings.h"
#include "qt/help_window.h"
#include "qt/qt_platform.h"

namespace plexel {

namespace {

QtComponent* theInstance = nullptr;

/// Faults of the host program, not of its data.
void CheckTheMoment() {
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
    throw std::logic_error("plexel::QtComponent: make the QApplication first");
  }
  if (theInstance != nullptr) throw std::logic_error("plexel::QtComponent: there is one already");
}

}  // namespace

struct QtComponent::Parts {
  explicit Parts(std::unique_ptr<FileSurroundings> files) : Parts(*files, files->UserRegistry()) {
    own = std::move(files);
  }
  Parts(Surroundings& surroundings, Registry& registry) : platform(registry, help), component(platform, surroundings) {}

  std::unique_ptr<FileSurroundings> own;
  HelpWindow help;
  QtPlatform platform;
  Component component;
};

QtComponent::QtComponent() : QtComponent(DataDirectory(), ConfigurationDirectory()) {}

QtComponent::QtComponent(const std::filesystem::path& data, const std::filesystem::path& configuration) {
  CheckTheMoment();
  parts_ = std::make_unique<Parts>(std::make_unique<FileSurroundings>(data, configuration));
  theInstance = this;
}

QtComponent::QtComponent(Surroundings& surroundings, Registry& registry) {
  CheckTheMoment();
  parts_ = std::make_unique<Parts>(surroundings, registry);
  theInstance = this;
}

QtComponent::~QtComponent() { theInstance = nullptr; }

QtComponent& QtComponent::Instance() {
  if (theInstance != nullptr) return *theInstance;
  throw std::logic_error("plexel::ElementWidget: make a plexel::QtComponent before the first element widget");
}

bool QtComponent::Exists() { return theInstance != nullptr; }

QtPlatform& QtComponent::Desktop() { return parts_->platform; }

HelpWindow& QtComponent::Help() { return parts_->help; }

std::shared_ptr<ctlPlexelBaseElement> QtComponent::Create(std::string name, ElementHost& container) {
  return parts_->component.Create(std::move(name), container);
}

}  // namespace plexel
