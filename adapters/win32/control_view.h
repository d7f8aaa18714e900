#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "forms/form.h"
#include "win32/view_frame.h"

namespace plexel {

/// One control as a window, or several. They end with the form's window. The focus never goes to a window by the
/// system's own doing: the model says who has it.
class ControlView {
 public:
  ControlView(Control& control, ViewFrame& frame) : control_(control), frame_(frame) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  Control& Model() const { return control_; }
  ViewFrame& Host() const { return frame_; }
  HWND Outer() const { return outer_; }
  /// The window that gets the keys.
  virtual HWND FocusWindow() const { return Outer(); }
  /// The parent of controls that lie in this one; `page` counts in a tab strip only.
  virtual HWND Inner(int) const { return Outer(); }
  /// Whether the window turns clicks into acts by itself.
  virtual bool ClicksItself() const { return false; }
  /// Whether the window turns all that the mouse does into acts by itself.
  virtual bool TakesMouseItself() const { return false; }
  /// Whether the window edits a text by itself, with keys of its own.
  virtual bool EditsItself() const { return false; }
  /// Whether it has unfolded something that takes the keys.
  virtual bool IsUnfolded() const { return false; }
  /// Opens what the control can unfold, and closes it.
  virtual void Unfold() {}
  virtual void Fold() {}

  /// What a standard control tells its parent: by a code, and by a structure, which may have an answer.
  virtual void Notified(UINT) {}
  virtual std::optional<LRESULT> NotifiedBy(const NMHDR&) { return std::nullopt; }
  /// Draws an item of a standard control.
  virtual void DrawItem(const DRAWITEMSTRUCT&) {}
  /// The colours of a standard control; null leaves them to the form.
  virtual HBRUSH Colours(HDC) { return nullptr; }
  /// A message of one of its windows, ahead of the window's own handling, which an answer takes away.
  virtual std::optional<LRESULT> Ahead(HWND, UINT, WPARAM, LPARAM) { return std::nullopt; }
  /// The same behind the window's own handling.
  virtual void Behind(UINT) {}
  /// What stands beside the mouse at a point of its window.
  virtual std::wstring ToolTipAt(POINT) const;
  /// The resolution has changed.
  virtual void Rescaled();

  /// Shows what the model says.
  void Sync();

 protected:
  virtual void SyncMore() = 0;
  /// Puts the outermost window there, in pixels of its parent.
  virtual void PlaceAt(const RECT& place);
  /// How its letters look.
  virtual FontLook Look() const { return {}; }

  /// Makes a child window, the first of which is the outermost.
  HWND Make(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extended = 0);
  void UseFont(HWND window) const;
  /// Gives the outermost window a text, if it has another.
  void ShowText(const std::wstring& text);

 private:
  Control& control_;
  ViewFrame& frame_;
  HWND outer_ = nullptr;
  RECT place_ = {};
  std::wstring text_;
  bool synced_ = false;
};

/// The view of a control in a parent window; null for a control that has no window, such as a menu.
std::unique_ptr<ControlView> MakeControlView(Control& control, HWND parent, ViewFrame& frame);

}  // namespace plexel
