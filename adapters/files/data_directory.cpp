#include "files/data_directory.h"

#include <cstdlib>
#include <system_error>

namespace plexel {

namespace {

std::filesystem::path Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

}  // namespace

std::filesystem::path DataDirectory() {
  if (const std::filesystem::path named = Environment("PLEXEL_DATA"); !named.empty()) return named;
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) {
    const std::filesystem::path installed = program.parent_path().parent_path() / "share" / "plexel";
    if (std::filesystem::is_directory(installed, error)) return installed;
  }
  return PLEXEL_SOURCE_DATA;
}

std::filesystem::path ConfigurationDirectory() {
  if (const std::filesystem::path base = Environment("XDG_CONFIG_HOME"); base.is_absolute()) return base / "plexel";
  return Environment("HOME") / ".config" / "plexel";
}

}  // namespace plexel
