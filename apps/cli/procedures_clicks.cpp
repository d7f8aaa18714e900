#include "cli/procedures.h"

#include <ranges>

#include "cli/command_error.h"

namespace plexel {

bool RunClickProcedure(Workbench& bench, const std::string& name, Arguments& arguments) {
  constexpr std::string_view Suffix = "_Click";
  if (!name.ends_with(Suffix)) return false;
  std::string control = name.substr(0, name.size() - Suffix.size());
  if (arguments.Left() > 1) throw CommandError(name + " takes 0 to 1 arguments");
  if (arguments.More()) control += '(' + std::to_string(arguments.Int32()) + ')';
  for (const Form* form : std::views::reverse(bench.platform.Modal().Shown())) {
    Control* found = form->Find(control);
    if (found == nullptr || !found->OnClick) continue;
    const Control::Event handler = found->OnClick;
    handler();
    return true;
  }
  throw CommandError("no open dialog has the procedure " + name);
}

}  // namespace plexel
