#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "services/value_rows.h"

namespace plexel {

/// What dialogs store when they close and read when they open, as the settings service numbers it: the place of the
/// dialog and the widths of the three columns of the configuration dialog's grid.
enum SavedPosition : std::int32_t { SavedTop, SavedLeft, SavedColumn0Width, SavedColumn1Width, SavedColumn2Width };

struct PositionRow {
  SavedPosition number;
  std::string_view name;     ///< of the registry value
  std::string_view initial;  ///< twips
};

/// In the order of the numbers. The names say Row where they mean columns.
inline constexpr auto PositionTable =
    std::to_array<PositionRow>({{SavedTop, "ConfigDialogTop", "1500"},
                                {SavedLeft, "ConfigDialogLeft", "1800"},
                                {SavedColumn0Width, "ConfigDialogMsFlexGridRow0Width", "735"},
                                {SavedColumn1Width, "ConfigDialogMsFlexGridRow1Width", "3270"},
                                {SavedColumn2Width, "ConfigDialogMsFlexGridRow2Width", "3270"}});

static_assert(InOrderOfValues(PositionTable, &PositionRow::number));

constexpr std::string_view PositionName(SavedPosition position) {
  return PositionTable.at(static_cast<std::size_t>(position)).name;
}
/// The row of a number; null for a number that nothing is saved under.
constexpr const PositionRow* FindPosition(std::int32_t number) {
  const bool exists = number >= 0 && number < static_cast<std::int32_t>(PositionTable.size());
  return exists ? &PositionTable[static_cast<std::size_t>(number)] : nullptr;
}

}  // namespace plexel
