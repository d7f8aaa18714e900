#include "files/file_lists.h"

#include <algorithm>

#include "files/file_error.h"
#include "files/path_text.h"

namespace plexel {

namespace {

/// The files of a directory that are wanted, sorted.
template <typename IsWanted>
std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& directory, std::error_code& error,
                                           IsWanted&& isWanted) {
  std::vector<std::filesystem::path> files;
  std::filesystem::directory_iterator entries(directory, error);
  for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
    if (isWanted(entries->path())) files.push_back(entries->path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

std::vector<std::filesystem::path> FilesWith(std::string_view extension, const std::filesystem::path& directory,
                                             std::error_code& error) {
  return FilesOf(directory, error,
                 [extension](const std::filesystem::path& file) { return TextOf(file.extension()) == extension; });
}

std::vector<std::filesystem::path> FilesNamed(std::string_view start, const std::filesystem::path& directory,
                                              std::error_code& error) {
  return FilesOf(directory, error,
                 [start](const std::filesystem::path& file) { return TextOf(file.filename()).starts_with(start); });
}

std::vector<std::filesystem::path> ExistingFilesWith(std::string_view extension,
                                                     const std::filesystem::path& directory) {
  std::error_code error;
  std::vector<std::filesystem::path> files = FilesWith(extension, directory, error);
  if (error && error != std::errc::no_such_file_or_directory) {
    throw FileError(directory, "cannot be read: " + error.message());
  }
  return files;
}

std::vector<std::string> NamesOfFilesWith(std::string_view extension, const std::filesystem::path& directory) {
  std::error_code error;
  std::vector<std::string> names;
  for (const std::filesystem::path& file : FilesWith(extension, directory, error)) names.push_back(TextOf(file.stem()));
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace plexel
