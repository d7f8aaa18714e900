#include "cli/words.h"

#include <algorithm>

#include "cli/command_error.h"
#include "files/text_lines.h"
#include "forms/characters.h"
#include "services/code_page.h"

namespace plexel {

namespace {

constexpr std::string_view Blanks = " \t";

[[noreturn]] void Refuse(std::string_view line, std::size_t place, const std::string& reason) {
  const std::size_t column = CountCharacters(line.substr(0, place)) + 1;
  throw CommandError("column " + std::to_string(column) + ": " + reason);
}

/// Walks over one line.
class Splitter {
 public:
  explicit Splitter(std::string_view line) : line_(line) {}

  std::vector<Word> Split() {
    std::vector<Word> words;
    while (SkipBlanks()) words.push_back(IsJsonStart(line_[position_]) ? TakeJson() : TakePlain());
    return words;
  }

 private:
  static bool IsJsonStart(char character) { return character == '"' || character == '{' || character == '['; }

  bool SkipBlanks() {
    position_ = line_.find_first_not_of(Blanks, position_);
    return position_ != std::string_view::npos;
  }

  Word TakePlain() {
    const std::size_t end = std::min(line_.find_first_of(Blanks, position_), line_.size());
    Word word{std::string(line_.substr(position_, end - position_)), std::nullopt};
    position_ = end;
    return word;
  }

  Word TakeJson() {
    const std::size_t start = position_;
    const std::size_t end = FindEnd();
    const std::string_view value = line_.substr(start, end - start);
    Word word;
    try {
      word.json = Json::parse(value);
    } catch (const Json::parse_error& error) {
      Refuse(line_, start + std::min(error.byte - 1, value.size()), "this is no JSON value");  // bytes count from 1
    } catch (const Json::exception&) {
      Refuse(line_, start, "this JSON value holds a number out of range");
    }
    if (word.json->is_string()) word.text = word.json->get<std::string>();
    position_ = end;
    if (end < line_.size() && Blanks.find(line_[end]) == std::string_view::npos) {
      Refuse(line_, end, "a blank is missing behind the JSON value");
    }
    return word;
  }

  /// The end of the JSON value that begins here: behind the quote or bracket that closes it.
  std::size_t FindEnd() const {
    std::size_t depth = 0;
    for (std::size_t i = position_; i < line_.size(); ++i) {
      const char character = line_[i];
      if (character == '"') i = SkipString(i);
      if (character == '{' || character == '[') ++depth;
      if (character == '}' || character == ']') --depth;
      if (depth == 0) return i + 1;
    }
    Refuse(line_, line_.size(), "the JSON value is not closed");
  }

  /// The closing quote of the string that begins at a place.
  std::size_t SkipString(std::size_t start) const {
    for (std::size_t i = start + 1; i < line_.size(); ++i) {
      if (line_[i] == '\\') {
        ++i;
      } else if (line_[i] == '"') {
        return i;
      }
    }
    Refuse(line_, line_.size(), "the text is not closed by a quote");
  }

  std::string_view line_;
  std::size_t position_ = 0;
};

/// The place of the first NUL or broken character; npos for a sound line.
std::size_t FindFault(std::string_view line) { return std::min(line.find('\0'), characters::FindBroken(line)); }

}  // namespace

std::vector<Word> SplitWords(std::string_view line) {
  if (const std::size_t fault = FindFault(line); fault != std::string_view::npos) {
    Refuse(line, fault, line[fault] == '\0' ? "a NUL byte" : "this is no UTF-8");
  }
  return Splitter(line).Split();
}

}  // namespace plexel
