#include "files/path_text.h"

namespace plexel {

std::filesystem::path PathOf(std::string_view text) { return {text}; }

std::string TextOf(const std::filesystem::path& path) { return path.native(); }

}  // namespace plexel
