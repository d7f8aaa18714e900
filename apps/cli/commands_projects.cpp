#include "cli/commands.h"

#include <array>
#include <iostream>

#include "cli/command_error.h"
#include "files/data_directory.h"
#include "files/path_text.h"
#include "files/text_lines.h"

namespace plexel {

namespace {

void OpenProject(Workbench& bench, Arguments& arguments, Json& answer) {
  PanelDocument::Site site{bench.component, bench.host, bench.hostForm, DataDirectory() / "panels"};
  site.keepsSettings = true;
  const OpenProjects::Source source = OpenProjects::Read(PathOf(arguments.Text()), site.panelDirectory);
  for (const std::string& place : source.places) bench.RequireNewName(place);
  const PanelDocument& document = bench.projects.Open(source, site);
  answer["elements"] = Json::array();
  for (const PanelDocument::Place& place : document.Places()) {
    bench.Add(place.element);
    answer["elements"].push_back(place.element->Name());
  }
  if (!document.Places().empty()) bench.Select(document.Places().front().element->Name());
}

void SaveProject(Workbench& bench, Arguments& arguments, Json&) {
  const std::string file = arguments.More() ? arguments.Text() : std::string();
  const PanelDocument* const document = bench.projects.Latest();
  if (document == nullptr) throw CommandError("no project is open");
  for (const PanelDocument::Place& place : document->Places()) {
    const std::string& name = place.element->Name();
    if (!bench.Has(*place.element)) throw CommandError("the element " + Excerpt(name) + " of the project was dropped");
  }
  bench.projects.Save(file, std::cerr);
}

constexpr auto commands =
    std::to_array<Command>({{"open", "PROJECT", 1, 1, OpenProject}, {"save", "[PROJECT]", 0, 1, SaveProject}});

}  // namespace

std::span<const Command> ProjectCommands() { return commands; }

}  // namespace plexel
