#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <optional>

#include "qt/keyboard.h"
#include "qt/qt_modal_loop.h"
#include "x11/server_keyboard.h"

namespace plexel {

/// The keyboard of an X server for the dialogs. While a keyboard hook is installed it takes every key ahead of the
/// toolkit; with the low-level hook it keeps the keyboard from the desktop too. It sees to lost releases and to the
/// layout in force.
class X11Capture : public QObject, public QAbstractNativeEventFilter, public KeyWatcher {
 public:
  /// Null on a desktop without an X server.
  static std::unique_ptr<X11Capture> OnThisDesktop(HookTable& hooks, Keyboard& keys, QtModalLoop& forms);
  ~X11Capture() override;

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
  void FormActivated(FormView& view) override;
  void FormDeactivated(FormView& view) override;
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  X11Capture(xcb_connection_t* connection, HookTable& hooks, Keyboard& keys, QtModalLoop& forms);

  bool IsKeymapEvent(const xcb_generic_event_t& event) const;
  /// The toolkit tells of a focus that leaves a moment late, and not at all of one that is back by then.
  void FocusMoves(const xcb_focus_in_event_t& event, bool comes);
  bool KeyArrives(const xcb_key_press_event_t& event, bool down);
  void Send(const RawKey& key, std::uint16_t state);
  void RepeatGapIsOver();
  void SendHeldRelease();
  /// Events went to the toolkit that it has not handled yet; keys behind them must not overtake them.
  void ToolkitIsBusy();
  void ReadLayout();
  void UpdateGrab();

  HookTable& hooks_;
  Keyboard& keys_;
  QtModalLoop& forms_;
  ServerKeyboard server_;
  std::uint8_t keyboardEvent_;  ///< number of the keyboard extension's events
  struct HeldRelease {
    RawKey key;
    std::uint16_t state;
  };
  std::optional<HeldRelease> heldRelease_;  ///< until it is certain that no repeat follows
  QTimer releaseTimer_, busyTimer_;
  bool layoutIsStale_ = false;
  std::optional<std::uint32_t> group_;  ///< of the layout in force, once a key has told it
};

}  // namespace plexel
