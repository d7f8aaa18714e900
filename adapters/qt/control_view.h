#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "forms/form.h"
#include "forms/hand.h"

namespace plexel {

/// Where the views of a form's controls hand over what the user did.
class UserActs {
 public:
  using Act = std::function<void(Hand&)>;
  virtual ~UserActs() = default;
  /// Carries out an act on a control that the user can act on now; any other is passed over. Failures that come out of
  /// it are reported to the user. Afterwards everything shows what the model says.
  virtual void Carry(const Control& control, const Act& act) = 0;
};

/// One control as a widget. The widget belongs to its parent widget, which lives as long as the view. The focus never
/// goes to a widget by the toolkit's own doing: the model says who has it.
class ControlView {
 public:
  explicit ControlView(Control& control) : control_(control) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  Control& Model() const { return control_; }
  virtual QWidget& Outer() const = 0;
  /// The widget that gets the keys.
  virtual QWidget& FocusWidget() const { return Outer(); }
  /// The widget that gets the mouse.
  virtual QWidget& MouseWidget() const { return Outer(); }
  /// The parent of controls that lie in this one; `page` counts in a tab strip only.
  virtual QWidget& Inner(int) const { return Outer(); }
  /// Whether the widget turns clicks into acts by itself.
  virtual bool ClicksItself() const { return false; }
  /// Whether the widget turns all that the mouse does into acts by itself.
  virtual bool TakesMouseItself() const { return false; }
  /// Whether the widget edits a text by itself, with keys of its own.
  virtual bool EditsItself() const { return false; }
  /// Opens what the control can unfold.
  virtual void Unfold() {}

  /// Shows what the model says.
  void Sync();

 protected:
  virtual void SyncMore() = 0;

 private:
  Control& control_;
};

/// The view of a control in a parent widget; null for a control that shows nothing by itself, such as a menu.
std::unique_ptr<ControlView> MakeControlView(Control& control, QWidget& parent, UserActs& acts);

}  // namespace plexel
