#pragma once

#include <string>
#include <string_view>

namespace plexel {

/// A text of the component, which is UTF-8, as the system's UTF-16, and back. What is broken becomes U+FFFD.
std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view text);
/// The text in the system's 8-bit code page, for calls that know no other.
std::string InSystemCodePage(std::string_view text);

/// A place in a text of the system, counted in 16-bit units, as a number of characters, and back.
int CharactersAhead(std::wstring_view text, int units);
int UnitsAhead(std::wstring_view text, int characters);

/// Whether two names are the same but for the case of their letters.
bool SameInAnyCase(std::wstring_view a, std::wstring_view b);

/// The text with a visible sign for each control character.
std::wstring WithVisibleControls(std::wstring text);

}  // namespace plexel
