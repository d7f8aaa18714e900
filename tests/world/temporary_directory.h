#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace plexel {

/// A directory of its own for one test; removed with all that lies in it.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string pattern = (std::filesystem::temp_directory_path() / "plexel-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary directory");
    path_ = pattern;
  }
  ~TemporaryDirectory() {
    std::error_code error;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, error);
    std::filesystem::remove_all(path_, error);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  /// Writes a file and gives its path.
  std::filesystem::path Put(std::string_view name, std::string_view content) const {
    const std::filesystem::path file = path_ / name;
    std::ofstream stream(file, std::ios::binary);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + file.string());
    return file;
  }

  std::size_t CountFiles() const {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator()));
  }

 private:
  std::filesystem::path path_;
};

inline std::string Content(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace plexel
