#pragma once

#include <cstdint>

namespace bench {

/// Calls of operator new by this thread so far.
std::int64_t Allocations();

}  // namespace bench
