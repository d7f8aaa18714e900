#include "files/data_directory.h"

#include <system_error>

#include "files/system_places.h"

namespace plexel {

namespace {

/// The directory without links in its name; empty when there is none or the name is no full one.
std::filesystem::path Existing(const std::filesystem::path& directory) {
  if (!directory.is_absolute()) return {};
  std::error_code error;
  std::filesystem::path found = std::filesystem::canonical(directory, error);
  if (error || !std::filesystem::is_directory(found, error)) return {};
  return found;
}

}  // namespace

std::filesystem::path DataDirectory() {
  if (std::filesystem::path named = EnvironmentPath("PLEXEL_DATA"); !named.empty()) return named;
  return FirstDirectory(PlacesOfData());
}

std::filesystem::path FirstDirectory(const std::vector<std::filesystem::path>& places) {
  for (const std::filesystem::path& place : places) {
    if (std::filesystem::path found = Existing(place); !found.empty()) return found;
  }
  return places.back();
}

}  // namespace plexel
