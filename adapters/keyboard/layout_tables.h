#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "keyboard/table_layout.h"

namespace plexel {

/// One layout as text: its name in square brackets, then a line each of Alt Gr, of the decimal key and of the keys that
/// type something, with the character's code in hexadecimal digits and "dead" behind that of a dead key. Files of many
/// layouts are such texts one behind the other.
std::string FormatLayout(std::string_view name, const LayoutTable& table);

/// The layout of a name in the text of such a file; nothing when it has none, or none that can be read.
std::optional<LayoutTable> FindLayout(std::string_view text, std::string_view name);

}  // namespace plexel
