#include "files/system_places.h"

#include <dlfcn.h>

#include <cstdlib>
#include <system_error>

namespace plexel {

namespace {

/// The file that holds this code: the library, or the program that it is linked into.
std::filesystem::path ThisModule() {
  static const char anchor = 0;
  Dl_info module = {};
  return dladdr(&anchor, &module) == 0 ? "" : module.dli_fname;
}

}  // namespace

std::filesystem::path EnvironmentPath(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

std::vector<std::filesystem::path> PlacesOfData() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::canonical("/proc/self/exe", error);
  return {program.parent_path().parent_path() / "share" / "plexel",
          ThisModule().parent_path() / PLEXEL_DATA_FROM_LIBRARY, PLEXEL_INSTALLED_DATA};
}

}  // namespace plexel
