#include "files/data_directory.h"

#include <dlfcn.h>

#include <cstdlib>
#include <system_error>

namespace plexel {

namespace {

std::filesystem::path Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

/// The file that holds this code: the library, or the program that it is linked into.
std::filesystem::path ThisModule() {
  static const char anchor = 0;
  Dl_info module = {};
  return dladdr(&anchor, &module) == 0 ? "" : module.dli_fname;
}

/// The directory without links in its name; empty when there is none or the name is no full one.
std::filesystem::path Existing(const std::filesystem::path& directory) {
  if (!directory.is_absolute()) return {};
  std::error_code error;
  std::filesystem::path found = std::filesystem::canonical(directory, error);
  return error || !std::filesystem::is_directory(found, error) ? std::filesystem::path() : found;
}

std::filesystem::path UsersDirectory(const char* variable, const char* underHome) {
  const std::filesystem::path base = Environment(variable);
  return (base.is_absolute() ? base : Environment("HOME") / underHome) / "plexel";
}

}  // namespace

std::filesystem::path DataDirectory() {
  if (const std::filesystem::path named = Environment("PLEXEL_DATA"); !named.empty()) return named;
  std::error_code error;
  const std::filesystem::path program = std::filesystem::canonical("/proc/self/exe", error);
  for (const std::filesystem::path& place : {program.parent_path().parent_path() / "share" / "plexel",
                                             ThisModule().parent_path() / PLEXEL_DATA_FROM_LIBRARY}) {
    if (std::filesystem::path found = Existing(place); !found.empty()) return found;
  }
  return PLEXEL_INSTALLED_DATA;
}

std::filesystem::path ConfigurationDirectory() { return UsersDirectory("XDG_CONFIG_HOME", ".config"); }

std::filesystem::path StateDirectory() { return UsersDirectory("XDG_STATE_HOME", ".local/state"); }

}  // namespace plexel
