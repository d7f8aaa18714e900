#pragma once

#include <string>
#include <vector>

#include "files/panel_file.h"

namespace plexel {

/// One thing in which a panel differs from another of its name.
struct PanelDifference {
  enum class Kind {
    Settings,  ///< size, target system or the like of the whole panel
    Drawing,   ///< colours, legends and parts without an element
    Added,     ///< an element that only the second has
    Removed,   ///< an element that only the first has
    Place,     ///< where an element lies, and how large it is
    Type,      ///< the kind of an element
    Numbers,   ///< its hardware numbers
  };
  Kind kind{};
  std::string element;  ///< empty for the panel itself
  bool operator==(const PanelDifference&) const = default;
};

/// The panel itself first, then the elements in the order of the first panel, then those that are added.
std::vector<PanelDifference> DifferencesOf(const Panel& first, const Panel& second);

}  // namespace plexel
