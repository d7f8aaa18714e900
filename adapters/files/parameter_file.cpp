#include "files/parameter_file.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <vector>

#include "files/file_error.h"
#include "files/number_table.h"
#include "files/parameter_syntax.h"
#include "files/path_text.h"
#include "files/system_files.h"
#include "files/text_lines.h"
#include "forms/ascii.h"

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

}  // namespace

/// The sections of one file, found by a hash of their names.
class FileParameterReader::Index {
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
      return ascii::Same(Piece(section.name, section.nameEnd), name);
    };
  }
  Section* Enter(std::string_view name);

  ParameterText text_;
  std::vector<Section> sections_;
  NumberTable numbers_;  ///< of the sections, from 1
};

FileParameterReader::FileParameterReader() = default;
FileParameterReader::~FileParameterReader() = default;

FileParameterReader::Index::Index(const std::filesystem::path& file) : text_(ReadLeniently(file)) {
  const std::string_view text = text_.Text();
  const auto endsLine = [](char c) { return c == '\n' || c == '\r'; };
  Section passedOver;
  Section* open = &passedOver;
  for (std::size_t bracket = text.find('['); bracket != std::string_view::npos; bracket = text.find('[', bracket + 1)) {
    std::size_t start = bracket;
    while (start > 0 && (text[start - 1] == ' ' || text[start - 1] == '\t')) --start;
    if (start > 0 && !endsLine(text[start - 1])) continue;
    const auto end =
        static_cast<std::size_t>(std::find_if(text.begin() + bracket, text.end(), endsLine) - text.begin());
    const ParameterLine line = ReadParameterLine(text.substr(start, end - start));
    if (line.kind != ParameterLineKind::Section) continue;
    open->bodyEnd = static_cast<std::uint32_t>(start);
    open = Enter(line.name);
    if (open == nullptr) open = &passedOver;
    open->body = static_cast<std::uint32_t>(end);
  }
  open->bodyEnd = static_cast<std::uint32_t>(text.size());
}

/// A new section; null when there is one of that name already.
FileParameterReader::Index::Section* FileParameterReader::Index::Enter(std::string_view name) {
  const auto number = static_cast<std::uint32_t>(sections_.size() + 1);
  if (!numbers_.Enter(HashOfName(name), number, IsNamed(name))) return nullptr;
  const auto start = static_cast<std::uint32_t>(name.empty() ? 0 : name.data() - text_.Text().data());
  return &sections_.emplace_back(Section{start, start + static_cast<std::uint32_t>(name.size()), 0, 0});
}

std::optional<std::string> FileParameterReader::Index::Find(std::string_view section, std::string_view name) const {
  const std::uint32_t number = numbers_.Find(HashOfName(section), IsNamed(section));
  if (number == 0) return std::nullopt;
  LineWalk lines(Piece(sections_[number - 1].body, sections_[number - 1].bodyEnd));
  for (std::string_view line; lines.Next(line);) {
    const ParameterLine read = ReadParameterLine(line);
    if (read.kind == ParameterLineKind::Key && ascii::Same(read.name, name)) return text_.Decode(read.value);
  }
  return std::nullopt;
}

FileParameterReader::Stamp FileParameterReader::StampOf(std::string_view file) {
  std::string name(file);
  std::replace(name.begin(), name.end(), '\\', '/');
  Stamp stamp{PathOf(name), {}, 0};
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
    if (!index_ || stamp != stamp_) {
      index_.reset();  // never two texts in memory
      index_ = std::make_unique<const Index>(stamp.file);
    }
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
