#include "project/versions.h"

#include <algorithm>
#include <functional>
#include <system_error>

#include "files/file_error.h"
#include "files/file_lists.h"
#include "files/number_text.h"
#include "files/path_text.h"
#include "files/project_file.h"
#include "files/system_files.h"
#include "project/fingerprint.h"

namespace plexel {

namespace {

constexpr const char* Extension = ".plexel";

/// A version is named by its time, in so many digits that names sort as times do.
std::string NameOf(std::int64_t time) {
  constexpr std::size_t digits = 16;
  std::string name = std::to_string(std::max<std::int64_t>(time, 0));
  return std::string(digits - std::min(digits, name.size()), '0') + name + Extension;
}

}  // namespace

std::filesystem::path VersionStore::DirectoryOf(const std::filesystem::path& project) const {
  return directory_ / FingerprintOf(project);
}

std::vector<VersionStore::Version> VersionStore::List(const std::filesystem::path& project) const {
  std::vector<Version> versions;
  const std::filesystem::path directory = DirectoryOf(project);
  for (const std::filesystem::path& file : ExistingFilesWith(Extension, directory)) {
    if (const auto time = ParseNumber<std::int64_t>(TextOf(file.stem()))) versions.push_back({file, *time});
  }
  std::ranges::sort(versions, std::ranges::greater(), &Version::time);
  return versions;
}

void VersionStore::Keep(const std::filesystem::path& project, std::string_view content, std::int64_t time) const {
  std::vector<Version> versions = List(project);
  if (!versions.empty()) {
    try {
      if (ReadWholeFile(versions.front().file, ProjectLimit) == content) return;
    } catch (const FileError&) {  // one that cannot be read is no reason to keep less
    }
    time = std::max(time, versions.front().time + 1);
  }
  const std::filesystem::path directory = DirectoryOf(project);
  MakeOwnDirectory(directory);
  std::error_code error;
  std::filesystem::permissions(directory, std::filesystem::perms::owner_all, error);
  WriteWholeFile(directory / NameOf(time), content);
  for (std::size_t index = Most - 1; index < versions.size(); ++index)
    std::filesystem::remove(versions[index].file, error);
}

}  // namespace plexel
