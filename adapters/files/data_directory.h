#pragma once

#include <filesystem>
#include <vector>

namespace plexel {

/// The directory of the data that belong to the program: languages, capability tables, panels, pictures, named
/// sequences and help. The first that applies: the environment variable PLEXEL_DATA when it is set and not empty;
/// "../share/plexel" beside the running program's directory when it exists; the data of the installation from which
/// this library was loaded, wherever that was moved to, when they exist; those of the place it was built for. On
/// Windows it is "data" beside the program, then beside the library.
std::filesystem::path DataDirectory();

/// The first of some places that is a directory with a full name, by a name without links; the last place where none
/// is.
std::filesystem::path FirstDirectory(const std::vector<std::filesystem::path>& places);

/// The directory of the user's own files: "plexel" under $XDG_CONFIG_HOME when that is an absolute path, else under
/// ".config" of the home directory; on Windows under %APPDATA%. It need not exist.
std::filesystem::path ConfigurationDirectory();

/// The directory of what programs keep for the user without being asked: "plexel" under $XDG_STATE_HOME when that is an
/// absolute path, else under ".local/state" of the home directory; on Windows under %LOCALAPPDATA%. It need not exist.
std::filesystem::path StateDirectory();

}  // namespace plexel
