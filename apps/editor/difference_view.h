#pragma once

#include <QTreeWidget>
#include <vector>

#include "editor/texts.h"
#include "project/difference.h"

namespace plexel {

/// A list of differences between two projects: element, what, and the two values.
class DifferenceView : public QTreeWidget {
 public:
  /// The titles of the two columns of values.
  DifferenceView(Text first, Text second);
  void Show(const std::vector<ProjectDifference>& differences);
};

}  // namespace plexel
