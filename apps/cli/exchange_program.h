#pragma once

#include <span>
#include <string>

namespace plexel {

/// "export PROJECT [FILE.json]": writes a project as a JSON document, to standard output without a file. Exit status 0,
/// or 2 when the call is wrong or a file cannot be read or written, and then nothing was written.
int RunExport(std::span<const std::string> arguments);

/// "import FILE.json PROJECT": the way back.
int RunImport(std::span<const std::string> arguments);

}  // namespace plexel
