#include "project/plain_text.h"

#include "forms/characters.h"

namespace plexel {

namespace {

constexpr std::string_view Replacement = "\uFFFD";

bool IsInXml(char32_t character) {
  const bool control = character < 0x20 && character != '\t' && character != '\n' && character != '\r';
  return !control && character != 0x7F && character != 0xFFFE && character != 0xFFFF;
}

std::string_view ReferenceOf(char32_t character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return {};
  }
}

}  // namespace

std::string WellFormed(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const characters::Decoded next = characters::First(text);
    plain += next.broken ? Replacement : text.substr(0, next.length);
    text.remove_prefix(next.length);
  }
  return plain;
}

std::string MarkupText(std::string_view text) {
  std::string markup;
  while (!text.empty()) {
    const characters::Decoded next = characters::First(text);
    if (const std::string_view reference = ReferenceOf(next.character); !reference.empty()) {
      markup += reference;
    } else {
      const bool stays = !next.broken && IsInXml(next.character);
      markup += stays ? text.substr(0, next.length) : Replacement;
    }
    text.remove_prefix(next.length);
  }
  return markup;
}

}  // namespace plexel
