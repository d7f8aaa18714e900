// Writes the tables of all keyboard layouts that the X keyboard extension knows to standard output, sorted by name.
#include <xkbcommon/xkbregistry.h>

#include <iostream>
#include <memory>
#include <set>
#include <string>

#include "keyboard/layout_tables.h"
#include "keyboard/xkb_layout.h"
#include "platform/failure.h"

namespace {

struct Deleter {
  void operator()(rxkb_context* context) const { rxkb_context_unref(context); }
};

std::set<std::string> LayoutNames() {
  const std::unique_ptr<rxkb_context, Deleter> context(rxkb_context_new(RXKB_CONTEXT_NO_FLAGS));
  std::set<std::string> names;
  if (!context || !rxkb_context_parse_default_ruleset(context.get())) return names;
  for (rxkb_layout* layout = rxkb_layout_first(context.get()); layout != nullptr; layout = rxkb_layout_next(layout)) {
    const char* const variant = rxkb_layout_get_variant(layout);
    std::string name = rxkb_layout_get_name(layout);
    if (variant != nullptr) name.append("(").append(variant) += ')';
    names.insert(std::move(name));
  }
  return names;
}

}  // namespace

int main() {
  std::string tables;
  for (const std::string& name : LayoutNames()) {
    try {
      tables += plexel::FormatLayout(name, plexel::TableOfRules(name));
    } catch (const plexel::Failure& failure) {
      std::cerr << "left out: " << failure.what() << '\n';
    }
  }
  if (tables.empty() || !std::cout.write(tables.data(), static_cast<std::streamsize>(tables.size())).flush()) {
    std::cerr << "no keyboard layouts could be written\n";
    return 1;
  }
  return 0;
}
