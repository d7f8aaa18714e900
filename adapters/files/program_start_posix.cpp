#include "files/program_start.h"

#include <algorithm>

namespace plexel {

std::vector<std::string> StartProgram(int count, char** values) {
  return {values + std::min(count, 1), values + count};
}

}  // namespace plexel
