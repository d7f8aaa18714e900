#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace plexel {

/// Reads a JSON text that a file holds; members keep their order. FileError with the line for a text that is no JSON,
/// for broken UTF-8 and for a number too large, FileError with the place as a JSON pointer for a member that stands
/// twice and for values more than DeepestJson deep.
nlohmann::ordered_json ReadJson(const std::filesystem::path& file, std::string_view content);

inline constexpr std::size_t DeepestJson = 64;

/// A part of a JSON pointer, behind its '/'. Control characters are shown as '?'.
std::string PointerPart(std::string_view name);

}  // namespace plexel
