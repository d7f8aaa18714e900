#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace plexel {

using LanguageTexts = std::map<std::int32_t, std::string>;

/// The ending of a language file; its stem is the name of the language.
inline constexpr std::string_view LanguageExtension = ".lang";

/// The texts of a language file: UTF-8 lines "NUMBER=TEXT". Empty lines and lines that begin with '#' are passed over,
/// blanks around number and text do not count. In a text "\n" is a line break, "\s" a blank and "\\" a backslash.
/// FileError with the line for anything else, for a number outside 1 to 2147483647 and for a number that stands twice.
LanguageTexts ReadLanguageFile(const std::filesystem::path& file);

}  // namespace plexel
