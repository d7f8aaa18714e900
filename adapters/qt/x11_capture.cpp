#include "qt/x11_capture.h"

#include <QtGui/qguiapplication_platform.h>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <cstdlib>
#include <string_view>

#include "keyboard/typed_character.h"
#include "platform/failure.h"
#include "qt/form_view.h"

namespace plexel {

namespace {

constexpr std::uint8_t FirstKeycode = 8;
constexpr std::uint8_t SyntheticBit = 0x80;
/// An automatic repeat is a release and a press of one time; the press comes at once.
constexpr int RepeatGapMilliseconds = 5;

/// The first event number of the keyboard extension, 0 for a server without it.
std::uint8_t KeyboardEventOf(xcb_connection_t* connection) {
  constexpr std::string_view Name = "XKEYBOARD";
  const std::unique_ptr<xcb_query_extension_reply_t, decltype(&std::free)> reply(
      xcb_query_extension_reply(connection, xcb_query_extension(connection, Name.size(), Name.data()), nullptr),
      &std::free);
  return reply && reply->present ? reply->first_event : std::uint8_t{0};
}

std::uint32_t GroupOf(std::uint16_t state) { return (state >> 13U) & 3U; }

/// Whether the event has to do with the mouse's buttons, which the X input extension reports in an event of its own.
bool IsButtonEvent(const xcb_generic_event_t& event) {
  constexpr std::uint16_t ExtensionButtonPress = 4, ExtensionButtonRelease = 5;
  switch (event.response_type & ~SyntheticBit) {
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE:
      return true;
    case XCB_GE_GENERIC: {
      const auto type = reinterpret_cast<const xcb_ge_generic_event_t&>(event).event_type;
      return type == ExtensionButtonPress || type == ExtensionButtonRelease;
    }
    default:
      return false;
  }
}

}  // namespace

std::unique_ptr<X11Capture> X11Capture::OnThisDesktop(HookTable& hooks, Keyboard& keys, QtModalLoop& forms) {
  const auto* desktop = qApp->nativeInterface<QNativeInterface::QX11Application>();
  if (desktop == nullptr || desktop->connection() == nullptr) return nullptr;
  return std::unique_ptr<X11Capture>(new X11Capture(desktop->connection(), hooks, keys, forms));
}

X11Capture::X11Capture(xcb_connection_t* connection, HookTable& hooks, Keyboard& keys, QtModalLoop& forms)
    : hooks_(hooks), keys_(keys), forms_(forms), server_(connection), keyboardEvent_(KeyboardEventOf(connection)) {
  releaseTimer_.setSingleShot(true);
  releaseTimer_.setInterval(RepeatGapMilliseconds);
  busyTimer_.setSingleShot(true);
  busyTimer_.setInterval(0);
  connect(&releaseTimer_, &QTimer::timeout, this, [this] { RepeatGapIsOver(); });
  hooks_.onChange = [this](HookKind kind, bool) {
    if (kind == HookKind::LowLevelKeyboard) UpdateGrab();
  };
  ReadLayout();
  qApp->installNativeEventFilter(this);
  qApp->installEventFilter(this);
}

X11Capture::~X11Capture() {
  hooks_.onChange = nullptr;
  qApp->removeNativeEventFilter(this);
}

bool X11Capture::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
  if (eventType != "xcb_generic_event_t") return false;
  const auto& event = *static_cast<const xcb_generic_event_t*>(message);
  const int type = event.response_type & ~SyntheticBit;
  if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
    return KeyArrives(reinterpret_cast<const xcb_key_press_event_t&>(event), type == XCB_KEY_PRESS);
  }
  if (IsButtonEvent(event)) {
    SendHeldRelease();
    ToolkitIsBusy();
  }
  if (type == XCB_FOCUS_IN || type == XCB_FOCUS_OUT) {
    FocusMoves(reinterpret_cast<const xcb_focus_in_event_t&>(event), type == XCB_FOCUS_IN);
  }
  if (type == XCB_MAPPING_NOTIFY || IsKeymapEvent(event)) layoutIsStale_ = true;
  return false;
}

