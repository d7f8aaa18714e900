#pragma once

#include <string_view>

namespace plexel {

/// What must hold of the import for any document: a project comes out of it that is exported, imported and written to a
/// project file without loss, or a FileError with a reason. A property that does not hold ends in std::logic_error.
void CheckImport(std::string_view content);

}  // namespace plexel
