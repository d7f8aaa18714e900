#include "scancodes/key_names.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "services/code_page.h"
#include "services/failure_styles.h"

namespace plexel {

namespace {

constexpr std::string_view unknownKey = "UnknownKey";
constexpr std::int32_t virtualKeyDecimal = 0x6E, scanCodeShiftLeft = 0x2A;

struct KeyName {
  std::int32_t virtualKey;
  std::string_view name;
};
constexpr KeyName keyNames[] = {{0x08, "Backspace"},
                                {0x09, "Tab"},
                                {0x0C, "Numpad (off) 5"},
                                {0x13, "Pause"},
                                {0x14, "Caps Lock"},
                                {0x1B, "Esc"},
                                {0x20, "Space"},
                                {0x21, "Page Up"},
                                {0x22, "Page down"},
                                {0x23, "End"},
                                {0x24, "Pos1"},
                                {0x25, "Cursor Left"},
                                {0x26, "Cursor Up"},
                                {0x27, "Cursor Right"},
                                {0x28, "Cursor Down"},
                                {0x2C, "Print"},
                                {0x2D, "Insert"},
                                {0x2E, "Del"},
                                {0x5B, "Windows Left"},
                                {0x5C, "Windows Right"},
                                {0x5D, "Context"},
                                {0x60, "Numpad 0"},
                                {0x61, "Numpad 1"},
                                {0x62, "Numpad 2"},
                                {0x63, "Numpad 3"},
                                {0x64, "Numpad 4"},
                                {0x65, "Numpad 5"},
                                {0x66, "Numpad 6"},
                                {0x67, "Numpad 7"},
                                {0x68, "Numpad 8"},
                                {0x69, "Numpad 9"},
                                {0x6A, "Numpad *"},
                                {0x6B, "Numpad +"},
                                {0x6D, "Numpad -"},
                                {0x6F, "Numpad /"},
                                {0x70, "F1"},
                                {0x71, "F2"},
                                {0x72, "F3"},
                                {0x73, "F4"},
                                {0x74, "F5"},
                                {0x75, "F6"},
                                {0x76, "F7"},
                                {0x77, "F8"},
                                {0x78, "F9"},
                                {0x79, "F10"},
                                {0x7A, "F11"},
                                {0x7B, "F12"},
                                {0x7C, "F13"},
                                {0x7D, "F14"},
                                {0x7E, "F15"},
                                {0x7F, "F16"},
                                {0x80, "F17"},
                                {0x81, "F18"},
                                {0x82, "F19"},
                                {0x83, "F20"},
                                {0x84, "F21"},
                                {0x85, "F22"},
                                {0x86, "F23"},
                                {0x87, "F24"},
                                {0x90, "Num Lock"},
                                {0x91, "Scroll Lock"}};
static_assert(std::ranges::is_sorted(keyNames, {}, &KeyName::virtualKey));

/// The buffer that the layout writes 16-bit characters to and that is read back as 8-bit ones.
class LayoutText {
 public:
  LayoutText() { characters_.fill(0x2020); }  // two blanks each
  static constexpr std::int32_t Capacity = 48;
  char16_t* Data() { return characters_.data(); }
  /// The first `count` bytes, at least one, low byte first, without one trailing NUL.
  std::string Decode(std::int32_t count) const {
    std::string bytes;
    for (const char16_t character : characters_) {
      bytes += static_cast<char>(character & 0xFF);
      bytes += static_cast<char>(character >> 8);
    }
    bytes.resize(std::min(bytes.size(), static_cast<std::size_t>(count)));
    if (bytes.back() == '\0') bytes.pop_back();
    return FromCodePage(bytes);
  }

 private:
  std::array<char16_t, 50> characters_{};
};

/// No name holds a bare bracket, since brackets delimit the definition text.
std::string SpellBrackets(const std::string& text, std::string_view open, std::string_view close) {
  std::string spelled;
  for (const char character : text) {
    if (character == '[') {
      spelled += open;
    } else if (character == ']') {
      spelled += close;
    } else {
      spelled += character;
    }
  }
  return spelled;
}

std::string DecimalName(KeyboardLayout& port, KeyboardLayout::Handle layout, std::int32_t scanCode) {
  LayoutText text;
  const std::int32_t count = port.ToUnicode(virtualKeyDecimal, scanCode, text.Data(), LayoutText::Capacity, layout);
  if (count < 0) return std::string(unknownKey);
  return "Numpad " + (count == 0 ? "," : text.Decode(count));
}

std::string AsciiName(KeyboardLayout& port, KeyboardLayout::Handle layout, std::int32_t virtualKey,
                      std::int32_t scanCode) {
  std::uint16_t result = 0;
  if (port.ToAscii(virtualKey, scanCode, result, layout) == 0 || result > 0xFF) return std::string(unknownKey);
  return SpellBrackets(CharacterOf(static_cast<std::uint8_t>(result)), "Squared Bracket Open", "Square Bracket Close");
}

std::string UnicodeName(KeyboardLayout& port, KeyboardLayout::Handle layout, std::int32_t virtualKey,
                        std::int32_t scanCode) {
  LayoutText text;
  const std::int32_t count = port.ToUnicode(virtualKey, scanCode, text.Data(), LayoutText::Capacity, layout);
  const bool dead = count == -1;
  if (count <= 0 && !dead) return std::string(unknownKey);
  const std::string name =
      SpellBrackets(text.Decode(dead ? 1 : count), "Squared Bracket Open", "Squared Bracket Close");
  // The second call takes the pending accent out of the layout's state.
  if (dead) port.ToUnicode(virtualKey, scanCode, text.Data(), LayoutText::Capacity, layout);
  return name;
}

}  // namespace

std::string_view FixedKeyName(std::int32_t lngVirtualKey, std::int32_t lngScanCode, std::int32_t lngExtended) {
  switch (lngVirtualKey) {
    case 0x0D:
      return lngExtended == 1 ? "Numpad Enter" : "Return";
    case 0x10:
      return lngScanCode == scanCodeShiftLeft ? "Shift Left" : "Shift Right";
    case 0x11:
      return lngExtended == 1 ? "Ctrl Right" : "Ctrl Left";
    case 0x12:
      return lngExtended == 1 ? "Alt Gr" : "Alt";
    default: {
      const auto* found = std::ranges::lower_bound(keyNames, lngVirtualKey, {}, &KeyName::virtualKey);
      const bool named = found != std::end(keyNames) && found->virtualKey == lngVirtualKey;
      return named ? found->name : std::string_view();
    }
  }
}

std::string GetKeyName(std::int32_t lngVirtualKey, std::int32_t lngScanCode, std::int32_t lngExtended,
                       std::int32_t lngFamily) {
  return EndQuietlyWith(std::string(unknownKey), [&](std::string& name) {
    KeyboardLayout& port = Platform::Current().Layout();
    const KeyboardLayout::Handle layout = port.Current();
    const std::string_view fixed = FixedKeyName(lngVirtualKey, lngScanCode, lngExtended);
    if (!fixed.empty()) {
      name = fixed;
    } else if (lngVirtualKey == virtualKeyDecimal) {
      name = DecimalName(port, layout, lngScanCode);
    } else if (lngFamily == 0) {
      name = AsciiName(port, layout, lngVirtualKey, lngScanCode);
    } else {
      name = UnicodeName(port, layout, lngVirtualKey, lngScanCode);
    }
  });
}

}  // namespace plexel
