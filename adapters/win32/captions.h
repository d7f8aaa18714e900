#pragma once

#include <string>

namespace plexel {

/// A caption as the system writes it: its marked letter underlined, and no other.
std::wstring WithLetter(const std::string& caption);
/// The same with no letter underlined.
std::wstring WithoutLetter(const std::string& caption);

}  // namespace plexel