void X11Capture::FocusMoves(const xcb_focus_in_event_t& event, bool comes) {
  FormView* const view = forms_.Topmost();
  const bool ofThePointer = event.detail == XCB_NOTIFY_DETAIL_POINTER || event.detail == XCB_NOTIFY_DETAIL_INFERIOR;
  if (view == nullptr || event.event != view->Window().winId() || ofThePointer) return;
  const bool grabBegins = event.mode == XCB_NOTIFY_MODE_GRAB, grabEnds = event.mode == XCB_NOTIFY_MODE_UNGRAB;
  if (comes && !grabBegins) FormActivated(*view);
  if (!comes && !grabBegins && !grabEnds) FormDeactivated(*view);
}

bool X11Capture::IsKeymapEvent(const xcb_generic_event_t& event) const {
  constexpr std::uint8_t NewKeyboard = 0, NewMap = 1;
  const bool ofKeyboard = keyboardEvent_ != 0 && (event.response_type & ~SyntheticBit) == keyboardEvent_;
  return ofKeyboard && (event.pad0 == NewKeyboard || event.pad0 == NewMap);
}

bool X11Capture::KeyArrives(const xcb_key_press_event_t& event, bool down) {
  const RawKey key{event.detail - FirstKeycode, down, event.time};
  const bool repeats =
      down && heldRelease_ && heldRelease_->key.evdev == key.evdev && heldRelease_->key.time == key.time;
  if (repeats) {
    heldRelease_.reset();
    releaseTimer_.stop();
  }
  SendHeldRelease();
  if (layoutIsStale_ || GroupOf(event.state) != group_) {
    group_ = GroupOf(event.state);
    ReadLayout();
  }
  if (forms_.ActiveView() == nullptr) return false;
  if (!keys_.Captures() || busyTimer_.isActive()) {
    ToolkitIsBusy();
    return false;
  }
  if (down) {
    Send(key, event.state);
  } else {
    heldRelease_ = {key, event.state};
    releaseTimer_.start();
  }
  return true;
}

void X11Capture::Send(const RawKey& key, std::uint16_t state) {
  FormView* const view = forms_.Topmost();
  if (view == nullptr) return;
  keys_.Feed(key, ServerKeyboard::NumLockOn(state), [this, view](const KeyEvent& event, bool leads) {
    if (!leads) return view->TakeKey(event, 0);
    char16_t plain = 0;
    keys_.Layout().ToUnicode(event.virtualKey, event.scanCode, &plain, 1, keys_.Layout().Current());
    view->TakeKey(event, TypedCharacter(event.virtualKey, keys_.ShiftState(), plain));
  });
}

void X11Capture::RepeatGapIsOver() {
  // The press of a key that is down again is on its way, and tells whether the release was one.
  if (heldRelease_ && server_.ReadKeys()[static_cast<std::size_t>(heldRelease_->key.evdev)]) {
    return releaseTimer_.start();
  }
  SendHeldRelease();
}

void X11Capture::SendHeldRelease() {
  releaseTimer_.stop();
  if (!heldRelease_) return;
  const HeldRelease held = *heldRelease_;
  heldRelease_.reset();
  Send(held.key, held.state);
}

void X11Capture::ToolkitIsBusy() { busyTimer_.start(); }

void X11Capture::ReadLayout() {
  layoutIsStale_ = false;
  try {
    keys_.Layout(server_.ReadLayout());
  } catch (const Failure& failure) {
    qWarning("%s", failure.what());
  }
}

void X11Capture::FormActivated(FormView& view) {
  keys_.ReleaseLost(server_.ReadKeys(), [&view](const KeyEvent& event, bool) { view.TakeKey(event, 0); });
  UpdateGrab();
}

void X11Capture::FormDeactivated(FormView&) { server_.Ungrab(); }

bool X11Capture::eventFilter(QObject*, QEvent* event) {
  // A popup takes the keyboard for itself and drops the grab when it closes.
  if (event->type() == QEvent::Hide && hooks_.Installed(HookKind::LowLevelKeyboard)) {
    QMetaObject::invokeMethod(
        this, [this] { UpdateGrab(); }, Qt::QueuedConnection);
  }
  return false;
}

void X11Capture::UpdateGrab() {
  FormView* const view = forms_.ActiveView();
  if (view == nullptr || !hooks_.Installed(HookKind::LowLevelKeyboard)) return server_.Ungrab();
  if (!server_.Grab(static_cast<xcb_window_t>(view->Window().winId()))) {
    qWarning("the keyboard cannot be taken from the desktop: another program holds it");
  }
}

}  // namespace plexel
