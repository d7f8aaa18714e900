#include "files/data_directory.h"

#include "files/system_places.h"

namespace plexel {

std::filesystem::path ConfigurationDirectory() { return EnvironmentPath("APPDATA") / "plexel"; }

std::filesystem::path StateDirectory() { return EnvironmentPath("LOCALAPPDATA") / "plexel"; }

}  // namespace plexel
