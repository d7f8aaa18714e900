#pragma once

#include <cstddef>
#include <vector>

#include "project/problem.h"

namespace plexel {

class ctlPlexelBaseElement;

/// The problems that an element has by itself, whatever the others hold, in their order. `number` is the place of the
/// element in its order. Failures of the capability service pass to the caller; the module state is as it was.
std::vector<Problem> OwnProblems(const ctlPlexelBaseElement& element, std::size_t number);

}  // namespace plexel
