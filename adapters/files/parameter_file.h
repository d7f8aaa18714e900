#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "files/number_table.h"
#include "files/parameter_syntax.h"
#include "services/surroundings.h"

namespace plexel {

/// Reads parameter files as text. A file is looked through once and then again when it has changed, which is tested at
/// the first reading after each SetDelimiter. A backslash in a file name separates directories as a slash does. Of
/// sections and keys that stand twice the first counts. A file that is missing or cannot be read has no entries; of one
/// above the limit the start is read.
class FileParameterReader : public ParameterFileReader {
 public:
  void SetDelimiter(std::string_view delimiter) override;
  /// Status 0 when the key was found, 1 when not; the value is then empty.
  void ReadEntry(std::string_view file, std::string_view section, std::string_view name, std::string& value,
                 std::int32_t reserved, std::int32_t& status) override;
  void GetItem(std::int32_t index, const std::string& value, std::string& text) override;

 private:
  /// The sections of one file, found by a hash of their names.
  class Index {
   public:
    explicit Index(const std::filesystem::path& file);
    /// The value of a key, or nothing.
    std::optional<std::string> Find(std::string_view section, std::string_view name) const;

   private:
    /// Places in the text, which is shorter than ParameterFileLimit.
    struct Section {
      std::uint32_t name = 0, nameEnd = 0, body = 0, bodyEnd = 0;
    };
    std::string_view Piece(std::uint32_t start, std::uint32_t end) const {
      return text_.Text().substr(start, end - start);
    }
    /// Whether the section of a number has the name.
    auto IsNamed(std::string_view name) const {
      return [this, name](std::uint32_t number) {
        const Section& section = sections_[number - 1];
        return SameName(Piece(section.name, section.nameEnd), name);
      };
    }
    Section* Enter(std::string_view name);

    ParameterText text_;
    std::vector<Section> sections_;
    NumberTable numbers_;  ///< of the sections, from 1
  };

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
  std::optional<Index> index_;
  bool verified_ = false;
};

}  // namespace plexel
