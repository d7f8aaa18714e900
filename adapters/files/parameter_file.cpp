#include "files/parameter_file.h"

#include <algorithm>
#include <system_error>

#include "files/file_error.h"
#include "files/system_files.h"
#include "files/text_lines.h"

namespace plexel {

namespace {

constexpr std::int32_t Found = 0, Missing = 1;

std::string ReadLeniently(const std::filesystem::path& file) {
  try {
    return ReadFileStart(file, ParameterFileLimit);
  } catch (const FileError&) {
    return {};
  }
}

std::size_t HashOf(std::string_view name) {
  std::size_t hash = 14695981039346656037U;
  for (const char c : name) {
    const bool upper = c >= 'A' && c <= 'Z';
    hash = (hash ^ static_cast<unsigned char>(upper ? c - 'A' + 'a' : c)) * 1099511628211U;
  }
  return hash ^ (hash >> 32U);
}

std::string_view Between(const char* begin, const char* end) { return {begin, static_cast<std::size_t>(end - begin)}; }

}  // namespace

FileParameterReader::Index::Index(const std::filesystem::path& file) : text_(ReadLeniently(file)) {
  const std::string_view text = text_.Text();
  const char* const textEnd = text.data() + text.size();
  const auto endsLine = [](char c) { return c == '\n' || c == '\r'; };
  for (std::size_t bracket = text.find('['); bracket != std::string_view::npos; bracket = text.find('[', bracket + 1)) {
    const char* start = text.data() + bracket;
    while (start != text.data() && (start[-1] == ' ' || start[-1] == '\t')) --start;
    if (start != text.data() && !endsLine(start[-1])) continue;
    const char* const end = std::find_if(start, textEnd, endsLine);
    const ParameterLine read = ReadParameterLine(Between(start, end));
    if (read.kind != ParameterLineKind::Section) continue;
    if (!sections_.empty()) sections_.back().body = Between(sections_.back().body.data(), start);
    sections_.push_back({read.name, Between(end, textEnd)});
  }
  EnterSections();
}

void FileParameterReader::Index::EnterSections() {
  std::size_t size = 16;
  while (size < sections_.size() * 2) size *= 2;
  slots_.resize(size, Free);
  for (std::size_t number = 0; number < sections_.size(); ++number) {
    std::uint32_t& slot = slots_[SlotOf(sections_[number].name)];
    if (slot == Free) slot = static_cast<std::uint32_t>(number);
  }
}

std::size_t FileParameterReader::Index::SlotOf(std::string_view name) const {
  std::size_t slot = HashOf(name) & (slots_.size() - 1);
  while (slots_[slot] != Free && !SameName(sections_[slots_[slot]].name, name)) slot = (slot + 1) & (slots_.size() - 1);
  return slot;
}

std::optional<std::string> FileParameterReader::Index::Find(std::string_view section, std::string_view name) const {
  const std::uint32_t number = slots_[SlotOf(section)];
  if (number == Free) return std::nullopt;
  LineWalk lines(sections_[number].body);
  for (std::string_view line; lines.Next(line);) {
    const ParameterLine read = ReadParameterLine(line);
    if (read.kind == ParameterLineKind::Key && SameName(read.name, name)) return text_.Decode(read.value);
  }
  return std::nullopt;
}

FileParameterReader::Stamp FileParameterReader::StampOf(std::string_view file) {
  std::string name(file);
  std::replace(name.begin(), name.end(), '\\', '/');
  Stamp stamp{name, {}, 0};
  std::error_code error;
  stamp.time = std::filesystem::last_write_time(stamp.file, error);
  stamp.size = std::filesystem::file_size(stamp.file, error);
  return stamp;
}

void FileParameterReader::SetDelimiter(std::string_view delimiter) {
  delimiter_ = delimiter;
  verified_ = false;
}

void FileParameterReader::ReadEntry(std::string_view file, std::string_view section, std::string_view name,
                                    std::string& value, std::int32_t, std::int32_t& status) {
  if (!verified_ || file != fileName_) {
    Stamp stamp = StampOf(file);
    if (!index_ || stamp != stamp_) index_.emplace(stamp.file);
    stamp_ = std::move(stamp);
    fileName_ = file;
    verified_ = true;
  }
  std::optional<std::string> found = index_->Find(section, name);
  status = found ? Found : Missing;
  value = found ? std::move(*found) : std::string();
}

void FileParameterReader::GetItem(std::int32_t index, const std::string& value, std::string& text) {
  text = ParameterItem(value, delimiter_, index);
}

}  // namespace plexel
