#pragma once

#include <filesystem>
#include <string_view>

#include "files/project_file.h"

namespace plexel {

/// The project that a JSON document holds. FileError with the line for a text that is no JSON, and FileError with the
/// place as a JSON pointer for whatever the schema refuses and for what a project cannot hold: a place, a key or a
/// buffer that stands twice, and a text too long for a line of a project file.
Project ImportProject(const std::filesystem::path& file, std::string_view content);

}  // namespace plexel
