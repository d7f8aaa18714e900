#include "files/file_lists.h"

#include <algorithm>

#include "files/file_error.h"
#include "files/path_text.h"

namespace plexel {

std::vector<std::filesystem::path> FilesWith(std::string_view extension, const std::filesystem::path& directory,
                                             std::error_code& error) {
  std::vector<std::filesystem::path> files;
  std::filesystem::directory_iterator entries(directory, error);
  for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
    if (TextOf(entries->path().extension()) == extension) files.push_back(entries->path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<std::filesystem::path> ExistingFilesWith(std::string_view extension,
                                                     const std::filesystem::path& directory) {
  std::error_code error;
  std::vector<std::filesystem::path> files = FilesWith(extension, directory, error);
  if (error && error != std::errc::no_such_file_or_directory) {
    throw FileError(directory, 0, "cannot be read: " + error.message());
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
