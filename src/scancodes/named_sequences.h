#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "scancodes/code_sequence.h"

namespace plexel {

/// Hexadecimal text, with or without "&H" ahead of it, as a number. Of more than eight digits the last eight count;
/// what is no hexadecimal number is 0. The result is never negative.
std::int64_t ConvertHex(std::string_view H);

/// The file of named code sequences in the base path. Entries are numbered from 1 without gaps. Failures of the
/// services pass to the caller.
class NamedSequences {
 public:
  static constexpr std::string_view EnglishNameKey = "REMARK001", GermanNameKey = "REMARK049", MakeKey = "MAKECODE",
                                    BreakKey = "BREAKCODE";

  /// Finds the file and the language of its names, and prepares the reader.
  NamedSequences();

  /// The name of an entry in the user's language; nothing when the entry is missing.
  std::optional<std::string> NameOf(std::int32_t number) const;
  /// The number of the first entry of a name; 0 for the empty name, nothing when no entry has it.
  std::optional<std::int32_t> NumberOf(std::string_view name) const;
  /// The codes of an entry, of each direction those up to the first empty item, 101 at most.
  KeyCodes ReadCodes(std::int32_t number) const;

 private:
  CodeSequence ReadSequence(std::int32_t number, std::string_view key) const;

  std::string file_;
  std::string_view nameKey_;
};

}  // namespace plexel
