#pragma once

#include <cstddef>
#include <string>

#include "files/byte_input.h"

namespace plexel {

/// One command of a script with the number of its line, from 1.
struct ScriptLine {
  std::size_t number = 0;
  std::string text;
};

/// The commands of a script, read as they come: lines that are neither empty nor a comment. A
/// byte order mark and carriage returns at line ends do not count.
class ScriptSource {
 public:
  explicit ScriptSource(ByteInput& input) : input_(input) {}

  /// Gives the next command, waiting for it; false at the end. std::system_error when reading fails.
  bool Next(ScriptLine& line);
  /// Whether no command follows, as far as that can be known without waiting for a writer that is still busy.
  bool AtEnd();

 private:
  /// How long a writer may take to close its end, in milliseconds.
  static constexpr int ClosingTime = 5;

  /// Finds the next command among the bytes at hand, passing over what is none.
  bool FindCommand();
  bool IsCommand(std::size_t start, std::size_t end) const;
  void ReadMore();

  ByteInput& input_;
  std::string bytes_;
  std::size_t start_ = 0;     ///< of the line that is looked at
  std::size_t searched_ = 0;  ///< no line end before
  std::size_t end_ = 0;       ///< of the command found
  std::size_t number_ = 1;    ///< of the line at start_
  bool found_ = false, begun_ = false, ended_ = false;
};

}  // namespace plexel
