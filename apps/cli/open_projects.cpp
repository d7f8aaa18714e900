#include "cli/open_projects.h"

#include "files/path_text.h"
#include "files/replacing.h"

namespace plexel {

OpenProjects::Source OpenProjects::Read(const std::filesystem::path& file,
                                        const std::filesystem::path& panelDirectory) {
  Source source{file, ReadProject(file), {}};
  const std::string& carried = source.project.panelText;
  const Panel panel =
      carried.empty() ? ReadPanel(PanelFile(panelDirectory, source.project.panel)) : ParsePanel(file, carried);
  for (const PanelPart& part : panel.parts) {
    if (part.element) source.places.push_back(part.element->id);
  }
  return source;
}

const PanelDocument& OpenProjects::Open(const Source& source, const PanelDocument::Site& site) {
  opened_.push_back({source.file, PanelDocument::Of(source.project, source.file, site)});
  return *opened_.back().document;
}

void OpenProjects::Save(const std::string& file, std::ostream& errors) const {
  const Opened& latest = opened_.back();
  const std::filesystem::path target = file.empty() ? latest.file : PathOf(file);
  TellReplacing(target, [&] { WriteProject(target, latest.document->Content()); }, errors);
}

}  // namespace plexel
