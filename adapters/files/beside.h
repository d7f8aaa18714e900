#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace plexel {

/// The endings of what stands beside a file while it is saved.
inline constexpr std::string_view HalfEnding = ".new";  ///< the new content, until it is whole
inline constexpr std::string_view OldEnding = ".old";   ///< the old content, until the new one is whole

/// The directory that a file stands in.
std::filesystem::path DirectoryOf(const std::filesystem::path& file);

/// The name of such a file: NAME.PROCESS-NUMBER and its ending, by this process. Where that would be longer than names
/// may be, the start of NAME stands there with a fingerprint of all of it.
std::filesystem::path NameBeside(const std::filesystem::path& file, int number, std::string_view ending);

/// Those that stand there, by whatever process and with either ending; those found where the directory cannot be read
/// to its end.
std::vector<std::filesystem::path> StandingBeside(const std::filesystem::path& file);

/// Removes those with an ending that no living process holds (ProcessLock). What the user may not remove
/// stays, and so does what takes more memory than there is.
void ClearLeftOver(const std::vector<std::filesystem::path>& files, std::string_view ending);

}  // namespace plexel
