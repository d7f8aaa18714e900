#pragma once

#include <span>
#include <string>
#include <string_view>

#include "cli/streams.h"

namespace plexel {

/// A word of the program.
struct ProgramWord {
  std::string_view word;
  std::string_view synopsis;  ///< what follows the word
  std::string_view help;      ///< lines for people, each with its end
  /// Gives the exit status. CallError for a wrong call, FileError for a file that cannot be read or written.
  int (*run)(std::span<const std::string> arguments, const Streams& streams);
};

/// The words of the program, in the order in which its help tells them.
std::span<const ProgramWord> ProgramWords();

/// Carries out a call: the word and what follows it. Gives the exit status of the program.
int RunProgram(std::span<const std::string> arguments, const Streams& streams);

}  // namespace plexel
