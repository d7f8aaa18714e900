#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace plexel {

/// A file's name out of a text in UTF-8, and back. Texts and names meet nowhere else: a system may keep names in
/// another encoding. There what is no UTF-8 becomes U+FFFD, and is the name of no file; elsewhere every byte is kept.
std::filesystem::path PathOf(std::string_view text);
std::string TextOf(const std::filesystem::path& path);

}  // namespace plexel
