#include "files/file_settings.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "files/ini_walk.h"
#include "files/number_text.h"
#include "files/path_text.h"
#include "files/system_files.h"
#include "platform/failure.h"
#include "services/saved_positions.h"

namespace plexel {

namespace {

constexpr std::size_t Limit = std::size_t{1} << 20U;
constexpr std::size_t MostProblems = 10;
constexpr std::string_view SectionName = "SETTINGS";
constexpr std::string_view LanguageKey = "Language";

std::size_t PlaceOf(const SettingRow& row) { return static_cast<std::size_t>(&row - SettingTable.data()); }

bool IsLanguageName(std::string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' || c == '_';
  });
}

}  // namespace

FileSettings::FileSettings(std::filesystem::path file, const std::filesystem::path& basePath, FileRegistry& registry)
    : file_(std::move(file)), basePath_(TextOf(basePath)), registry_(registry) {
  for (const SettingRow& row : SettingTable) values_[PlaceOf(row)] = row.initial;
  Read();
}

void FileSettings::Read() {
  std::error_code error;
  if (std::filesystem::status(file_, error).type() == std::filesystem::file_type::not_found) return;
  std::optional<TextFile> file;
  try {
    file.emplace(file_, Limit);
  } catch (const FileError& fault) {
    problems_.push_back(fault);
    return;
  }
  IniWalk walk(*file);
  for (bool more = true; more && problems_.size() < MostProblems;) {
    try {
      IniLine line;
      more = walk.Next(line);
      if (more) ReadLine(*file, line);
    } catch (const FileError& fault) {
      problems_.push_back(fault);
    }
  }
}

void FileSettings::ReadLine(const TextFile& file, const IniLine& line) {
  if (line.section) {
    if (line.name != SectionName) throw file.Error(line.number, "there is no section [" + Excerpt(line.name) + "]");
    return;
  }
  if (line.name == LanguageKey) {
    if (!IsLanguageName(line.value)) throw file.Error(line.number, "\"" + Excerpt(line.value) + "\" is no language");
    language_ = line.value;
    return;
  }
  const auto row = std::find_if(SettingTable.begin(), SettingTable.end(),
                                [&line](const SettingRow& candidate) { return candidate.name == line.name; });
  if (row == SettingTable.end()) throw file.Error(line.number, "there is no setting \"" + Excerpt(line.name) + "\"");
  const std::optional<std::int32_t> value = ParseNumber(line.value, row->low, row->high);
  if (!value) {
    throw file.Error(line.number, std::string(row->name) + " must be a number from " + std::to_string(row->low) +
                                      " to " + std::to_string(row->high));
  }
  values_[PlaceOf(*row)] = *value;
}

void FileSettings::GetBasePath(std::string& text) { text = basePath_; }

void FileSettings::GetLanguageName(std::string& text) { text = language_; }

void FileSettings::GetOption(std::int32_t number, Boolean& value) {
  const SettingRow* row = FindSetting(true, number);
  value = row != nullptr && Value(*row) != 0;
}

void FileSettings::GetParameter(std::int32_t number, std::string& text) {
  const SettingRow* row = FindSetting(false, number);
  text = row == nullptr ? std::string() : std::to_string(Value(*row));
}

void FileSettings::GetWindowPosition(std::int32_t number, std::string& text) {
  text.clear();
  const PositionRow* row = FindPosition(number);
  if (row == nullptr) return;
  const std::string* stored = registry_.Find(row->name);
  text = stored != nullptr ? *stored : std::string(row->initial);
}

std::int32_t FileSettings::Value(const SettingRow& row) const { return values_.at(PlaceOf(row)); }

void FileSettings::Value(const SettingRow& row, std::int32_t value) {
  if (value < row.low || value > row.high) {
    throw Failure(FailureKind::Overflow, std::string(row.name) + " is out of its bounds");
  }
  values_.at(PlaceOf(row)) = value;
}

void FileSettings::Save() {
  std::string content = "[" + std::string(SectionName) + "]\n";
  content += std::string(LanguageKey) + "=" + language_ + "\n";
  for (const SettingRow& row : SettingTable) content += std::string(row.name) + "=" + std::to_string(Value(row)) + "\n";
  std::error_code error;
  std::filesystem::create_directories(file_.parent_path(), error);
  if (error) throw FileError(file_, "cannot be written: " + error.message());
  const auto isWritten = [this] {
    problems_.clear();
    registry_.AllowOverwriting();
  };
  try {
    WriteWholeFile(file_, content);
  } catch (const FileWarning&) {
    isWritten();
    throw;
  }
  isWritten();
}

}  // namespace plexel
