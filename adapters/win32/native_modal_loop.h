#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/interaction.h"
#include "win32/form_desk.h"
#include "win32/form_view.h"
#include "win32/visual_styles.h"
#include "win32/window_classes.h"

namespace plexel {

/// Shows forms as windows, each with a message loop of its own until it has closed.
class NativeModalLoop : public ModalLoop, public FormDesk {
 public:
  NativeModalLoop();
  ~NativeModalLoop() override;

  void Prepare(Form& form) override;
  void Run(Form& form, Window* owner) override;
  void Closed(Form& form) override;
  void Popup(Form& form, MenuItem& menu, bool placed, float x, float y) override;

  void SyncAll() override;
  bool Captures() const override;
  void Report(const std::string& what) override;
  void Abandon(std::exception_ptr thrown) override;

  /// Takes the windows of all open forms away, as if their owner's went: each closes as by its close box.
  void TakeAllAway();

  /// The view of the topmost form, null when none is open.
  FormView* Topmost() const;

  /// Shows the text of a failure; without it a debugger alone tells.
  std::function<void(const std::string& what)> onFailure;

 private:
  struct Open {
    std::unique_ptr<FormView> view;
    std::exception_ptr* thrown;  ///< what the showing throws when its loop has ended
  };
  FormView* ViewOf(const Form& form) const;
  HWND HandleOf(const Window* window) const;
  std::unique_ptr<FormView> MakeView(Form& form, HWND owner);
  void Pump(const FormView& view, const std::exception_ptr& thrown);

  VisualStyles styles_;
  WindowClasses classes_;
  std::vector<Open> open_;
  bool syncing_ = false, reporting_ = false;
};

}  // namespace plexel
