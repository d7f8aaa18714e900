#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "files/file_error.h"
#include "files/file_registry.h"
#include "services/setting_table.h"
#include "services/surroundings.h"

namespace plexel {

/// The user's settings in a text file of lines "NAME=VALUE" under "[SETTINGS]". Positions come from the registry.
class FileSettings : public SettingsService {
 public:
  /// Reads the file. A missing one gives the defaults; a damaged one gives what can be read of it, the defaults for the
  /// rest, and its faults. `basePath` stands without a trailing separator. The registry must outlive the settings.
  FileSettings(std::filesystem::path file, const std::filesystem::path& basePath, FileRegistry& registry);

  void GetBasePath(std::string& text) override;
  void GetLanguageName(std::string& text) override;
  /// False for an option that does not exist.
  void GetOption(std::int32_t number, Boolean& value) override;
  /// Empty for a parameter that does not exist.
  void GetParameter(std::int32_t number, std::string& text) override;
  void GetWindowPosition(std::int32_t number, std::string& text) override;

  /// The name of the language.
  const std::string& Language() const { return language_; }
  void Language(const std::string& name) { language_ = name; }
  /// A setting by its row of the table.
  std::int32_t Value(const SettingRow& row) const;
  /// Failure (Overflow) outside the bounds of the row.
  void Value(const SettingRow& row, std::int32_t value);

  /// Writes the file; FileError when that fails. Until then nothing is overwritten, and this allows the registry to
  /// overwrite its file too.
  void Save();
  /// What is wrong with the file, in the order of its lines; at most ten faults.
  const std::vector<FileError>& Problems() const { return problems_; }

 private:
  void Read();
  void ReadLine(const class TextFile& file, const struct IniLine& line);

  std::filesystem::path file_;
  std::string basePath_;
  FileRegistry& registry_;
  std::string language_ = "English";
  std::array<std::int32_t, SettingTable.size()> values_{};
  std::vector<FileError> problems_;
};

}  // namespace plexel
