#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "cli/arguments.h"
#include "cli/workbench.h"

namespace plexel {

/// One command of a script: what stands behind its name, and how it is carried out. A handler takes its arguments,
/// acts, and adds to the answer; it throws CommandError or Failure when it fails.
struct Command {
  std::string_view name;
  std::string_view parameters;  ///< as shown to the user
  std::size_t least, most;      ///< number of arguments
  void (*run)(Workbench& bench, Arguments& arguments, Json& answer);
};

std::span<const Command> SurroundingsCommands();
std::span<const Command> ElementCommands();
std::span<const Command> FormCommands();
std::span<const Command> KeyboardCommands();
std::span<const Command> ProcedureCommands();
std::span<const Command> ProjectCommands();

/// Carries out one command; CommandError for an unknown name or a wrong number of arguments.
void RunCommand(Workbench& bench, const std::vector<Word>& words, Json& answer);

}  // namespace plexel
