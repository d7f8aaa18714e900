#pragma once

namespace plexel {

/// The version of the project, as the build knows it.
inline constexpr const char* ProgramVersion = PLEXEL_VERSION;

}  // namespace plexel
