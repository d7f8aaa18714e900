#include "keyboard/table_layout.h"

#include <utility>

#include "forms/ascii.h"
#include "keyboard/key_table.h"
#include "services/code_page.h"

namespace plexel {

namespace {

constexpr std::int32_t VkDecimal = 0x6E;

/// The signs whose virtual key follows the sign, wherever a layout puts it.
constexpr std::int32_t VirtualKeyOfSign(char32_t character) {
  switch (character) {
    case ',':
      return 0xBC;
    case '.':
      return 0xBE;
    case '-':
      return 0xBD;
    case '+':
      return 0xBB;
    default:
      return 0;
  }
}

/// The keys between the digits and the bottom row whose virtual key a layout chooses.
bool ChosenByLayout(int code) {
  return (code >= 12 && code <= 13) || (code >= 16 && code <= 27) || (code >= 30 && code <= 41) ||
         (code >= 43 && code <= 53);
}

std::string LanguagePart(const std::string& name) { return name.substr(0, name.find_first_of("(+:")); }

}  // namespace

TableLayout::TableLayout(std::string name, Source source) : name_(std::move(name)), source_(std::move(source)) {}

void TableLayout::Load() const {
  if (!source_) return;
  table_ = source_();
  source_ = nullptr;
  for (const KeyPosition& position : KeyPositions()) evdevOf_.emplace(FindVirtualKey(position.evdev), position.evdev);
}

const LayoutTable& TableLayout::Table() const {
  Load();
  return table_;
}

KeySign TableLayout::SignOf(int code) const {
  const auto found = table_.signs.find(code);
  return found == table_.signs.end() ? KeySign{} : found->second;
}

std::int32_t TableLayout::FindVirtualKey(int code) const {
  const KeyPosition* position = FindKeyPosition(code);
  if (position == nullptr) return 0;
  if (!ChosenByLayout(code)) return position->virtualKeyUs;
  const KeySign sign = SignOf(code);
  const char32_t character = sign.dead ? 0 : sign.character;
  if (character >= 'a' && character <= 'z') return ascii::Upper(static_cast<char>(character));
  const std::string language = LanguagePart(name_);
  if (language == "de" || language == "at") return position->virtualKeyGerman;
  if (language == "fr") return position->virtualKeyFrench;
  const std::int32_t virtualKey = VirtualKeyOfSign(character);
  return virtualKey != 0 ? virtualKey : position->virtualKeyUs;
}

std::int32_t TableLayout::VirtualKeyOf(int code) const {
  Load();
  return FindVirtualKey(code);
}

bool TableLayout::HasAltGr() const {
  Load();
  return table_.altGr;
}

KeySign TableLayout::SignOfVirtualKey(std::int32_t virtualKey) const {
  if (virtualKey == VkDecimal) return table_.decimal;
  const auto found = evdevOf_.find(virtualKey);
  if (found == evdevOf_.end()) return {};
  return SignOf(found->second);
}

std::int32_t TableLayout::ToUnicode(std::int32_t virtualKey, std::int32_t, char16_t* text, std::int32_t capacity,
                                    Handle) {
  Load();
  if (capacity < 1) return 0;
  const KeySign sign = SignOfVirtualKey(virtualKey);
  if (sign.character == 0 || sign.character > 0xFFFF) return 0;
  text[0] = static_cast<char16_t>(sign.character);
  return sign.dead ? -1 : 1;
}

std::int32_t TableLayout::ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result,
                                  Handle layout) {
  char16_t text = 0;
  const std::int32_t count = ToUnicode(virtualKey, scanCode, &text, 1, layout);
  const std::int32_t code = count == 0 ? -1 : CodeOf(text);
  if (code < 0) return 0;
  result = static_cast<std::uint16_t>(code);
  return count;
}

}  // namespace plexel
