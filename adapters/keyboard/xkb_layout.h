#pragma once

#include <cstdint>
#include <string>

#include "keyboard/table_layout.h"

struct xkb_keymap;

namespace plexel {

/// One group of a keymap of the X keyboard extension: of each key what its level 0 says.
LayoutTable TableOfKeymap(xkb_keymap* keymap, std::uint32_t group);
/// The layout that its rules know by this name; Failure (Platform) for an unknown one.
LayoutTable TableOfRules(const std::string& name);

}  // namespace plexel
