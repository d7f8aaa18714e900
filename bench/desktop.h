#pragma once

#include <QTemporaryDir>
#include <filesystem>

#include "component/component.h"
#include "files/data_directory.h"
#include "files/file_surroundings.h"
#include "qt/help_window.h"
#include "qt/qt_ports.h"
#include "world.h"

namespace bench {

/// The desktop as dialogs and the editor see it, with a configuration of its own.
struct Desktop {
  explicit Desktop(const std::filesystem::path& data = plexel::DataDirectory())
      : surroundings(data, configuration.path().toStdString()),
        platform(surroundings.UserRegistry(), help),
        component(platform, surroundings) {}
  QTemporaryDir configuration;
  plexel::HelpWindow help;
  plexel::FileSurroundings surroundings;
  plexel::OpenQtPlatform platform;
  plexel::Component component;
  SilentHost host;
};

}  // namespace bench
