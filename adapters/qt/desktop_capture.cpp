#include "qt/desktop_capture.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

#include "keyboard/typed_character.h"
#include "platform/failure.h"
#include "qt/form_view.h"

namespace plexel {

namespace {
/// An automatic repeat is a release and a press of one time; the press comes at once.
constexpr int RepeatGapMilliseconds = 5;
}  // namespace

DesktopCapture::DesktopCapture(std::unique_ptr<DesktopKeyboard> desktop, HookTable& hooks, Keyboard& keys,
                               QtModalLoop& forms)
    : desktop_(std::move(desktop)), hooks_(hooks), keys_(keys), forms_(forms) {
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

DesktopCapture::~DesktopCapture() {
  hooks_.onChange = nullptr;
  qApp->removeNativeEventFilter(this);
}

bool DesktopCapture::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
  const DesktopEvent event = desktop_->Read({eventType.data(), static_cast<std::size_t>(eventType.size())}, message);
  if (const auto* key = std::get_if<DesktopKey>(&event)) return KeyArrives(*key);
  if (const auto* focus = std::get_if<DesktopFocus>(&event)) FocusMoves(*focus);
  if (std::holds_alternative<DesktopLayout>(event)) layoutIsStale_ = true;
  if (std::holds_alternative<DesktopButton>(event)) {
    SendHeldRelease();
    ToolkitIsBusy();
  }
  return false;
}

void DesktopCapture::FocusMoves(const DesktopFocus& focus) {
  FormView* const view = forms_.Topmost();
  if (view == nullptr || focus.window != view->Window().winId()) return;
  if (focus.comes) {
    FormActivated(*view);
  } else {
    FormDeactivated(*view);
  }
}

bool DesktopCapture::KeyArrives(const DesktopKey& arrived) {
  const RawKey& key = arrived.key;
  const bool repeats =
      key.down && heldRelease_ && heldRelease_->key.evdev == key.evdev && heldRelease_->key.time == key.time;
  if (repeats) {
    heldRelease_.reset();
    releaseTimer_.stop();
  }
  SendHeldRelease();
  if (layoutIsStale_ || arrived.group != group_) {
    group_ = arrived.group;
    ReadLayout();
  }
  if (forms_.ActiveView() == nullptr) return false;
  if (!keys_.Captures() || busyTimer_.isActive()) {
    ToolkitIsBusy();
    return false;
  }
  if (key.down) {
    Send(arrived);
  } else {
    heldRelease_ = arrived;
    releaseTimer_.start();
  }
  return true;
}

void DesktopCapture::Send(const DesktopKey& arrived) {
  FormView* const view = forms_.Topmost();
  if (view == nullptr) return;
  const auto toForm = [this, view](const KeyEvent& event, bool leads) {
    if (!leads) return view->TakeKey(event, 0);
    char16_t plain = 0;
    keys_.Layout().ToUnicode(event.virtualKey, event.scanCode, &plain, 1, keys_.Layout().Current());
    view->TakeKey(event, TypedCharacter(event.virtualKey, keys_.ShiftState(), plain));
  };
  view->Contain([&] { keys_.Feed(arrived.key, arrived.numLock, toForm); });
}

void DesktopCapture::RepeatGapIsOver() {
  // The press of a key that is down again is on its way, and tells whether the release was one.
  if (heldRelease_ && desktop_->ReadKeys()[static_cast<std::size_t>(heldRelease_->key.evdev)]) {
    return releaseTimer_.start();
  }
  SendHeldRelease();
}

void DesktopCapture::SendHeldRelease() {
  releaseTimer_.stop();
  if (!heldRelease_) return;
  const DesktopKey held = *heldRelease_;
  heldRelease_.reset();
  Send(held);
}

void DesktopCapture::ToolkitIsBusy() { busyTimer_.start(); }

void DesktopCapture::ReadLayout() {
  layoutIsStale_ = false;
  try {
    keys_.Layout(desktop_->ReadLayout());
  } catch (const Failure& failure) {
    qWarning("%s", failure.what());
  }
}

void DesktopCapture::FormActivated(FormView& view) {
  const auto toForm = [&view](const KeyEvent& event, bool) { view.TakeKey(event, 0); };
  view.Contain([&] { keys_.ReleaseLost(desktop_->ReadKeys(), toForm); });
  UpdateGrab();
}

void DesktopCapture::FormDeactivated(FormView&) { desktop_->Ungrab(); }

bool DesktopCapture::eventFilter(QObject*, QEvent* event) {
  // A popup takes the keyboard for itself and drops the grab when it closes.
  if (event->type() == QEvent::Hide && hooks_.Installed(HookKind::LowLevelKeyboard)) {
    QMetaObject::invokeMethod(this, [this] { UpdateGrab(); }, Qt::QueuedConnection);
  }
  return false;
}

void DesktopCapture::UpdateGrab() {
  FormView* const view = forms_.ActiveView();
  if (view == nullptr || !hooks_.Installed(HookKind::LowLevelKeyboard)) return desktop_->Ungrab();
  if (!desktop_->Grab(view->Window().winId())) {
    qWarning("the keyboard cannot be taken from the desktop: another program holds it");
  }
}

}  // namespace plexel
