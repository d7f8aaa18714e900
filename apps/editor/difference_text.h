#pragma once

#include <QString>

#include "project/difference.h"

namespace plexel {

/// A difference of two projects in the user's language: what differs, and both values. Texts of the projects stand as
/// they are and are for places that show plain text.
struct DifferenceText {
  QString element, what, from, to;
};
DifferenceText TextOf(const ProjectDifference& difference);

/// A few words on many differences: the elements that differ, the first ones by name.
QString SummaryOf(const std::vector<ProjectDifference>& differences);

}  // namespace plexel
