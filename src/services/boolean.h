#pragma once

#include <concepts>
#include <cstdint>

namespace plexel {

/// The system's boolean: 16 bits, of which true is -1 and false is 0. It is made of a `bool` and of nothing else, so
/// that no number becomes one by accident. Tests for true compare with exactly -1: any other value that is not 0 is
/// neither true nor false, and is stored all the same.
class Boolean {
 public:
  constexpr Boolean() = default;
  /// True is stored as -1, false as 0.
  template <std::same_as<bool> Bool>
  constexpr Boolean(Bool value) : value_(value ? -1 : 0) {}
  /// The boolean of any 16 bits.
  static constexpr Boolean Raw(std::int16_t value) {
    Boolean made;
    made.value_ = value;
    return made;
  }
  /// The 16 bits.
  constexpr std::int16_t Value() const { return value_; }
  bool operator==(const Boolean&) const = default;

 private:
  std::int16_t value_ = 0;
};
static_assert(sizeof(Boolean) == 2);

/// The two values.
inline constexpr Boolean True = true;
inline constexpr Boolean False = false;

/// Whether a value is exactly true.
constexpr bool IsTrue(Boolean value) { return value == True; }

}  // namespace plexel
