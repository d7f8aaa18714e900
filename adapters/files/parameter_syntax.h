#pragma once

#include <string>
#include <string_view>

namespace plexel {

/// The syntax of a parameter file: "[SECTION]" begins a section, "NAME=VALUE" is a key of it, a line that begins with
/// ';' or '#' is a comment. Blanks around names and values do not count, and names stand in any case.

enum class ParameterLineKind { Empty, Section, Key, Other };

struct ParameterLine {
  ParameterLineKind kind = ParameterLineKind::Empty;  ///< a comment counts as empty
  std::string_view name;                              ///< of a section or a key; of another line its text
  std::string_view value;                             ///< of a key
};

ParameterLine ReadParameterLine(std::string_view line);

/// The item of a 1-based number in a value, without the blanks around it; empty when there is none. Without a delimiter
/// the whole value is the first item.
std::string_view ParameterItem(std::string_view value, std::string_view delimiter, int number);

/// The content of a parameter file, without a byte order mark.
struct ParameterText {
  std::string content;
  std::size_t start = 0;
  bool isUtf8 = true;  ///< Windows-1252 when not: a file is UTF-8 when all of it is well-formed UTF-8

  explicit ParameterText(std::string bytes);
  std::string_view Text() const { return std::string_view(content).substr(start); }
  /// A piece of the text as UTF-8.
  std::string Decode(std::string_view piece) const;
};

/// More of a parameter file than this is not read.
inline constexpr std::size_t ParameterFileLimit = std::size_t{64} << 20U;

}  // namespace plexel
