#pragma once

#include <memory>
#include <string>

#include "keyboard/table_layout.h"

namespace plexel {

/// A layout that the system knows by its name. It is looked for at the first question, or by Load.
std::unique_ptr<TableLayout> NamedLayout(std::string name);

}  // namespace plexel
