#pragma once

#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "platform/interaction.h"
#include "qt/form_desk.h"

namespace plexel {

class FormView;

/// Hears which form has the keys of the desktop.
class KeyWatcher {
 public:
  virtual ~KeyWatcher() = default;
  virtual void FormActivated(FormView& view) = 0;
  virtual void FormDeactivated(FormView& view) = 0;
};

/// Shows forms as dialogs, each with an event loop of its own until it has closed.
class QtModalLoop : public ModalLoop, public FormDesk {
 public:
  explicit QtModalLoop(Keyboard& keys);
  ~QtModalLoop() override;

  void Prepare(Form& form) override;
  void Run(Form& form, Window* owner) override;
  void Closed(Form& form) override;
  void Popup(Form& form, MenuItem& menu, bool placed, float x, float y) override;

  Keyboard& Keys() override { return keys_; }
  void SyncAll() override;
  void Activated(FormView& view) override;
  void Deactivated(FormView& view) override;
  FormNote NoteOf(Form& form) override;
  FormSubject SubjectOf(Form& form) override;
  void Report(const std::string& what) override;
  void Abandon(std::exception_ptr thrown) override;
  void OwnerGone(FormView& view) override;

  /// Tells which widget stands for a window of the host; dialogs belong to the widget's window as it is then.
  void Register(const Window& window, QWidget& widget) { hostWindows_.emplace_back(&window, &widget); }
  void Forget(const Window& window);
  void Watch(KeyWatcher* watcher) { watcher_ = watcher; }
  /// The view of the topmost form, null when none is open.
  FormView* Topmost() const;
  /// The view of the form whose window is active, null when there is none or a list or menu is unfolded.
  FormView* ActiveView() const;

  /// Shows the text of a failure; without it the log alone tells.
  std::function<void(const std::string& what)> onFailure;
  /// What the host says under an open form; asked whenever the forms show what their models say.
  std::function<FormNote(Form& form)> note;
  /// What a form is about that opens.
  std::function<FormSubject(Form& form)> subject;

 private:
  struct Open {
    std::unique_ptr<FormView> view;
    QEventLoop* loop;
    std::exception_ptr* thrown;  ///< what the showing throws when its loop has ended
  };
  FormView* ViewOf(const Form& form) const;
  QWidget* WidgetOf(const Window* window) const;
  void SyncViews();

  Keyboard& keys_;
  KeyWatcher* watcher_ = nullptr;
  std::vector<Open> open_;
  std::vector<std::pair<const Window*, QPointer<QWidget>>> hostWindows_;
  QObject timerContext_;
  bool syncing_ = false, syncPlanned_ = false, reporting_ = false;
};

}  // namespace plexel
