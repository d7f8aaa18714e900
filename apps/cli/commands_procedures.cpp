#include "cli/commands.h"

#include <array>
#include <unordered_map>

#include "cli/command_error.h"
#include "cli/procedures.h"
#include "files/text_lines.h"
#include "services/module_state.h"

namespace plexel {

namespace {

using Table = std::unordered_map<std::string_view, const Procedure*>;

Table AllProcedures() {
  Table table;
  for (const auto& group : {ModuleProcedures(), CodeProcedures(), DialogProcedures()}) {
    for (const Procedure& procedure : group) table.emplace(procedure.name, &procedure);
  }
  return table;
}

/// Makes an element the current one for one call and puts the old one back, unless the call has set it anew. A second
/// owner of the element tells the pointer that was lent from one that the call itself has set.
class LentElement {
 public:
  explicit LentElement(const Workbench::Element& element)
      : before_(Module().ctlCurrentElement), lent_(std::make_shared<Workbench::Element>(element), element.get()) {
    Module().ctlCurrentElement = lent_;
  }
  ~LentElement() {
    const Workbench::Element& now = Module().ctlCurrentElement;
    if (!now.owner_before(lent_) && !lent_.owner_before(now)) Module().ctlCurrentElement = before_;
  }
  LentElement(const LentElement&) = delete;
  LentElement& operator=(const LentElement&) = delete;

 private:
  Workbench::Element before_, lent_;
};

void RequireCount(const std::string& name, const Procedure& procedure, std::size_t given) {
  if (given >= procedure.least && given <= procedure.most) return;
  const std::string most = procedure.most == procedure.least ? "" : " to " + std::to_string(procedure.most);
  throw CommandError(name + " takes " + std::to_string(procedure.least) + most + " arguments");
}

void CallProcedure(Workbench& bench, Arguments& arguments, Json& answer) {
  static const Table table = AllProcedures();
  const std::string name = arguments.Text();
  std::optional<LentElement> lent;
  if (bench.HasSelected()) lent.emplace(bench.Selected());
  if (const auto found = table.find(name); found != table.end()) {
    RequireCount(name, *found->second, arguments.Left());
    found->second->run(bench, arguments, answer);
  } else if (!RunClickProcedure(bench, name, arguments)) {
    throw CommandError("no procedure is named " + Excerpt(name));
  }
}

constexpr auto commands = std::to_array<Command>({{"fn", "NAME ARGS...", 1, 17, CallProcedure}});

}  // namespace

std::span<const Command> ProcedureCommands() { return commands; }

}  // namespace plexel
