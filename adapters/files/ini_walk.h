#pragma once

#include <cstddef>
#include <string_view>

#include "files/text_lines.h"

namespace plexel {

/// One line of a file of sections and keys: "[NAME]" or "NAME=VALUE".
struct IniLine {
  bool section = false;
  std::string_view name;
  std::string_view value;  ///< of a key
  std::size_t number = 0;
};

/// Walks over the sections and keys of a text file, whose lines are those of a parameter file.
class IniWalk {
 public:
  explicit IniWalk(const TextFile& file) : file_(file), lines_(file.Lines()) {}
  /// Gives the next section or key; false at the end. FileError for a line that is neither. The walk can go on behind a
  /// faulty line.
  bool Next(IniLine& line);

 private:
  const TextFile& file_;
  LineWalk lines_;
};

}  // namespace plexel
