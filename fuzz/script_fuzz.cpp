// Feeds scripts to the script language and checks its properties. Lines are taken from one another and put together
// anew, so that most of them are commands.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "cli/script_properties.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t room);

namespace {

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::size_t Put(const std::vector<std::string>& lines, std::uint8_t* data, std::size_t room) {
  std::string text;
  for (const std::string& line : lines) text += line + '\n';
  const std::size_t size = std::min(text.size(), room);
  std::memcpy(data, text.data(), size);
  return size;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plexel::CheckScript(std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t room, unsigned seed) {
  std::minstd_rand random(seed);
  std::vector<std::string> lines = LinesOf(std::string_view(reinterpret_cast<const char*>(data), size));
  if (lines.size() < 2 || random() % 3 == 0) return LLVMFuzzerMutate(data, size, room);
  const std::size_t from = random() % lines.size(), to = random() % lines.size();
  switch (random() % 4) {
    case 0:
      lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(from));
      break;
    case 1:
      lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(to), std::string(lines[from]));
      break;
    case 2:
      std::swap(lines[from], lines[to]);
      break;
    default: {  // one word of a line becomes one of another
      const auto word = [&](const std::string& line) {
        const std::size_t start = line.empty() ? 0 : line.find_first_not_of(' ', random() % line.size());
        const std::size_t begin = start == std::string::npos ? line.size() : start;
        return std::pair{begin, std::min(line.find(' ', begin), line.size())};
      };
      const auto [start, end] = word(lines[from]);
      const auto [otherStart, otherEnd] = word(lines[to]);
      lines[to] = lines[to].substr(0, otherStart) + lines[from].substr(start, end - start) + lines[to].substr(otherEnd);
    }
  }
  return Put(lines, data, room);
}
