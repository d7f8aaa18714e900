#include "files/file_capabilities.h"

#include <bitset>
#include <optional>

#include "files/file_lists.h"
#include "files/ini_walk.h"
#include "files/number_text.h"

namespace plexel {

namespace {

constexpr std::size_t Limit = std::size_t{4} << 20U;

}  // namespace

FileCapabilities::FileCapabilities(const std::filesystem::path& directory) {
  for (const std::filesystem::path& table : ExistingFilesWith(".cap", directory)) ReadTable(table);
}

FileCapabilities FileCapabilities::OfTable(const std::filesystem::path& file) {
  FileCapabilities capabilities;
  capabilities.ReadTable(file);
  return capabilities;
}

void FileCapabilities::ReadTable(const std::filesystem::path& path) {
  const TextFile file(path, Limit);
  IniWalk walk(file);
  Answers* answers = nullptr;
  std::bitset<CapabilityCount> seen;
  for (IniLine line; walk.Next(line);) {
    if (line.section) {
      if (line.name.empty()) throw file.Error(line.number, "the target system has no name");
      const auto [target, isNew] = targets_.emplace(line.name, Answers{});
      if (!isNew) throw file.Error(line.number, "the target system " + Excerpt(line.name) + " stands twice");
      answers = &target->second;
      seen.reset();
      continue;
    }
    if (answers == nullptr) throw file.Error(line.number, "a query before the first target system");
    const std::optional<Capability> named = CapabilityNamed(line.name);
    if (!named) throw file.Error(line.number, "there is no query \"" + Excerpt(line.name) + "\"");
    const auto query = static_cast<std::size_t>(*named);
    if (seen.test(query)) throw file.Error(line.number, "the query " + std::string(line.name) + " stands twice");
    const std::optional<std::int32_t> answer = ParseNumber<std::int32_t>(line.value);
    if (!answer) throw file.Error(line.number, "\"" + Excerpt(line.value) + "\" is no number");
    seen.set(query);
    answers->at(query) = *answer;
  }
}

std::int32_t FileCapabilities::Ask(Capability query, std::string_view targetSystem) {
  const auto target = targets_.find(targetSystem);
  return target == targets_.end() ? 0 : target->second.at(static_cast<std::size_t>(query));
}

std::vector<std::string> FileCapabilities::Targets() const {
  std::vector<std::string> names;
  names.reserve(targets_.size());
  for (const auto& [name, answers] : targets_) names.push_back(name);
  return names;
}

}  // namespace plexel
