#pragma once

#include <filesystem>
#include <string_view>

namespace plexel {

/// What must hold of every reader for any content of a file. A property that does not hold ends in std::logic_error; so
/// do errors without a reason. Each writes the content to a file of the given directory.

void CheckProjectReader(const std::filesystem::path& directory, std::string_view content);
void CheckPanelReader(const std::filesystem::path& directory, std::string_view content);
void CheckLanguageReader(const std::filesystem::path& directory, std::string_view content);
void CheckSettingsReader(const std::filesystem::path& directory, std::string_view content);
void CheckParameterReader(const std::filesystem::path& directory, std::string_view content);
void CheckCapabilityReader(const std::filesystem::path& directory, std::string_view content);

/// The checks by the names of their corpora.
struct ReaderCheck {
  std::string_view name;
  void (*check)(const std::filesystem::path& directory, std::string_view content);
};
inline constexpr ReaderCheck ReaderChecks[] = {
    {"project", CheckProjectReader},   {"panel", CheckPanelReader},         {"language", CheckLanguageReader},
    {"settings", CheckSettingsReader}, {"parameter", CheckParameterReader}, {"capability", CheckCapabilityReader}};

}  // namespace plexel
