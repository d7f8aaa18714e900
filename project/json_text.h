#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace plexel {

/// Texts of this program inside JSON. JSON is UTF-8, and a text of this program may hold broken UTF-8: such a text, and
/// one that begins with U+FFFD, stands as U+FFFD and its bytes in hexadecimal.

/// Appends a text as a JSON string, quotes included. Control characters, invisible ends of lines and marks of direction
/// are escaped, so that a document shows what it holds.
void AppendJsonText(std::string& out, std::string_view text);

/// The text that a JSON string stands for; nothing when it begins with U+FFFD and no hexadecimal bytes follow.
std::optional<std::string> FromJsonText(std::string_view text);

}  // namespace plexel
