#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "files/project_file.h"
#include "project/exchange_words.h"

namespace plexel {

/// A project as one JSON document, see docs/json.md: everything that its file holds, in the order of the file, one
/// property or code buffer a line, so that a difference of lines reads well. ImportProject gives the same project back.
std::string ExportProject(const Project& project);

/// The same for a file that ImportProject is to read: FileError with the name of the project when the document would be
/// larger than one that is read.
std::string ProjectDocument(const std::filesystem::path& project, const Project& content,
                            std::size_t limit = exchange_words::DocumentLimit);

}  // namespace plexel
