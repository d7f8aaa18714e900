#include "files/parameter_check.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>
#include <string_view>
#include <system_error>

#include "files/sequence_entries.h"
#include "files/system_files.h"
#include "files/text_lines.h"
#include "forms/ascii.h"
#include "services/code_page.h"

namespace plexel {

namespace {

constexpr std::string_view Delimiter = ":";
constexpr std::size_t MostItems = 101;
/// Code bytes of press and release that an empty layer takes, at most and when the element is limited.
constexpr std::size_t LayerRoom = 44, LimitedLayerRoom = 23;

std::string EntryName(const SequenceEntry& entry) { return "SCANCODE" + std::to_string(entry.number); }

std::vector<std::string_view> ItemsOf(std::string_view value) {
  std::vector<std::string_view> items;
  for (;;) {
    const std::size_t end = value.find(Delimiter);
    items.push_back(TrimBlanks(value.substr(0, end)));
    if (end == std::string_view::npos) return items;
    value.remove_prefix(end + 1);
  }
}

/// What is wrong with one code of a sequence, or an empty text.
std::string CodeFault(std::string_view item, bool make) {
  std::string_view digits = item;
  ascii::TakeHexMark(digits);
  std::uint64_t code = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
  const std::string shown = "\"" + Excerpt(item) + "\"";
  if (digits.empty() || error == std::errc::invalid_argument || end != digits.data() + digits.size()) {
    return shown + " is no hexadecimal code and is read as 0";
  }
  if (error != std::errc() || code > 0xFF || digits.size() > 8) return shown + " is no code: codes end at FF";
  if (code == 0xFF && make) return "the code FF is left out of a make sequence";
  if (code == 0xFF) return "the code FF splits a break sequence into parts that are stored in reverse order";
  return {};
}

class Check {
 public:
  explicit Check(std::vector<Finding>& findings) : findings_(findings) {}

  void Entries(std::vector<SequenceEntry> entries) {
    std::sort(entries.begin(), entries.end(),
              [](const SequenceEntry& a, const SequenceEntry& b) { return a.number < b.number; });
    if (entries.empty()) Find(1, "there is no entry SCANCODE1, so that the list is empty");
    std::int64_t next = 1;
    for (const SequenceEntry& entry : entries) {
      if (entry.number == next) {
        ++next;
      } else {
        Find(entry.line,
             EntryName(entry) + " is never reached, because SCANCODE" + std::to_string(next) + " is missing");
      }
      Name(entry, SequenceKey::EnglishName, englishNames_);
      Name(entry, SequenceKey::GermanName, germanNames_);
      Codes(entry);
    }
  }

 private:
  using Names = std::map<std::string, std::int64_t, std::less<>>;
  void Find(std::size_t line, std::string text) { findings_.push_back({line, std::move(text)}); }

  void Name(const SequenceEntry& entry, SequenceKey key, Names& names) {
    const SequenceKeyRow& row = SequenceKeys[static_cast<std::size_t>(key)];
    const std::optional<SequenceValue>& value = entry.Key(key);
    if (!value) {
      Find(entry.line, EntryName(entry) + " has no " + std::string(row.name) + ", so that the list ends before it in " +
                           std::string(row.language));
      return;
    }
    const std::string_view name = ParameterItem(value->text, Delimiter, 1);
    if (name.empty()) Find(value->line, "the name is empty, so that choosing it stores no codes");
    if (value->text.find(Delimiter) != std::string::npos) {
      Find(value->line, "the name is cut at \":\" to \"" + Excerpt(name) + "\"");
    }
    if (name.find_first_of("[]") != std::string_view::npos) {
      Find(value->line, "square brackets of the name become round ones in the definition");
    }
    if (name.find(chrMakeMark) != std::string_view::npos || name.find(chrBreakMark) != std::string_view::npos) {
      Find(value->line, "the name holds a make or break mark, which upsets the balance of its row");
    }
    const auto [known, isNew] = names.emplace(name, entry.number);
    if (!isNew && !name.empty()) {
      Find(value->line, "the name \"" + Excerpt(name) + "\" stands already at SCANCODE" +
                            std::to_string(known->second) + ", whose codes are stored for both");
    }
  }

  void Codes(const SequenceEntry& entry) {
    const std::size_t make = Sequence(entry.Key(SequenceKey::Make), true);
    const std::size_t length = make + Sequence(entry.Key(SequenceKey::Break), false);
    const std::size_t line = entry.Key(SequenceKey::Make) ? entry.Key(SequenceKey::Make)->line : entry.line;
    if (make == 0) Find(line, EntryName(entry) + " has no make codes");
    const std::string shown = std::to_string(length) + " make and break codes ";
    if (length > LayerRoom) {
      Find(line, shown + "fit no layer, which takes " + std::to_string(LayerRoom));
    } else if (length > LimitedLayerRoom) {
      Find(line, shown + "fit no layer of an element that is limited to " + std::to_string(LimitedLayerRoom));
    }
  }

  /// Checks one sequence and gives the number of codes that the dialog takes of it.
  std::size_t Sequence(const std::optional<SequenceValue>& value, bool make) {
    if (!value) return 0;
    const std::vector<std::string_view> items = ItemsOf(value->text);
    const auto firstEmpty = std::find(items.begin(), items.end(), std::string_view());
    const auto count = static_cast<std::size_t>(firstEmpty - items.begin());
    const auto behind = std::count_if(firstEmpty, items.end(), [](std::string_view item) { return !item.empty(); });
    if (behind > 0) {
      Find(value->line, "the item " + std::to_string(count + 1) + " is empty, so that " + std::to_string(behind) +
                            " items behind it are dropped");
    }
    if (count > MostItems) {
      Find(value->line, std::to_string(count) + " codes, of which only " + std::to_string(MostItems) + " are taken");
    }
    const std::size_t taken = std::min(count, MostItems);
    for (std::size_t index = 0; index < taken; ++index) {
      std::string fault = CodeFault(items[index], make);
      if (!fault.empty()) Find(value->line, "item " + std::to_string(index + 1) + ": " + std::move(fault));
    }
    return taken;
  }

  std::vector<Finding>& findings_;
  Names englishNames_, germanNames_;
};

}  // namespace

std::vector<Finding> CheckParameterFile(const std::filesystem::path& file) {
  std::vector<Finding> findings;
  const ParameterText text(ReadFileStart(file, ParameterFileLimit));
  if (HasUtf16Mark(text.Text())) return {{1, "the text is UTF-16 and is not read; save it as UTF-8"}};
  if (text.content.size() >= ParameterFileLimit) {
    findings.push_back(
        {LineOf(text.Text(), text.Text().size()),
         "what lies behind the first " + std::to_string(ParameterFileLimit) + " bytes of the file is not read"});
  }
  std::vector<SequenceEntry> entries = ReadSequenceEntries(text, findings);
  Check(findings).Entries(std::move(entries));
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& a, const Finding& b) { return a.line < b.line; });
  return findings;
}

}  // namespace plexel
