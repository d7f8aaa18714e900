#include "keyboard/layout_tables.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace plexel {

namespace {

constexpr std::string_view AltGrKey = "AltGr", DecimalKey = "Decimal", DeadMark = " dead";

void AppendSign(std::string& text, const KeySign& sign) {
  char digits[8];
  const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<std::uint32_t>(sign.character), 16).ptr;
  text.append(digits, end).append(sign.dead ? DeadMark : std::string_view()) += '\n';
}

template <class Number>
bool ReadNumber(std::string_view text, int base, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  return error == std::errc() && end == text.data() + text.size();
}

bool ReadSign(std::string_view text, KeySign& sign) {
  sign.dead = text.ends_with(DeadMark);
  if (sign.dead) text.remove_suffix(DeadMark.size());
  std::uint32_t code = 0;
  if (!ReadNumber(text, 16, code) || code > 0x10FFFF) return false;
  sign.character = code;
  return true;
}

bool ReadLine(std::string_view line, LayoutTable& table) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return false;
  const std::string_view key = line.substr(0, equals), value = line.substr(equals + 1);
  if (key == AltGrKey) {
    table.altGr = value == "1";
    return table.altGr || value == "0";
  }
  if (key == DecimalKey) return ReadSign(value, table.decimal);
  int evdev = 0;
  KeySign sign;
  return ReadNumber(key, 10, evdev) && ReadSign(value, sign) && table.signs.emplace(evdev, sign).second;
}

/// Takes the first line off a text, without its end.
std::string_view NextLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

}  // namespace

std::string FormatLayout(std::string_view name, const LayoutTable& table) {
  std::string text = "[";
  text.append(name).append("]\n").append(AltGrKey).append(table.altGr ? "=1\n" : "=0\n").append(DecimalKey) += '=';
  AppendSign(text, table.decimal);
  for (const auto& [evdev, sign] : table.signs) AppendSign(text.append(std::to_string(evdev)) += '=', sign);
  return text;
}

std::optional<LayoutTable> FindLayout(std::string_view text, std::string_view name) {
  const std::string heading = "[" + std::string(name) + "]";
  while (!text.empty()) {
    if (NextLine(text) != heading) continue;
    LayoutTable table;
    while (!text.empty() && text.front() != '[') {
      if (!ReadLine(NextLine(text), table)) return std::nullopt;
    }
    return table;
  }
  return std::nullopt;
}

}  // namespace plexel
