#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace plexel {

/// Codes on their way, one byte value each, with a length of its own: only the codes below it count.
struct CodeSequence {
  static constexpr std::int32_t Size = 101;  ///< indices 0 to 100
  std::array<std::int32_t, Size> codes{};
  std::int32_t length = 0;

  /// Adds codes behind the length; std::out_of_range when there is no room.
  constexpr void Append(std::int32_t code) { codes.at(static_cast<std::size_t>(length++)) = code; }
  constexpr void Append(const CodeSequence& more) {
    for (std::int32_t index = 0; index < more.length; ++index) Append(more.codes.at(static_cast<std::size_t>(index)));
  }
};

/// What one key, or a combination of keys, sends going down and coming up.
struct KeyCodes {
  CodeSequence make, breaking;
};

/// A sequence as the tables of fixed ones hold it. Its length may differ from the number of its codes.
struct FixedCodes {
  static constexpr std::size_t Most = 8;
  static constexpr std::int8_t Untouched = -1;  ///< as the length: that of the sequence written to stays
  std::array<std::uint8_t, Most> codes{};
  std::uint8_t count = 0;
  std::int8_t length = 0;

  constexpr FixedCodes() = default;
  consteval FixedCodes(std::initializer_list<std::uint8_t> list)
      : count(static_cast<std::uint8_t>(list.size())), length(static_cast<std::int8_t>(list.size())) {
    std::copy(list.begin(), list.end(), codes.begin());
  }
  consteval FixedCodes OfLength(std::int8_t other) const {
    FixedCodes same = *this;
    same.length = other;
    return same;
  }

  /// What this does not hold stays in `sequence`.
  void WriteTo(CodeSequence& sequence) const {
    for (std::size_t place = 0; place < count; ++place) sequence.codes[place] = codes[place];
    if (length != Untouched) sequence.length = length;
  }
};

}  // namespace plexel
