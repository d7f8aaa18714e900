#pragma once

#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/keyboard.h"
#include "qt/control_view.h"
#include "qt/form_desk.h"

class QDialog;
class QLabel;
class QKeyEvent;
class QMouseEvent;

namespace plexel {

/// Shows a form as a dialog of the desktop. It draws what the model says and hands over what the user did; keys do not
/// reach the widgets but for the editing that the model leaves to a text box.
class FormView : public QObject, public UserActs {
 public:
  /// `owner` is the widget over which the dialog opens, null for none.
  FormView(Form& form, QWidget* owner, FormDesk& desk);
  ~FormView() override;

  void Show();
  void Hide();
  void Sync();
  /// Opens a popup menu: at the mouse, or at a place of the client area in twips when `placed`.
  void OpenMenu(MenuItem& menu, bool placed, float x, float y);

  Form& Model() const { return form_; }
  QDialog& Window() const { return *window_; }
  ControlView* ViewOf(const Control* control) const;

  void Carry(const Control& control, const Act& act) override;
  /// The form's part of the road of a key. `character` is what the key types, 0 for nothing.
  void TakeKey(const KeyEvent& event, char32_t character);
  /// Runs a part of an event so that nothing is thrown through the toolkit's event loop: a Failure is told to the user,
  /// and anything else ends the form and goes on to whoever has shown it.
  void Contain(const std::function<void()>& act);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  /// An act that is not on one control.
  void CarryOnForm(const Act& act);
  /// The same for an act of the user's, behind which all forms show what their models say.
  void Guarded(const std::function<void()>& act);
  void MakeViews();
  void MakeViewOf(Control& control);
  void PlaceOverOwner();
  /// Moves the window, and not the form, from what the form is about.
  void StepAside();
  void SyncWindow();
  void SyncNote();
  void SyncFocus();
  void SyncMenu();
  bool KeyArrives(QObject* receiver, QKeyEvent& event);
  bool MouseArrives(ControlView& view, QMouseEvent& event);
  void WindowMoved();
  void ShowHelp();

  Form& form_;
  FormDesk& desk_;
  std::unique_ptr<QDialog> window_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::unordered_map<const Control*, ControlView*> viewOf_;
  std::unordered_map<const QObject*, ControlView*> byWidget_;
  QPointer<QMenu> menu_;
  QLabel* note_ = nullptr;  ///< the window's; null until there is something to say
  FormNote noted_;
  const Control* pressed_ = nullptr;
  bool leftToEditor_ = false;  ///< the key at hand is the text box's own to carry out
  FormSubject subject_;
  QPoint aside_;   ///< how far the window stands from the place of the form, until the user moves it
  QPoint placed_;  ///< of the window
};

}  // namespace plexel
