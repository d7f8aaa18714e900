#include "files/data_directory.h"

#include "files/system_places.h"

namespace plexel {

namespace {

std::filesystem::path UsersDirectory(const char* variable, const char* underHome) {
  const std::filesystem::path base = EnvironmentPath(variable);
  return (base.is_absolute() ? base : EnvironmentPath("HOME") / underHome) / "plexel";
}

}  // namespace

std::filesystem::path ConfigurationDirectory() { return UsersDirectory("XDG_CONFIG_HOME", ".config"); }

std::filesystem::path StateDirectory() { return UsersDirectory("XDG_STATE_HOME", ".local/state"); }

}  // namespace plexel
