#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

#include "keyboard/desktop_keyboard.h"
#include "qt/keyboard.h"
#include "qt/qt_modal_loop.h"

namespace plexel {

/// A desktop's own keyboard for the dialogs. While a keyboard hook is installed it takes every key ahead of the
/// toolkit; with the low-level hook it keeps the keyboard from the desktop too. It sees to lost releases and to the
/// layout in force.
class DesktopCapture : public QObject, public QAbstractNativeEventFilter, public KeyWatcher {
 public:
  DesktopCapture(std::unique_ptr<DesktopKeyboard> desktop, HookTable& hooks, Keyboard& keys, QtModalLoop& forms);
  ~DesktopCapture() override;

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
  void FormActivated(FormView& view) override;
  void FormDeactivated(FormView& view) override;
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  /// The toolkit tells of a focus that leaves a moment late, and not at all of one that is back by then.
  void FocusMoves(const DesktopFocus& focus);
  bool KeyArrives(const DesktopKey& arrived);
  void Send(const DesktopKey& arrived);
  void RepeatGapIsOver();
  void SendHeldRelease();
  /// Events went to the toolkit that it has not handled yet; keys behind them must not overtake them.
  void ToolkitIsBusy();
  void ReadLayout();
  void UpdateGrab();

  std::unique_ptr<DesktopKeyboard> desktop_;
  HookTable& hooks_;
  Keyboard& keys_;
  QtModalLoop& forms_;
  std::optional<DesktopKey> heldRelease_;  ///< until it is certain that no repeat follows
  QTimer releaseTimer_, busyTimer_;
  bool layoutIsStale_ = false;
  std::optional<std::uint32_t> group_;  ///< of the layout in force, once a key has told it
};

}  // namespace plexel
