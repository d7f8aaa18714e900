#include "qt/qt_modal_loop.h"

#include <QApplication>
#include <QDialog>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

#include "platform/clean_up.h"
#include "platform/failure.h"
#include "qt/form_view.h"
#include "qt/keyboard.h"

namespace plexel {

QtModalLoop::QtModalLoop(Keyboard& keys) : keys_(keys) {}

QtModalLoop::~QtModalLoop() = default;

void QtModalLoop::Prepare(Form&) {
  if (QCoreApplication::closingDown()) throw Failure(FailureKind::Platform, "the program is ending");
}

void QtModalLoop::Run(Form& form, Window* owner) {
  QEventLoop loop;
  std::exception_ptr thrown;
  open_.push_back({std::make_unique<FormView>(form, WidgetOf(owner), *this), &loop, &thrown});
  std::unique_ptr<FormView> view;
  {
    const AtEnd taken([&] {
      view = std::move(open_.back().view);
      open_.pop_back();
    });
    open_.back().view->Show();
    if (form.IsShown() && !thrown) loop.exec();
  }
  if (thrown) std::rethrow_exception(thrown);
  if (form.IsShown()) form.Unload(UnloadMode::CloseBox);
  // Where nested dialogs close at once, a window manager may leave the focus with none of the windows below.
  if (QWidget* const below = WidgetOf(owner)) below->activateWindow();
}

void QtModalLoop::Closed(Form& form) {
  for (const Open& one : open_) {
    if (&one.view->Model() != &form) continue;
    one.view->Hide();
    one.loop->quit();
  }
}

void QtModalLoop::Popup(Form& form, MenuItem& menu, bool placed, float x, float y) {
  FormView* const view = ViewOf(form);
  if (view == nullptr) throw Failure(FailureKind::InvalidCall, form.Name() + " is not shown");
  view->OpenMenu(menu, placed, x, y);
}

void QtModalLoop::Forget(const Window& window) {
  std::erase_if(hostWindows_, [&window](const auto& known) { return known.first == &window; });
}

FormView* QtModalLoop::ViewOf(const Form& form) const {
  for (const Open& one : open_) {
    if (&one.view->Model() == &form) return one.view.get();
  }
  return nullptr;
}

QWidget* QtModalLoop::WidgetOf(const Window* window) const {
  for (const Open& one : open_) {
    if (static_cast<const Window*>(&one.view->Model()) == window) return &one.view->Window();
  }
  for (const auto& [known, widget] : hostWindows_) {
    if (known == window) return widget ? widget->window() : nullptr;
  }
  return nullptr;
}

FormView* QtModalLoop::Topmost() const { return open_.empty() ? nullptr : open_.back().view.get(); }

FormView* QtModalLoop::ActiveView() const {
  FormView* const top = Topmost();
  if (top == nullptr || QApplication::activePopupWidget() != nullptr) return nullptr;
  return QApplication::activeWindow() == &top->Window() ? top : nullptr;
}

void QtModalLoop::SyncViews() {
  if (syncing_) return;
  const QScopedValueRollback<bool> guard(syncing_, true);
  for (std::size_t place = 0; place < open_.size(); ++place) {
    if (open_[place].view->Model().IsShown()) open_[place].view->Sync();
  }
}

void QtModalLoop::SyncAll() {
  SyncViews();
  if (syncPlanned_) return;
  syncPlanned_ = true;
  QTimer::singleShot(0, &timerContext_, [this] {
    syncPlanned_ = false;
    SyncViews();
  });
}

void QtModalLoop::Activated(FormView& view) {
  if (watcher_ != nullptr) {
    watcher_->FormActivated(view);
  } else {
    view.Contain([&] { keys_.ReleaseLost({}, [&view](const KeyEvent& event, bool) { view.TakeKey(event, 0); }); });
  }
}

void QtModalLoop::Deactivated(FormView& view) {
  if (watcher_ != nullptr) watcher_->FormDeactivated(view);
}

void QtModalLoop::Abandon(std::exception_ptr thrown) {
  if (open_.empty()) return Report("an act failed behind the end of its form");
  if (!*open_.back().thrown) *open_.back().thrown = std::move(thrown);
  open_.back().loop->quit();
}

void QtModalLoop::OwnerGone(FormView& view) {
  const auto first =
      std::find_if(open_.begin(), open_.end(), [&view](const Open& one) { return one.view.get() == &view; });
  std::for_each(first, open_.end(), [](const Open& one) { one.loop->quit(); });
}

FormNote QtModalLoop::NoteOf(Form& form) {
  FormNote told;
  try {
    if (note) told = note(form);
  } catch (...) {  // it is asked anew at the next turn
    told = {};
  }
  return told;
}

FormSubject QtModalLoop::SubjectOf(Form& form) { return subject ? subject(form) : FormSubject(); }

void QtModalLoop::Report(const std::string& what) {
  qWarning("%s", what.c_str());
  if (!onFailure || reporting_) return;
  const QScopedValueRollback<bool> guard(reporting_, true);
  onFailure(what);
}

}  // namespace plexel
