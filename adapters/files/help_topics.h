#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace plexel {

/// The topics of a help file. The name of a help file, "<base>\Help\Plexel<Language>.chm", stands for a directory of
/// the same name without its extension, and a topic for the file "NUMBER.html" in it. Backslashes separate directories
/// as slashes do.

struct HelpTopic {
  std::int32_t number = 0;
  std::string title;
  std::string html;  ///< UTF-8; links lead to other topics as "NUMBER.html"
};

std::filesystem::path HelpDirectory(std::string_view helpFile);

/// One topic; nothing when it is missing or cannot be read.
std::optional<HelpTopic> ReadHelpTopic(std::string_view helpFile, std::int32_t number);

/// All topics that can be read, in the order of their titles.
std::vector<HelpTopic> ReadHelpTopics(std::string_view helpFile);

}  // namespace plexel
