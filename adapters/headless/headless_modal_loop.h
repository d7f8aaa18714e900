#pragma once

#include <functional>
#include <string>
#include <vector>

#include "headless/faults.h"
#include "platform/interaction.h"

namespace plexel {

/// Shows forms to nobody. Whoever stands in for the user acts on the topmost form through Hand when `onRun` is called,
/// again and again until the form has closed.
class HeadlessModalLoop : public ModalLoop {
 public:
  /// Rounds after which a form that is still shown is taken for forgotten.
  static constexpr int IdleRounds = 1000;

  /// The faults outlive it.
  explicit HeadlessModalLoop(Faults& faults) : faults_(faults) {}
  void Prepare(Form& form) override;
  /// std::logic_error when nobody closes the form.
  void Run(Form& form, Window* owner) override;
  void Closed(Form& form) override;
  void Popup(Form& form, MenuItem& menu, bool placed, float x, float y) override;

  /// The forms that are shown, the topmost last.
  const std::vector<Form*>& Shown() const { return shown_; }
  /// The form in front, null for none.
  Form* Topmost() const { return shown_.empty() ? nullptr : shown_.back(); }

  /// Acts for the user.
  std::function<void(Form& form)> onRun;
  /// Hears of a form that is shown, has closed, or opens a popup menu.
  std::function<void(Form& form, Window* owner)> onShown;
  /// Hears of a form that has closed.
  std::function<void(Form& form)> onClosed;
  /// Hears of a popup menu, which stays open.
  std::function<void(Form& form, MenuItem& menu, bool placed, float x, float y)> onPopup;

 private:
  Faults& faults_;
  std::vector<Form*> shown_;
};

}  // namespace plexel
