#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/json.h"

namespace plexel {

/// One word of a command: plain text, or a JSON value.
struct Word {
  std::string text;          ///< the plain word, or the text of a JSON string
  std::optional<Json> json;  ///< the value of a word that begins with ", { or [

  bool IsText() const { return !json || json->is_string(); }
};

/// The words of a line, separated by blanks and tabs. CommandError with the column, counted in characters from 1, for a
/// JSON value that is broken or not followed by a blank, and for a line that is no UTF-8 or holds a NUL.
std::vector<Word> SplitWords(std::string_view line);

}  // namespace plexel
