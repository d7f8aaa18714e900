#include "cli/script_source.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "files/text_lines.h"

namespace plexel {

namespace {
constexpr std::size_t LongestMark = 3;
constexpr std::size_t ChunkSize = 65536;
}  // namespace

bool ScriptSource::Next(ScriptLine& line) {
  while (!FindCommand()) {
    if (ended_) return false;
    ReadMore();
  }
  line.number = number_;
  line.text = bytes_.substr(start_, end_ - start_);
  if (line.text.ends_with('\r')) line.text.pop_back();
  start_ = searched_ = std::min(end_ + 1, bytes_.size());
  ++number_;
  found_ = false;
  return true;
}

bool ScriptSource::AtEnd() {
  while (!FindCommand()) {
    if (ended_) return true;
    if (!input_.Ready(ClosingTime)) return false;
    ReadMore();
  }
  return false;
}

bool ScriptSource::FindCommand() {
  while (!found_) {
    end_ = bytes_.find('\n', searched_);
    const bool last = end_ == std::string::npos;
    if (last) end_ = bytes_.size();
    searched_ = end_;
    if (last && !ended_) return false;
    if (IsCommand(start_, end_)) {
      found_ = true;
    } else if (last) {
      return false;
    } else {
      start_ = searched_ = end_ + 1;
      ++number_;
    }
  }
  return true;
}

bool ScriptSource::IsCommand(std::size_t start, std::size_t end) const {
  std::string_view line = std::string_view(bytes_).substr(start, end - start);
  if (line.ends_with('\r')) line.remove_suffix(1);
  const std::size_t first = line.find_first_not_of(" \t");
  return first != std::string_view::npos && line[first] != '#';
}

void ScriptSource::ReadMore() {
  // What is left behind the commands is a piece of one chunk.
  if (start_ > ChunkSize) {
    bytes_.erase(0, start_);
    searched_ -= start_;
    start_ = 0;
  }
  std::array<char, ChunkSize> chunk{};
  const std::size_t count = input_.Read(chunk);
  ended_ = count == 0;
  bytes_.append(chunk.data(), count);
  if (!begun_ && (bytes_.size() >= LongestMark || ended_)) {
    begun_ = true;
    bytes_.erase(0, Utf8MarkLength(bytes_));
    searched_ = start_;
  }
}

}  // namespace plexel
