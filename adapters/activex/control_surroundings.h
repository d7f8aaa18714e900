#pragma once

#include <memory>
#include <optional>
#include <string>

#include "activex/host_services.h"
#include "files/file_surroundings.h"
#include "services/surroundings.h"

namespace plexel::activex {

/// A call of a host, as long as it lasts. It is that host's services that the component asks.
struct HostCall {
  HostServices& services;
  const HostCall* around;  ///< the one that it came within, null for none
};

/// The services of the component: those that the host of the control in question offers, else those kept in the files
/// beside the library, which are read at their first use. Failure (Platform) at each use when they cannot be read.
class ControlSurroundings : public Surroundings {
 public:
  LanguageService& Language() override;
  SettingsService& Settings() override;
  CapabilityService& Capabilities() override;
  ParameterFileReader& ParameterFiles() override;

  /// The innermost call of a host that has not returned; null for none. Calls are entered and left one within another.
  const HostCall* innermost = nullptr;

 private:
  FileSurroundings& Files();

  std::unique_ptr<FileSurroundings> files_;
  std::optional<std::string> problem_;  ///< why there are no files
};

}  // namespace plexel::activex
