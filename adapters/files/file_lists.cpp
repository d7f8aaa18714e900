#include "files/file_lists.h"

#include <algorithm>

namespace plexel {

std::vector<std::filesystem::path> FilesWith(std::string_view extension, const std::filesystem::path& directory,
                                             std::error_code& error) {
  std::vector<std::filesystem::path> files;
  std::filesystem::directory_iterator entries(directory, error);
  for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
    if (entries->path().extension() == extension) files.push_back(entries->path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<std::string> NamesOfFilesWith(std::string_view extension, const std::filesystem::path& directory) {
  std::error_code error;
  std::vector<std::string> names;
  for (const std::filesystem::path& file : FilesWith(extension, directory, error))
    names.push_back(file.stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace plexel
