#include "files/sequence_entries.h"

#include <algorithm>
#include <map>

#include "files/number_text.h"
#include "files/text_lines.h"
#include "forms/ascii.h"
#include "forms/characters.h"

namespace plexel {

namespace {

constexpr std::string_view SectionStem = "SCANCODE";

/// The number of a section that the dialog asks for, or nothing.
std::optional<std::int64_t> EntryNumber(std::string_view section) {
  if (section.size() <= SectionStem.size() || !ascii::Same(section.substr(0, SectionStem.size()), SectionStem))
    return {};
  const std::string_view digits = section.substr(SectionStem.size());
  if (digits.front() < '1' || digits.front() > '9') return {};
  return ParseNumber<std::int64_t>(digits);
}

/// Collects entries line by line.
class Collector {
 public:
  Collector(const ParameterText& text, std::vector<Finding>& findings) : text_(text), findings_(findings) {}

  std::vector<SequenceEntry> Collect() {
    LineWalk lines(text_.Text());
    for (std::string_view line; lines.Next(line);) {
      line_ = lines.Number();
      CheckCharacters(line);
      const ParameterLine read = ReadParameterLine(line);
      if (read.kind == ParameterLineKind::Section) TakeSection(read.name);
      if (read.kind == ParameterLineKind::Key) TakeKey(read);
      if (read.kind == ParameterLineKind::Other) Find("\"" + Shown(line) + "\" is no section, key or comment");
    }
    return std::move(entries_);
  }

 private:
  void Find(std::string text) { findings_.push_back({line_, std::move(text)}); }
  std::string Shown(std::string_view piece) const { return Excerpt(text_.Decode(TrimBlanks(piece))); }

  void CheckCharacters(std::string_view line) {
    const bool plain = std::all_of(line.begin(), line.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
    if (line.find('\0') != std::string_view::npos) Find("a NUL byte");
    if (!plain && !text_.isUtf8 && characters::IsWellFormed(line)) {
      Find("the line looks like UTF-8, but other lines are not, so that its characters are misread");
    }
  }

  void TakeSection(std::string_view name) {
    inSection_ = true;
    current_.reset();
    const std::optional<std::int64_t> number = EntryNumber(name);
    if (!number) {
      Find("the section [" + Shown(name) + "] is not read: an entry is SCANCODE and a number from 1");
      return;
    }
    const auto [place, isNew] = lines_.emplace(*number, line_);
    if (!isNew) {
      Find("SCANCODE" + std::to_string(*number) + " stands already in line " + std::to_string(place->second) +
           "; this one is not read");
      return;
    }
    current_ = entries_.size();
    entries_.push_back({*number, line_, {}});
  }

  void TakeKey(const ParameterLine& read) {
    if (!inSection_) Find("the key " + Shown(read.name) + " stands before the first section and is not read");
    if (!current_) return;
    const auto row = std::find_if(SequenceKeys.begin(), SequenceKeys.end(),
                                  [&read](const SequenceKeyRow& key) { return ascii::Same(key.name, read.name); });
    if (row == SequenceKeys.end()) {
      Find("the key \"" + Shown(read.name) + "\" is unknown and not read");
      return;
    }
    auto& value = entries_[*current_].keys[static_cast<std::size_t>(row - SequenceKeys.begin())];
    if (value) {
      Find(std::string(row->name) + " stands already in line " + std::to_string(value->line) +
           "; this one is not read");
      return;
    }
    value = SequenceValue{line_, text_.Decode(read.value)};
  }

  const ParameterText& text_;
  std::vector<Finding>& findings_;
  std::vector<SequenceEntry> entries_;
  std::map<std::int64_t, std::size_t> lines_;  ///< of the entries, by their number
  std::optional<std::size_t> current_;
  std::size_t line_ = 0;
  bool inSection_ = false;
};

}  // namespace

std::vector<SequenceEntry> ReadSequenceEntries(const ParameterText& text, std::vector<Finding>& findings) {
  return Collector(text, findings).Collect();
}

}  // namespace plexel
