#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plexel {

/// Operations on the definition text and on the grid that shows it.

std::string RemoveFirstDefinitionText(std::string_view strText);
std::string RemoveLastDefinitionText(std::string_view strText);

/// The text without brackets and marks.
std::string StripDefinitionMarks(std::string_view strText);
/// Every "[" becomes "(", every "]" becomes ")".
std::string RoundBrackets(std::string_view strText);
/// "[", the body, the marks of a code type (0 both, 1 make, 2 break), "]".
std::string DefinitionGroup(std::string_view strBody, std::int32_t lngCodeType);

/// Adds a named function group to the current cell of the grid, with the marks of the selected code type.
void AppendSpecialDefinition(std::string_view strText);
/// Marks each row whose make and break marks differ in number.
void UpdateGridRowMarks();
/// Paints all data cells of the grid white.
void ResetGridCellColours();

}  // namespace plexel
