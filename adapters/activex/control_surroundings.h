#pragma once

#include <memory>
#include <optional>
#include <string>

#include "activex/host_services.h"
#include "files/file_surroundings.h"
#include "services/surroundings.h"

namespace plexel::activex {

/// The services of the component: those that the host of the control in question offers, else those kept in the files
/// beside the library, which are read at their first use. Failure (Platform) at each use when they cannot be read.
class ControlSurroundings : public Surroundings {
 public:
  LanguageService& Language() override;
  SettingsService& Settings() override;
  CapabilityService& Capabilities() override;
  ParameterFileReader& ParameterFiles() override;

  /// From now on it is these that a host offers; null for none. Gives those before.
  HostServices* Ask(HostServices* services) { return std::exchange(host_, services); }

 private:
  FileSurroundings& Files();

  HostServices* host_ = nullptr;
  std::unique_ptr<FileSurroundings> files_;
  std::optional<std::string> problem_;  ///< why there are no files
};

}  // namespace plexel::activex
