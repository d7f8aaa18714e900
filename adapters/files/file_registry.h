#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "files/file_error.h"
#include "platform/system.h"

namespace plexel {

/// The user's registry in a file: the component's own key with its text values, as lines "NAME=TEXT" under one section.
/// The key exists from the start. Values are written to the file when the key is closed.
class FileRegistry : public Registry {
 public:
  /// Reads the file. A missing file has no values; a damaged one gives those that can be read, tells its first fault
  /// and is not written before AllowOverwriting.
  FileRegistry(std::filesystem::path file, std::string keyPath);

  std::int32_t OpenKey(std::uint32_t root, std::string_view path, std::int32_t options, std::int32_t access,
                       std::intptr_t& key) override;
  std::int32_t SetValue(std::intptr_t key, std::string_view name, std::int32_t reserved, std::int32_t type,
                        std::string_view text, std::int32_t length) override;
  std::int32_t CloseKey(std::intptr_t key) override;

  /// The value of a name, or null.
  const std::string* Find(std::string_view name) const;
  /// What is wrong with the file, until overwriting is allowed.
  const std::optional<FileError>& Problem() const { return problem_; }
  /// Lets the damaged file be written anew.
  void AllowOverwriting() { problem_.reset(); }

 private:
  void Read();
  void ReadValues(const class TextFile& file);
  std::int32_t Write();

  std::filesystem::path file_;
  std::string keyPath_;
  std::map<std::string, std::string, std::less<>> values_;
  std::optional<FileError> problem_;
  int openKeys_ = 0;
  bool changed_ = false;
};

}  // namespace plexel
