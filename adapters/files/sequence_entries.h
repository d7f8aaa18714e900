#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/parameter_check.h"
#include "files/parameter_syntax.h"
#include "scancodes/named_sequences.h"

namespace plexel {

/// The keys of an entry, in the order of `SequenceEntry::keys`.
enum class SequenceKey : std::size_t { EnglishName, GermanName, Make, Break };
struct SequenceKeyRow {
  std::string_view name;
  std::string_view language;  ///< whose list shows the name; empty for codes
};
inline constexpr auto SequenceKeys = std::to_array<SequenceKeyRow>({{NamedSequences::EnglishNameKey, "English"},
                                                                    {NamedSequences::GermanNameKey, "German"},
                                                                    {NamedSequences::MakeKey, ""},
                                                                    {NamedSequences::BreakKey, ""}});

struct SequenceValue {
  std::size_t line = 0;
  std::string text;  ///< UTF-8
};

/// One section "SCANCODE" and its number.
struct SequenceEntry {
  std::int64_t number = 0;
  std::size_t line = 0;
  std::array<std::optional<SequenceValue>, SequenceKeys.size()> keys;
  const std::optional<SequenceValue>& Key(SequenceKey key) const { return keys[static_cast<std::size_t>(key)]; }
};

/// The entries of a file in the order of their lines, without those that the dialog cannot reach by their name or that
/// stand twice. What the file holds beside them is found.
std::vector<SequenceEntry> ReadSequenceEntries(const ParameterText& text, std::vector<Finding>& findings);

}  // namespace plexel
