#include "cli/program_call.h"

#include <algorithm>

namespace plexel {

namespace {

bool IsAmong(std::initializer_list<std::string_view> options, std::string_view word) {
  return std::find(options.begin(), options.end(), word) != options.end();
}

}  // namespace

ProgramCall::ProgramCall(std::span<const std::string> words, std::initializer_list<std::string_view> options,
                         std::initializer_list<std::string_view> optionsWithValue) {
  bool onlyOthers = false;
  for (std::size_t place = 0; place < words.size(); ++place) {
    const std::string& word = words[place];
    if (onlyOthers || word == "-" || !word.starts_with('-')) {
      others_.push_back(word);
      continue;
    }
    if (word == "--") {
      onlyOthers = true;
      continue;
    }
    const bool hasValue = IsAmong(optionsWithValue, word);
    if (!hasValue && !IsAmong(options, word)) throw CallError("there is no option " + word);
    if (hasValue && place + 1 == words.size()) throw CallError(word + " lacks its value");
    if (!options_.emplace(word, hasValue ? words[place + 1] : std::string()).second) {
      throw CallError(word + " stands twice");
    }
    if (hasValue) ++place;
  }
}

std::optional<std::string> ProgramCall::Value(std::string_view option) const {
  const auto found = options_.find(option);
  if (found == options_.end()) return std::nullopt;
  return found->second;
}

void ProgramCall::RequireOthers(std::size_t least, std::size_t most) const {
  if (others_.size() < least) throw CallError("a word is missing");
  if (others_.size() > most) throw CallError("there is no use for \"" + others_[most] + '"');
}

}  // namespace plexel
