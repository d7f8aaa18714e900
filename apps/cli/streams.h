#pragma once

#include <istream>
#include <ostream>

namespace plexel {

/// Where a word of the program reads, answers, and tells what goes wrong.
struct Streams {
  std::istream& input;
  std::ostream& output;
  std::ostream& errors;
};

}  // namespace plexel
