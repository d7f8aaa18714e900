#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "keyboard/win_keys.h"
#include "platform/keyboard.h"

namespace plexel {

/// What a key types without any modifier.
struct KeySign {
  char32_t character = 0;  ///< 0 for none; of a dead key its accent, standing alone
  bool dead = false;
  bool operator==(const KeySign&) const = default;
};

/// What a layout puts on the keys of a PC.
struct LayoutTable {
  std::map<int, KeySign> signs;  ///< by evdev code, Num Lock off; keys that type nothing are left out
  KeySign decimal;               ///< the number pad's decimal key with Num Lock on
  bool altGr = false;            ///< whether the right Alt key is Alt Gr
  bool operator==(const LayoutTable&) const = default;
};

/// A keyboard layout out of a table, which is asked for at the first question: the characters on its keys, its dead
/// keys, and its virtual keys. Questions whose table could not be made are Failures (Platform).
class TableLayout : public KeyboardLayout, public LayoutKeys {
 public:
  using Source = std::function<LayoutTable()>;  ///< Failure (Platform) for a layout that is unknown

  /// The name is that of the layout's rules, with a variant in round brackets: "us", "de", "de(nodeadkeys)".
  TableLayout(std::string name, Source source);

  /// Asks for the table; Failure (Platform) for an unknown layout.
  void Load() const;
  const LayoutTable& Table() const;

  Handle Current() override { return 1; }
  std::int32_t ToUnicode(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text, std::int32_t capacity,
                         Handle layout) override;
  std::int32_t ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result, Handle layout) override;
  std::int32_t VirtualKeyOf(int evdev) const override;
  bool HasAltGr() const override;

 private:
  KeySign SignOf(int evdev) const;
  KeySign SignOfVirtualKey(std::int32_t virtualKey) const;
  std::int32_t FindVirtualKey(int evdev) const;

  std::string name_;
  mutable Source source_;  ///< empty when the table is there
  mutable LayoutTable table_;
  mutable std::map<std::int32_t, int> evdevOf_;  ///< the key of the main block that carries a virtual key
};

}  // namespace plexel
