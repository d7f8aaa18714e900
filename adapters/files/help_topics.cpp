#include "files/help_topics.h"

#include <algorithm>
#include <system_error>

#include "files/file_error.h"
#include "files/file_lists.h"
#include "files/number_text.h"
#include "files/path_text.h"
#include "files/text_lines.h"
#include "forms/characters.h"

namespace plexel {

namespace {

constexpr std::size_t Limit = std::size_t{1} << 20U;
constexpr std::string_view HelpExtension = ".chm", TopicExtension = ".html";
constexpr std::string_view TitleStart = "<title>", TitleEnd = "</title>";

std::string TitleOf(std::string_view html) {
  const std::size_t start = html.find(TitleStart);
  if (start == std::string_view::npos) return {};
  html.remove_prefix(start + TitleStart.size());
  const std::size_t end = html.find(TitleEnd);
  return end == std::string_view::npos ? std::string() : std::string(html.substr(0, end));
}

}  // namespace

std::filesystem::path HelpDirectory(std::string_view helpFile) {
  if (helpFile.ends_with(HelpExtension)) helpFile.remove_suffix(HelpExtension.size());
  std::string name(helpFile);
  std::replace(name.begin(), name.end(), '\\', '/');
  return PathOf(name);
}

std::optional<HelpTopic> ReadHelpTopic(std::string_view helpFile, std::int32_t number) {
  const std::string name = std::to_string(number) + std::string(TopicExtension);
  try {
    const TextFile file(HelpDirectory(helpFile) / name, Limit);
    if (!characters::IsWellFormed(file.Text())) return std::nullopt;
    return HelpTopic{number, TitleOf(file.Text()), std::string(file.Text())};
  } catch (const FileError&) {
    return std::nullopt;
  }
}

std::vector<HelpTopic> ReadHelpTopics(std::string_view helpFile) {
  std::vector<HelpTopic> topics;
  std::error_code error;
  for (const std::filesystem::path& file : FilesWith(TopicExtension, HelpDirectory(helpFile), error)) {
    const std::optional<std::int32_t> number = ParseNumber<std::int32_t>(TextOf(file.stem()));
    if (!number) continue;
    if (std::optional<HelpTopic> topic = ReadHelpTopic(helpFile, *number)) topics.push_back(std::move(*topic));
  }
  std::sort(topics.begin(), topics.end(), [](const HelpTopic& a, const HelpTopic& b) {
    return a.title != b.title ? a.title < b.title : a.number < b.number;
  });
  return topics;
}

}  // namespace plexel
