#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

#include "project/definition.h"
#include "project/panel_document.h"

namespace bench {

/// Writes the panel "bench" into a directory: so many keys with their legends, in rows of 200.
void MakePanel(const std::filesystem::path& directory, std::int64_t count);

/// A press of four bytes on each layer, and a note.
plexel::ElementRecord MadeDefinition();

/// A new project on such a panel, all elements defined, which carries its panel. The panel is written into the site's
/// directory.
std::unique_ptr<plexel::PanelDocument> MakeProject(const plexel::PanelDocument::Site& site, std::int64_t count);

}  // namespace bench
