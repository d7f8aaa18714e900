#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace plexel {

/// A caption as it is read. "&" marks the character behind it as the letter that leads to the control; "&&" is one
/// ampersand, and so is "&" ahead of a blank or at the end.
struct ReadableCaption {
  static constexpr std::size_t NoLetter = std::string::npos;
  std::string text;
  std::size_t letterAt = NoLetter;  ///< bytes ahead of the marked character; of several the first counts
};
ReadableCaption ReadCaption(std::string_view caption);

/// Whether a key leads to a control by its caption: the letters A to Z and the digits, by their virtual keys.
bool LeadsTo(std::string_view caption, std::int16_t keyCode);

}  // namespace plexel
