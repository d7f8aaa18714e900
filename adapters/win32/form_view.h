#pragma once

#include <windows.h>

#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/keyboard.h"
#include "win32/control_view.h"
#include "win32/drawing_tools.h"
#include "win32/form_desk.h"
#include "win32/other_windows.h"

namespace plexel {

/// Shows a form as a window over all others of its thread. It draws what the model says and hands over what the user
/// did; keys do not reach the windows but for the editing that the model leaves to a text box.
class FormView : public ViewFrame {
 public:
  /// `owner` is the window over which the dialog opens, null for none.
  FormView(Form& form, HWND owner, FormDesk& desk);
  ~FormView() override;

  void Show();
  void Hide();
  void Sync();
  /// Opens a popup menu when the act at hand is done: at the mouse, or at a place of the client area in twips when
  /// `placed`.
  void OpenMenu(MenuItem& menu, bool placed, float x, float y);
  /// Takes a message of the thread's queue that is a key for this form; false for any other.
  bool TakeMessage(const MSG& message);

  Form& Model() const { return form_; }
  /// Null when the system has ended it.
  HWND Window() const { return window_; }
  ControlView* ViewOf(const Control* control) const;

  void Carry(const Control& control, const Act& act) override;
  LRESULT ChildMessage(ControlView& view, HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  LRESULT Message(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  bool Syncing() const override { return syncing_; }
  const Scale& Measure() const override { return scale_; }
  DrawingTools& Tools() override { return tools_; }
  COLORREF GroundOf(const Control& control) const override;

 private:
  struct WantedMenu {
    MenuItem* menu = nullptr;
    bool placed = false;
    float x = 0, y = 0;
  };

  /// An act that is not on one control.
  void CarryOnForm(const Act& act);
  /// Runs an act of the user's, behind which all forms show what their models say.
  void Guarded(const std::function<void()>& act);
  void MakeViews();
  void MakeViewOf(Control& control);
  /// Puts labels ahead of what they name, where readers of the screen look for them.
  void OrderLabels();
  void MakeToolTips();
  ControlView* ViewOfWindow(HWND window) const;
  void PlaceOverOwner();
  void SyncWindow();
  void SyncFocus();
  std::optional<LRESULT> Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> AnswerOfWindow(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Erase(HDC context, HWND window) const;
  LRESULT Colours(HDC context, HWND child);
  LRESULT ShowToolTip(NMHDR& told);
  bool MouseArrives(ControlView& view, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  /// Hands a key to the open list of a control, whose own it is.
  bool ListTakes(const ControlView& view, const MSG& message);
  void KeyArrives(const MSG& message);
  /// Whether the form has left the key to the editor of a text box.
  bool TakeKey(std::int16_t keyCode, bool down, char32_t character);
  void ShowMenu();
  void ShowHelp();
  void WindowMoved();
  void Rescale(int dpi, const RECT& place);

  Form& form_;
  FormDesk& desk_;
  Scale scale_;
  DrawingTools tools_;
  HWND owner_, window_ = nullptr, toolTips_ = nullptr;
  OtherWindows others_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::unordered_map<const Control*, ControlView*> viewOf_;
  WantedMenu wantedMenu_;
  bool syncing_ = false, tracking_ = false;
  const Control* pressed_ = nullptr;
  std::wstring caption_, toolTip_;
  POINT placed_ = {};
  bool isPlaced_ = false;
};

}  // namespace plexel
