#pragma once

#include <windows.h>

#include <functional>

#include "forms/hand.h"
#include "win32/drawing_tools.h"
#include "win32/scale.h"
#include "win32/window_classes.h"

namespace plexel {

class ControlView;

/// What the view of a form is to the views of its controls: where they hand over what the user did, and what they
/// share.
class ViewFrame : public WindowTarget {
 public:
  using Act = std::function<void(Hand&)>;
  /// Carries out an act on a control that the user can act on now; any other is passed over. Failures that come out of
  /// it are reported to the user. Afterwards everything shows what the model says.
  virtual void Carry(const Control& control, const Act& act) = 0;
  /// A message of a window of a control's view.
  virtual LRESULT ChildMessage(ControlView& view, HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept = 0;
  /// Whether the windows are just being made to show what the model says, so that they tell nothing of the user.
  virtual bool Syncing() const = 0;
  virtual const Scale& Measure() const = 0;
  virtual DrawingTools& Tools() = 0;
  /// The colour behind a control.
  virtual COLORREF GroundOf(const Control& control) const = 0;
};

}  // namespace plexel
