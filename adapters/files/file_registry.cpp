#include "files/file_registry.h"

#include <algorithm>
#include <system_error>

#include "files/ini_walk.h"
#include "files/system_files.h"
#include "forms/ascii.h"

namespace plexel {

namespace {

enum Result : std::int32_t {
  Success = 0,
  NotFound = 2,
  AccessDenied = 5,
  InvalidHandle = 6,
  WriteFault = 29,
  InvalidParameter = 87
};
constexpr std::intptr_t KeyHandle = 1;
constexpr std::size_t Limit = std::size_t{1} << 20U;

/// Whether a text stands in a line as it is and reads back the same.
bool FitsALine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos && TrimBlanks(text) == text;
}

bool IsName(std::string_view name) {
  return !name.empty() && FitsALine(name) && name.find('=') == std::string_view::npos &&
         std::string_view("#;[").find(name.front()) == std::string_view::npos;
}

}  // namespace

FileRegistry::FileRegistry(std::filesystem::path file, std::string keyPath)
    : file_(std::move(file)), keyPath_(std::move(keyPath)) {
  Read();
}

void FileRegistry::Read() {
  std::error_code error;
  if (std::filesystem::status(file_, error).type() == std::filesystem::file_type::not_found) return;
  try {
    ReadValues(TextFile(file_, Limit));
  } catch (const FileError& fault) {
    problem_ = fault;
  }
}

void FileRegistry::ReadValues(const TextFile& file) {
  IniWalk walk(file);
  bool inKey = false;
  for (IniLine line; walk.Next(line);) {
    if (line.section) {
      inKey = ascii::Same(line.name, keyPath_);
      if (!inKey) throw file.Error(line.number, "there is no key \"" + Excerpt(line.name) + "\"");
    } else if (!inKey) {
      throw file.Error(line.number, "a value before its key");
    } else if (!IsName(line.name)) {
      throw file.Error(line.number, "the value has no name");
    } else {
      values_.insert_or_assign(std::string(line.name), std::string(line.value));
    }
  }
}

std::int32_t FileRegistry::OpenKey(std::uint32_t root, std::string_view path, std::int32_t, std::int32_t access,
                                   std::intptr_t& key) {
  if (root != CurrentUser || !ascii::Same(path, keyPath_)) return NotFound;
  if ((access & AccessSetValue) == 0) return AccessDenied;
  key = KeyHandle;
  ++openKeys_;
  return Success;
}

std::int32_t FileRegistry::SetValue(std::intptr_t key, std::string_view name, std::int32_t, std::int32_t type,
                                    std::string_view text, std::int32_t length) {
  if (key != KeyHandle || openKeys_ == 0) return InvalidHandle;
  const std::string_view value = text.substr(0, static_cast<std::size_t>(std::max(length, 0)));
  if (type != TypeText || length < 0 || !IsName(name) || !FitsALine(value)) return InvalidParameter;
  const auto [stored, isNew] = values_.try_emplace(std::string(name));
  changed_ = changed_ || isNew || stored->second != value;
  stored->second = value;
  return Success;
}

std::int32_t FileRegistry::CloseKey(std::intptr_t key) {
  if (key != KeyHandle || openKeys_ == 0) return InvalidHandle;
  --openKeys_;
  return changed_ ? Write() : static_cast<std::int32_t>(Success);
}

std::int32_t FileRegistry::Write() {
  if (problem_) return AccessDenied;
  std::string content = "[" + keyPath_ + "]\n";
  for (const auto& [name, value] : values_) content.append(name).append("=").append(value).append("\n");
  std::error_code error;
  std::filesystem::create_directories(file_.parent_path(), error);
  if (error) return WriteFault;
  try {
    WriteWholeFile(file_, content);
  } catch (const FileWarning&) {  // it is written
  } catch (const FileError&) {
    return WriteFault;
  }
  changed_ = false;
  return Success;
}

const std::string* FileRegistry::Find(std::string_view name) const {
  const auto value = values_.find(name);
  return value == values_.end() ? nullptr : &value->second;
}

}  // namespace plexel
