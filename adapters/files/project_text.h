#pragma once

#include <string>
#include <string_view>

namespace plexel {

/// Appends a text in the code page of a project file, with escapes for what the code page lacks, for backslashes, line
/// ends and other control characters, for blanks at its ends and for the characters of `reserved`.
void AppendProjectText(std::string& out, std::string_view text, std::string_view reserved = {});

/// Reads such a text back; Failure (Conversion) for a broken escape.
std::string ReadProjectText(std::string_view bytes);

}  // namespace plexel
