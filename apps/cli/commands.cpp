#include "cli/commands.h"

#include <string>
#include <unordered_map>

#include "cli/command_error.h"
#include "files/text_lines.h"

namespace plexel {

namespace {

using Table = std::unordered_map<std::string_view, const Command*>;

Table AllCommands() {
  Table table;
  for (const auto& group : {SurroundingsCommands(), ElementCommands(), FormCommands(), KeyboardCommands(),
                            ProcedureCommands(), ProjectCommands()}) {
    for (const Command& command : group) table.emplace(command.name, &command);
  }
  return table;
}

}  // namespace

void RunCommand(Workbench& bench, const std::vector<Word>& words, Json& answer) {
  static const Table table = AllCommands();
  const Word& name = words.front();
  const auto found = name.json ? table.end() : table.find(name.text);
  if (found == table.end()) throw CommandError("unknown command \"" + Excerpt(name.text) + "\"");
  const Command& command = *found->second;
  Arguments arguments(words);
  if (arguments.Left() < command.least || arguments.Left() > command.most) {
    const std::string blank = command.parameters.empty() ? "" : " ";
    throw CommandError("usage: " + std::string(command.name) + blank + std::string(command.parameters));
  }
  command.run(bench, arguments, answer);
}

}  // namespace plexel
