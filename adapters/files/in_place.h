#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "files/file_port.h"

namespace plexel {

/// Writes a file in place, so that all its names keep standing for it. A copy of the old content stands beside it until
/// the new one is flushed, and the first byte is zero from ahead of the first change until behind the last: whoever
/// finds a zero there and the copy knows that the file is half written, and by the copy what it held. The content must
/// not begin with a zero byte.
///
/// On any failure the file is given its old content back; the copy stays where that fails too. Returns what is to be
/// told of a file that was written, as in a FileWarning; empty for nothing. FileError, by `name`, when the file cannot
/// be written.
std::string WriteInPlace(const std::filesystem::path& name, const std::filesystem::path& file, std::string_view content,
                         FilePort& port);

/// Whether a file that holds this may be half written.
inline bool MayBeHalfWritten(std::string_view content) { return content.starts_with('\0'); }

/// The copy beside a file that is half written, whatever name leads to it.
std::optional<std::filesystem::path> OldContentOf(const std::filesystem::path& file);

/// Gives a half written file the content of its copy, and removes that, unless somebody is writing it now. What cannot
/// be done is left.
void PutOldContentBack(const std::filesystem::path& file, FilePort& port);

}  // namespace plexel
