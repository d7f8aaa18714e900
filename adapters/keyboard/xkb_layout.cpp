#include "keyboard/xkb_layout.h"

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon.h>

#include <memory>
#include <string>

#include "keyboard/key_table.h"
#include "platform/failure.h"

namespace plexel {

namespace {

constexpr xkb_keycode_t FirstKeycode = 8;

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

struct Deleter {
  void operator()(xkb_context* context) const { xkb_context_unref(context); }
  void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
};
template <class T>
using Owned = std::unique_ptr<T, Deleter>;

Owned<xkb_keymap> Compile(const std::string& name) {
  const Owned<xkb_context> context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
  if (!context) throw Failure(FailureKind::Platform, "no context for keyboard layouts");
  xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
  const std::size_t open = name.find('(');
  const std::string layout = name.substr(0, open);
  std::string variant;
  if (open != std::string::npos && name.ends_with(')')) variant = name.substr(open + 1, name.size() - open - 2);
  const xkb_rule_names names{"evdev", "pc105", layout.c_str(), variant.c_str(), ""};
  Owned<xkb_keymap> keymap(
      layout.empty() ? nullptr : xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
  if (!keymap) throw Failure(FailureKind::Platform, "unknown keyboard layout \"" + name + "\"");
  return keymap;
}

xkb_keysym_t SymbolOf(xkb_keymap* keymap, std::uint32_t group, int code, std::uint32_t level) {
  const xkb_keysym_t* symbols = nullptr;
  const auto keycode = static_cast<xkb_keycode_t>(code) + FirstKeycode;
  const int count = xkb_keymap_key_get_syms_by_level(keymap, keycode, group, level, &symbols);
  return count == 1 ? symbols[0] : static_cast<xkb_keysym_t>(XKB_KEY_NoSymbol);
}

KeySign SignOf(xkb_keysym_t symbol) {
  for (const DeadKey& dead : deadKeys) {
    if (dead.symbol == symbol) return {dead.accent, true};
  }
  return {xkb_keysym_to_utf32(symbol), false};
}

}  // namespace

LayoutTable TableOfKeymap(xkb_keymap* keymap, std::uint32_t group) {
  constexpr std::uint32_t plain = 0, numLock = 1;
  LayoutTable table;
  for (const KeyPosition& position : KeyPositions()) {
    const KeySign sign = SignOf(SymbolOf(keymap, group, position.evdev, plain));
    if (sign.character != 0) table.signs.emplace(position.evdev, sign);
  }
  table.decimal = SignOf(SymbolOf(keymap, group, evdev::PadDecimal, numLock));
  table.altGr = SymbolOf(keymap, group, evdev::RightAlt, plain) == XKB_KEY_ISO_Level3_Shift;
  return table;
}

LayoutTable TableOfRules(const std::string& name) { return TableOfKeymap(Compile(name).get(), 0); }

}  // namespace plexel
