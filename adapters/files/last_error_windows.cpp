#include "files/last_error.h"

#include <windows.h>

namespace plexel {

std::error_code LastError() {
  const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
  const std::error_condition known = error.default_error_condition();
  return known.category() == std::generic_category() ? std::error_code(known.value(), known.category()) : error;
}

}  // namespace plexel
