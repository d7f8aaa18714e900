#pragma once

#include <filesystem>
#include <functional>
#include <ostream>

namespace plexel {

/// Replaces a file by `write`, and tells in lines `FILE: text`: before, what the file loses by it (LostByWriting), and
/// behind, what a FileWarning says. FileError when it cannot be written.
void TellReplacing(const std::filesystem::path& file, const std::function<void()>& write, std::ostream& lines);

}  // namespace plexel
