#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>

#include "keyboard/hook_table.h"
#include "keyboard/table_layout.h"
#include "keyboard/win_keys.h"
#include "platform/keyboard.h"

namespace plexel {

/// The keyboard as the dialogs know it: takes keys of the desktop in their order, keeps which are down, and sends each
/// on its road, the hooks first and then the form.
class Keyboard : public KeyState {
 public:
  /// The rest of the road of one event. `leads` tells the event that carries the key's character from those that
  /// belong to it, such as the false left Ctrl of Alt Gr.
  using ToForm = std::function<void(const KeyEvent& event, bool leads)>;

  explicit Keyboard(HookTable& hooks);

  /// Sends one key of the desktop on its road.
  void Feed(const RawKey& key, bool numLock, const ToForm& toForm);
  /// Sends the releases of keys that are down as far as the events told, but not in `really`.
  void ReleaseLost(const WinKeys::KeySet& really, const ToForm& toForm);
  /// Whether the keys are kept from the widgets.
  bool Captures() const { return hooks_.Installed(HookKind::Keyboard); }

  std::int16_t Asynchronous(std::int32_t virtualKey) override { return StateOf(virtualKey); }
  std::int16_t Synchronous(std::int32_t virtualKey) override { return StateOf(virtualKey); }
  /// The state of Shift, Ctrl and Alt as the bits of a key event.
  std::int16_t ShiftState() const;

  TableLayout& Layout() { return *layout_; }
  void Layout(std::unique_ptr<TableLayout> layout) { layout_ = std::move(layout); }
  /// The name of the layout that the session's settings name: XKB_DEFAULT_LAYOUT, else the language of the input.
  static std::string SessionLayout();

 private:
  void Keep(const KeyEvent& event);
  bool IsDown(std::int32_t virtualKey) const;
  std::int16_t StateOf(std::int32_t virtualKey) const;

  HookTable& hooks_;
  WinKeys winKeys_;
  std::unique_ptr<TableLayout> layout_;
  std::array<std::int32_t, 512> down_{};  ///< by scan code and extended flag: the virtual key that is down there
  bool numLock_ = false;
};

}  // namespace plexel
