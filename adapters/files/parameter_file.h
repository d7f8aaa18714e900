#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "services/surroundings.h"

namespace plexel {

/// Reads parameter files as text. A file is looked through once and then again when it has changed, which is tested at
/// the first reading after each SetDelimiter. A backslash in a file name separates directories as a slash does. Of
/// sections and keys that stand twice the first counts. A file that is missing or cannot be read has no entries; of one
/// above the limit the start is read.
class FileParameterReader : public ParameterFileReader {
 public:
  FileParameterReader();
  ~FileParameterReader() override;

  void SetDelimiter(std::string_view delimiter) override;
  /// Status 0 when the key was found, 1 when not; the value is then empty.
  void ReadEntry(std::string_view file, std::string_view section, std::string_view name, std::string& value,
                 std::int32_t reserved, std::int32_t& status) override;
  void GetItem(std::int32_t index, const std::string& value, std::string& text) override;

 private:
  class Index;

  /// What tells one state of a file from another.
  struct Stamp {
    std::filesystem::path file;
    std::filesystem::file_time_type time;
    std::uintmax_t size = 0;
    bool operator==(const Stamp&) const = default;
  };
  static Stamp StampOf(std::string_view file);

  std::string delimiter_ = ":";
  std::string fileName_;  ///< as it was asked for last
  Stamp stamp_;
  std::unique_ptr<const Index> index_;  ///< of the file read last
  bool verified_ = false;
};

}  // namespace plexel
