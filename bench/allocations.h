#pragma once

#include <cstdint>

namespace bench {

/// Calls of operator new in this program so far.
std::int64_t Allocations();

}  // namespace bench
