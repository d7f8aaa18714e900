#pragma once

#include <string>

#include "files/project_file.h"

namespace plexel {

/// A project as one JSON document, see docs/json.md: everything that its file holds, in the order of the file, one
/// property or code buffer a line, so that a difference of lines reads well. ImportProject gives the same project back.
std::string ExportProject(const Project& project);

}  // namespace plexel
