#pragma once

#include <cstdint>

namespace plexel {

/// Code types: make and break, make only, break only, taken from the dialog.
enum CodeType : std::int32_t { MakeAndBreak = 0, MakeOnly = 1, BreakOnly = 2, FromDialog = 3 };

/// 0 if optCodeType 0 of the configuration dialog is set, 1 if 1 is, otherwise 2. No guard.
std::int32_t GetSelectedCodeType();

}  // namespace plexel
