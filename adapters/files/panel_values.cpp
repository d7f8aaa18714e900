#include "files/panel_values.h"

#include <algorithm>

#include "files/number_text.h"
#include "files/text_escapes.h"

namespace plexel {

namespace {

std::string Shown(const IniLine& line) { return std::string(line.name) + " \"" + Excerpt(line.value) + "\""; }

/// The words of a value, at most `most` and one more.
std::vector<std::string_view> Words(std::string_view value, std::size_t most) {
  std::vector<std::string_view> words;
  for (value = TrimBlanks(value); !value.empty() && words.size() <= most; value = TrimBlanks(value)) {
    const std::size_t end = std::min(value.find_first_of(" \t"), value.size());
    words.push_back(value.substr(0, end));
    value.remove_prefix(end);
  }
  return words;
}

}  // namespace

std::int32_t PanelValues::Integer(const IniLine& line, std::int32_t low, std::int32_t high) const {
  const std::optional<std::int32_t> number = ParseNumber(line.value, low, high);
  if (!number) {
    Refuse(line.number, Shown(line) + " is no number from " + std::to_string(low) + " to " + std::to_string(high));
  }
  return *number;
}

bool PanelValues::Switch(const IniLine& line) const {
  if (line.value != "yes" && line.value != "no") Refuse(line.number, Shown(line) + " is neither yes nor no");
  return line.value == "yes";
}

std::int32_t PanelValues::Color(const IniLine& line) const {
  constexpr std::size_t length = 7;
  std::uint32_t rgb = 0;
  const char* const end = line.value.data() + line.value.size();
  const bool shaped = line.value.size() == length && line.value.front() == '#';
  if (!shaped || std::from_chars(line.value.data() + 1, end, rgb, 16).ptr != end) {
    Refuse(line.number, Shown(line) + " is no colour #RRGGBB");
  }
  return static_cast<std::int32_t>((rgb & 0xFFU) << 16U | (rgb & 0xFF00U) | rgb >> 16U);
}

PanelBox PanelValues::Box(const IniLine& line) const {
  constexpr std::size_t count = 4;
  const std::vector<std::string_view> words = Words(line.value, count);
  std::array<std::int32_t, count> numbers{};
  bool proper = words.size() == count;
  for (std::size_t index = 0; proper && index < count; ++index) {
    const std::optional<std::int32_t> number = ParseNumber(words[index], index < 2 ? 0 : 1, LargestSize);
    proper = number.has_value();
    numbers[index] = number.value_or(0);
  }
  if (!proper) Refuse(line.number, Shown(line) + " is no place LEFT TOP WIDTH HEIGHT");
  return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

std::string PanelValues::Text(const IniLine& line) const { return ReadEscapedText(file_, line.number, line.value); }

std::string PanelValues::Name(const IniLine& line) const {
  constexpr std::string_view signs = "-_.";
  const bool proper = !line.value.empty() && std::all_of(line.value.begin(), line.value.end(), [&signs](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           signs.find(c) != std::string_view::npos;
  });
  if (!proper) Refuse(line.number, Shown(line) + " is no name of letters and digits");
  return std::string(line.value);
}

LegendAlignment PanelValues::Alignment(const IniLine& line) const {
  if (line.value == "left") return LegendAlignment::Left;
  if (line.value == "center") return LegendAlignment::Center;
  if (line.value != "right") Refuse(line.number, Shown(line) + " is neither left, center nor right");
  return LegendAlignment::Right;
}

std::array<std::int32_t, 8> PanelValues::KeyNumbers(const IniLine& line) const {
  std::array<std::int32_t, 8> numbers = PanelElement().hardwareNumberKeys;
  const std::vector<std::string_view> words = Words(line.value, numbers.size());
  if (words.empty() || words.size() > numbers.size()) Refuse(line.number, Shown(line) + " is not one to eight numbers");
  for (std::size_t index = 0; index < words.size(); ++index) {
    const std::optional<std::int32_t> number = ParseNumber<std::int32_t>(words[index], -1, INT32_MAX);
    if (!number) Refuse(line.number, "\"" + Excerpt(words[index]) + "\" is no number from -1");
    numbers[index] = *number;
  }
  return numbers;
}

}  // namespace plexel
