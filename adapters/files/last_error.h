#pragma once

#include <system_error>

namespace plexel {

/// Why the last call of the system failed: an error that every system knows where there is such a one, so that it is
/// told in the same words everywhere. To be asked on Windows alone.
std::error_code LastError();

}  // namespace plexel
