#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace plexel {

/// The versions of projects that were saved, each a whole project file, in a directory of its own for each project.
class VersionStore {
 public:
  /// As many versions of a project are kept.
  static constexpr std::size_t Most = 20;

  struct Version {
    std::filesystem::path file;
    std::int64_t time{};  ///< of saving, milliseconds since 1970
  };

  /// The directory need not exist.
  explicit VersionStore(std::filesystem::path directory) : directory_(std::move(directory)) {}

  /// Keeps the content that a project's file was given; one that equals the latest version is not kept once more. The
  /// oldest ones go. FileError when it cannot be kept.
  void Keep(const std::filesystem::path& project, std::string_view content, std::int64_t time) const;
  /// The versions of a project, the latest first. Files that are none are passed over. FileError when they cannot be
  /// listed.
  std::vector<Version> List(const std::filesystem::path& project) const;

 private:
  std::filesystem::path DirectoryOf(const std::filesystem::path& project) const;

  std::filesystem::path directory_;
};

}  // namespace plexel
