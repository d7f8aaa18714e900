#include "keyboard/xkb_layout.h"

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon.h>

#include <array>

#include "keyboard/key_table.h"
#include "platform/failure.h"
#include "services/code_page.h"

namespace plexel {

namespace {

constexpr xkb_keycode_t FirstKeycode = 8;
constexpr std::int32_t VkDecimal = 0x6E;

struct DeadKey {
  xkb_keysym_t symbol;
  char16_t accent;
};

constexpr DeadKey deadKeys[] = {
    {XKB_KEY_dead_grave, u'`'},          {XKB_KEY_dead_acute, u'\u00B4'},
    {XKB_KEY_dead_circumflex, u'^'},     {XKB_KEY_dead_tilde, u'~'},
    {XKB_KEY_dead_macron, u'\u00AF'},    {XKB_KEY_dead_breve, u'\u02D8'},
    {XKB_KEY_dead_abovedot, u'\u02D9'},  {XKB_KEY_dead_diaeresis, u'\u00A8'},
    {XKB_KEY_dead_abovering, u'\u00B0'}, {XKB_KEY_dead_doubleacute, u'\u02DD'},
    {XKB_KEY_dead_caron, u'\u02C7'},     {XKB_KEY_dead_cedilla, u'\u00B8'},
    {XKB_KEY_dead_ogonek, u'\u02DB'},    {XKB_KEY_dead_stroke, u'/'},
};

/// The signs whose virtual key follows the sign, wherever a layout puts it.
constexpr std::int32_t VirtualKeyOfSign(std::uint32_t character) {
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

struct ContextDeleter {
  void operator()(xkb_context* context) const { xkb_context_unref(context); }
};

xkb_keymap* Compile(const std::string& name) {
  const std::unique_ptr<xkb_context, ContextDeleter> context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
  if (!context) throw Failure(FailureKind::Platform, "no context for keyboard layouts");
  xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
  const std::size_t open = name.find('(');
  const std::string layout = name.substr(0, open);
  std::string variant;
  if (open != std::string::npos && name.ends_with(')')) variant = name.substr(open + 1, name.size() - open - 2);
  const xkb_rule_names names{"evdev", "pc105", layout.c_str(), variant.c_str(), ""};
  xkb_keymap* keymap =
      layout.empty() ? nullptr : xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
  if (keymap == nullptr) throw Failure(FailureKind::Platform, "unknown keyboard layout \"" + name + "\"");
  return keymap;
}

}  // namespace

XkbLayout::XkbLayout(std::string name) : name_(std::move(name)) {}

XkbLayout::XkbLayout(xkb_keymap* keymap, std::uint32_t group, std::string name)
    : name_(std::move(name)), keymap_(xkb_keymap_ref(keymap)), group_(group) {}

XkbLayout::~XkbLayout() { xkb_keymap_unref(keymap_); }

void XkbLayout::Load() const {
  if (keymap_ == nullptr) keymap_ = Compile(name_);
  if (!evdevOf_.empty()) return;
  for (const KeyPosition& position : KeyPositions()) evdevOf_.emplace(FindVirtualKey(position.evdev), position.evdev);
}

std::uint32_t XkbLayout::SymbolOf(int code, std::uint32_t level) const {
  const xkb_keysym_t* symbols = nullptr;
  const auto keycode = static_cast<xkb_keycode_t>(code) + FirstKeycode;
  const int count = xkb_keymap_key_get_syms_by_level(keymap_, keycode, group_, level, &symbols);
  return count == 1 ? symbols[0] : static_cast<std::uint32_t>(XKB_KEY_NoSymbol);
}

std::int32_t XkbLayout::FindVirtualKey(int code) const {
  const KeyPosition* position = FindKeyPosition(code);
  if (position == nullptr) return 0;
  if (!ChosenByLayout(code)) return position->virtualKeyUs;
  const std::uint32_t character = xkb_keysym_to_utf32(SymbolOf(code, 0));
  if (character >= 'a' && character <= 'z') return static_cast<std::int32_t>(character - 'a' + 'A');
  const std::string language = LanguagePart(name_);
  if (language == "de" || language == "at") return position->virtualKeyGerman;
  if (language == "fr") return position->virtualKeyFrench;
  const std::int32_t sign = VirtualKeyOfSign(character);
  return sign != 0 ? sign : position->virtualKeyUs;
}

std::int32_t XkbLayout::VirtualKeyOf(int code) const {
  Load();
  return FindVirtualKey(code);
}

bool XkbLayout::HasAltGr() const {
  Load();
  return SymbolOf(evdev::RightAlt, 0) == XKB_KEY_ISO_Level3_Shift;
}

std::uint32_t XkbLayout::SymbolOfVirtualKey(std::int32_t virtualKey) const {
  constexpr std::uint32_t plain = 0, numLock = 1;
  if (virtualKey == VkDecimal) return SymbolOf(evdev::PadDecimal, numLock);
  const auto found = evdevOf_.find(virtualKey);
  if (virtualKey == 0 || found == evdevOf_.end()) return XKB_KEY_NoSymbol;
  return SymbolOf(found->second, plain);
}

std::int32_t XkbLayout::ToUnicode(std::int32_t virtualKey, std::int32_t, char16_t* text, std::int32_t capacity,
                                  Handle) {
  Load();
  if (capacity < 1) return 0;
  const std::uint32_t symbol = SymbolOfVirtualKey(virtualKey);
  for (const DeadKey& dead : deadKeys) {
    if (dead.symbol != symbol) continue;
    text[0] = dead.accent;
    return -1;
  }
  const std::uint32_t character = xkb_keysym_to_utf32(symbol);
  if (character == 0 || character > 0xFFFF) return 0;
  text[0] = static_cast<char16_t>(character);
  return 1;
}

std::int32_t XkbLayout::ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result, Handle layout) {
  char16_t text = 0;
  const std::int32_t count = ToUnicode(virtualKey, scanCode, &text, 1, layout);
  const std::int32_t code = count == 0 ? -1 : CodeOf(text);
  if (code < 0) return 0;
  result = static_cast<std::uint16_t>(code);
  return count;
}

}  // namespace plexel
