#pragma once

#include <cstddef>
#include <string_view>

namespace plexel::exchange_words {

/// The words of a project as a JSON document, for its writer and its reader; data/schema/project.schema.json tells the
/// same to other programs.

inline constexpr std::string_view Format = "format", Panel = "panel", Name = "name", Text = "text",
                                  Elements = "elements", Place = "place", Properties = "properties", Codes = "codes",
                                  Buffer = "buffer", Next = "next", Bytes = "bytes";
inline constexpr int FormatVersion = 1;

/// The types of a value are those of a project file. Floats that JSON has no number for are texts.
inline constexpr std::string_view FloatTexts[] = {"inf", "-inf", "nan", "-nan"};

/// A larger document is neither read nor written.
inline constexpr std::size_t DocumentLimit = std::size_t{256} << 20U;

}  // namespace plexel::exchange_words
