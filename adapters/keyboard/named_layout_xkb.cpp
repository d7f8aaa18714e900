#include "keyboard/named_layout.h"

#include <utility>

#include "keyboard/xkb_layout.h"

namespace plexel {

std::unique_ptr<TableLayout> NamedLayout(std::string name) {
  auto source = [name] { return TableOfRules(name); };
  return std::make_unique<TableLayout>(std::move(name), std::move(source));
}

}  // namespace plexel
