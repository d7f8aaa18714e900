#pragma once

#include <map>
#include <memory>
#include <string>

#include "keyboard/win_keys.h"
#include "platform/keyboard.h"

struct xkb_context;
struct xkb_keymap;

namespace plexel {

/// A keyboard layout known to the X keyboard extension: the characters on its keys (level 0 of one group), its dead
/// keys, and its virtual keys. Questions before the layout could be compiled are Failures (Platform).
class XkbLayout : public KeyboardLayout, public LayoutKeys {
 public:
  /// A layout by its rule name, with a variant in round brackets: "us", "de", "de(nodeadkeys)". It is compiled at the
  /// first question, or by Load.
  explicit XkbLayout(std::string name);
  /// One group of a keymap that is at hand. Takes a reference of its own.
  XkbLayout(xkb_keymap* keymap, std::uint32_t group, std::string name);
  ~XkbLayout() override;

  /// Compiles the layout; Failure (Platform) for an unknown one.
  void Load() const;
  const std::string& Name() const { return name_; }

  Handle Current() override { return 1; }
  std::int32_t ToUnicode(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text, std::int32_t capacity,
                         Handle layout) override;
  std::int32_t ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result, Handle layout) override;
  std::int32_t VirtualKeyOf(int evdev) const override;
  bool HasAltGr() const override;

 private:
  std::uint32_t SymbolOf(int evdev, std::uint32_t level) const;
  std::uint32_t SymbolOfVirtualKey(std::int32_t virtualKey) const;
  std::int32_t FindVirtualKey(int evdev) const;

  std::string name_;
  mutable xkb_keymap* keymap_ = nullptr;
  std::uint32_t group_ = 0;
  mutable std::map<std::int32_t, int> evdevOf_;  ///< the key of the main block that carries a virtual key
};

}  // namespace plexel
