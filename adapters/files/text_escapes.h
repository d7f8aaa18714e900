#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "files/text_lines.h"

namespace plexel {

/// A text of a UTF-8 file with its escapes undone: "\n" is a line break, "\s" a blank and "\\" a backslash. FileError
/// with the line for any other escape and for broken UTF-8.
std::string ReadEscapedText(const TextFile& file, std::size_t line, std::string_view text);

}  // namespace plexel
