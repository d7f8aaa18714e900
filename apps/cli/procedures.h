#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "cli/arguments.h"
#include "cli/call.h"
#include "cli/workbench.h"

namespace plexel {

/// One procedure of the modules, called by its name.
struct Procedure {
  std::string_view name;
  std::size_t least, most;  ///< number of arguments
  void (*run)(Workbench& bench, Arguments& arguments, Json& answer);
};

/// A procedure whose arguments and result are plain values.
template <auto procedure>
consteval Procedure Plain(std::string_view name) {
  using Parts = call::Parts<decltype(procedure)>;
  return {name, Parts::Count, Parts::Count,
          [](Workbench&, Arguments& arguments, Json& answer) { Parts::RunWith(procedure, arguments, answer); }};
}

std::span<const Procedure> ModuleProcedures();
std::span<const Procedure> CodeProcedures();
std::span<const Procedure> DialogProcedures();

/// Runs the click procedure of a control, "cmdOK_Click", on the topmost form that has the control, whether the user
/// could click it or not; a member of a control array takes its index. False for a name that is none.
bool RunClickProcedure(Workbench& bench, const std::string& name, Arguments& arguments);

}  // namespace plexel
