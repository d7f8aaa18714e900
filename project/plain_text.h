#pragma once

#include <string>
#include <string_view>

namespace plexel {

/// A text with U+FFFD in place of each broken byte.
std::string WellFormed(std::string_view text);

/// A text as HTML and XML take it: the signs of mark-up as references, and U+FFFD in place of each broken byte and of
/// each character that XML does not have.
std::string MarkupText(std::string_view text);

}  // namespace plexel
