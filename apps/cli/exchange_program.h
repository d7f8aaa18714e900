#pragma once

#include <span>
#include <string>

#include "cli/streams.h"

namespace plexel {

/// "export PROJECT [FILE.json]": writes a project as a JSON document, to standard output without a file. CallError for
/// a wrong call, FileError when a file cannot be read or written, and then nothing was written.
int RunExport(std::span<const std::string> arguments, const Streams& streams);

/// "import FILE.json PROJECT": the way back.
int RunImport(std::span<const std::string> arguments, const Streams& streams);

}  // namespace plexel
