#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "services/element_types.h"

namespace plexel::project_syntax {

/// The words of a project file, for its reader and its writer.

inline constexpr std::string_view ProjectSection = "PROJECT";
inline constexpr std::string_view PanelSection = "PANEL";
inline constexpr std::string_view ElementSection = "ELEMENT ";
inline constexpr std::string_view EndSection = "END";

inline constexpr std::string_view FormatKey = "Format", MarksKey = "Marks", PanelKey = "Panel", CountKey = "Elements";
inline constexpr std::string_view LineKey = "Line";
/// A project without the text of its panel, and one that carries it.
inline constexpr std::string_view PlainFormat = "1", PanelFormat = "2";
/// The make and the break mark in the code page of the file: they tell a file that was converted to another one.
inline constexpr std::string_view Marks = "\x8B\x9B";

inline constexpr std::string_view Int16 = "int16", Int32 = "int32", UInt8 = "uint8", BooleanType = "boolean",
                                  Double = "double", Text = "string", Codes = "codes";

inline constexpr std::array<std::string_view, 8> BufferNames = {
    "strLayer1PressScanCode", "strLayer1ReleaseScanCode", "strLayer2PressScanCode", "strLayer2ReleaseScanCode",
    "strLayer3PressScanCode", "strLayer3ReleaseScanCode", "strLayer4PressScanCode", "strLayer4ReleaseScanCode"};

}  // namespace plexel::project_syntax
