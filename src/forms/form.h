#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls.h"
#include "forms/grid.h"
#include "platform/window.h"

namespace plexel {

class ModalLoop;

/// Why a form unloads.
enum class UnloadMode : std::int32_t { CloseBox = 0, Code = 1 };

/// A dialog. Its controls are members of the derived class, made in the design state, so that a new object is a form as
/// designed. Left, top, width and height are those of the whole window in twips.
class Form : public Window {
 public:
  /// Twips that the window's frame and title take from width and height.
  static constexpr float FrameWidth = 90, FrameHeight = 405;

  /// A form of a name, without controls.
  explicit Form(std::string_view name);
  ~Form() override = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  std::string WindowName() const override { return name_; }
  /// The name of its kind, as code and scripts have it.
  const std::string& Name() const { return name_; }
  /// The title.
  const std::string& Caption() const { return caption_; }
  void Caption(std::string value) { caption_ = std::move(value); }
  /// The place of the window.
  float Left() const { return left_; }
  void Left(float value) {
    left_ = value;
    placed_ = true;
  }
  /// The place of the window.
  float Top() const { return top_; }
  void Top(float value) {
    top_ = value;
    placed_ = true;
  }
  /// Whether the form has been given a place. One that has none opens where the desktop puts it.
  bool Placed() const { return placed_; }
  /// The width of the window.
  float Width() const { return width_; }
  void Width(float value) { width_ = value; }
  /// The height of the window.
  float Height() const { return height_; }
  void Height(float value) { height_ = value; }
  /// The size without frame and title.
  float ClientWidth() const { return width_ - FrameWidth; }
  /// The size without frame and title.
  float ClientHeight() const { return height_ - FrameHeight; }
  /// Whether the form gets the keys ahead of its controls.
  bool KeyPreview() const { return keyPreview_; }
  void KeyPreview(bool value) { keyPreview_ = value; }
  /// The number of its help topic, 0 for none.
  std::int32_t HelpContextID() const { return helpContext_; }
  void HelpContextID(std::int32_t value) { helpContext_ = value; }

  /// The controls in the order in which they were made, and by full name; null for an unknown one.
  const std::vector<Control*>& Controls() const { return controls_; }
  /// A control by its full name; null for an unknown one.
  Control* Find(std::string_view fullName) const;
  /// All controls by tab index, those of the same index in the order in which they were made.
  std::vector<Control*> ControlsInTabOrder() const;
  /// The controls that Tab reaches, in tab order. Of the option buttons of a container that is one: the one that is
  /// set, or the first.
  std::vector<Control*> TabOrder() const;
  /// Where Tab leads from the control with the focus, or with `forward` off Shift and Tab: round the tab order from the
  /// focus's own place in it, past the other option buttons of its container. Null when it leads nowhere else.
  Control* TabNeighbour(bool forward) const;

  /// The control with the focus; null for none. A control that is disabled or hidden keeps its place as the focus but
  /// gets no keys until it can take them again.
  Control* Focus() const { return focus_; }
  /// Gives the focus to a control, or to the form itself with null. From loading to unloading LostFocus and GotFocus
  /// are raised, in this order, when the focus has already moved. Failure (InvalidCall) as with Control::SetFocus.
  void Focus(Control* control);
  /// The button that Return presses; null for none.
  CommandButton* DefaultButton() const { return defaultButton_; }
  /// The button that Escape presses; null for none.
  CommandButton* CancelButton() const { return cancelButton_; }

  /// Shows the form modal over its owner (null for none) and returns when it has closed: loads it, gives the focus to
  /// the first control of the tab order unless a control has it, and runs the platform's modal loop. Failure
  /// (InvalidCall) when it is already shown or loading, and whatever loading or the modal loop throws; the form is then
  /// not shown. A form that unloads itself while it loads is not shown either.
  void ShowModal(Window* owner);
  /// Whether the form is on the screen.
  bool IsShown() const { return shown_; }
  /// Closes the form: QueryUnload, Unload. With a form that is not loaded, or is unloading, nothing happens. A failure
  /// of the two events passes on and the form stays.
  void Unload(UnloadMode mode = UnloadMode::Code);
  /// The same without the events: the form is no longer shown, whatever had become of it. For the end of the program.
  void End();

  /// Opens a popup menu at the mouse, or at a place of the client area in twips.
  void PopupMenu(MenuItem& menu);
  void PopupMenu(MenuItem& menu, float x, float y);
  /// The popup menu that is open, or null.
  MenuItem* OpenPopup() const { return openPopup_; }
  void OpenPopup(MenuItem* menu) { openPopup_ = menu; }

  /// The button on which Space went down and has not come up, or null. It is forgotten when the focus moves.
  Control* Armed() const { return armed_; }
  void Armed(Control* button) { armed_ = button; }

  /// Name, Caption, Left, Top, Width, Height, KeyPreview, Focus, Controls.
  Description Describe() const;

  /// The form's own events. The key events run ahead of the control's while KeyPreview is on.
  virtual void OnLoad() {}
  /// It is about to close.
  virtual void OnQueryUnload(UnloadMode) {}
  /// It closes.
  virtual void OnUnload() {}
  /// An exception has ended the showing, without the two events above; the form is no longer shown. What the form has
  /// set going outside itself ends here.
  virtual void OnAbandoned() {}
  /// A key goes down. A handler that sets the code to 0 takes the control's own action away.
  virtual void OnKeyDown(std::int16_t& keyCode, std::int16_t shift);
  /// A character was typed; 0 takes it away.
  virtual void OnKeyPress(std::int16_t& keyAscii);

 private:
  friend class Control;
  friend class CommandButton;

  /// The controls of TabOrder, with `preferred` standing for the option buttons of its container.
  std::vector<Control*> ReachableByTab(const Control* preferred) const;
  void Popup(MenuItem& menu, bool placed, float x, float y);
  void LoadAndRun(ModalLoop& loop, Window* owner);
  /// Ends the state of being loaded, whatever had become of it.
  void Forget();

  std::string name_, caption_;
  float left_ = 0, top_ = 0, width_ = 4800, height_ = 3600;
  bool keyPreview_ = false, loaded_ = false, shown_ = false, placed_ = false, unloading_ = false;
  std::int32_t helpContext_ = 0;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  Control* armed_ = nullptr;
  CommandButton* defaultButton_ = nullptr;
  CommandButton* cancelButton_ = nullptr;
  MenuItem* openPopup_ = nullptr;
};

}  // namespace plexel
