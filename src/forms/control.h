#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/property_value.h"

namespace plexel {

class Form;
class TabStrip;

/// The kinds of controls.
enum class ControlKind {
  CommandButton,
  OptionButton,
  ComboBox,
  TextBox,
  Label,
  Picture,
  Frame,
  TabStrip,
  Grid,
  StatusBar,
  Menu,
  ImageList,
  Shape
};

/// The name of a kind.
std::string_view KindName(ControlKind kind);

/// Keys of key events, as virtual keys.
namespace key {
/// Virtual keys.
inline constexpr std::int16_t Back = 8, Tab = 9, Return = 13, Shift = 16, Control = 17, Escape = 27, Space = 32,
                              PageUp = 33, PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38, Right = 39,
                              Down = 40, Delete = 46, F1 = 112, F4 = 115, F10 = 121;
/// Bits of the shift state.
inline constexpr std::int16_t ShiftBit = 1, ControlBit = 2, AltBit = 4;
}  // namespace key

/// A caption or text of a control that the language service may replace.
struct TextSlot {
  /// The text as it stands, and how another is put in its place.
  std::string current;
  std::function<void(std::string)> assign;
};

/// A control of a form. Positions and sizes are twips, relative to the container (a frame, a page of a tab strip, or
/// the form's client area). A control belongs to its form as a member and registers with it by name; it is neither
/// copied nor moved. Assignments from the program raise what the assignment raises and nothing else; the user's acts
/// come through Hand.
class Control {
 public:
  /// Handlers of events; an empty one does nothing. A handler may write another key or character to its argument, and 0
  /// to take it away. Buttons are 1 left, 2 right, 4 middle; places are twips in the control.
  using Event = std::function<void()>;
  using KeyDownEvent = std::function<void(std::int16_t& keyCode, std::int16_t shift)>;
  using KeyPressEvent = std::function<void(std::int16_t& keyAscii)>;
  using MouseEvent = std::function<void(std::int16_t button, std::int16_t shift, float x, float y)>;

  /// `index` is the place in a control array, -1 for a control of its own.
  Control(Form& form, ControlKind kind, std::string_view name, int index = -1);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// The form.
  Form& Owner() const { return form_; }
  /// The kind.
  ControlKind Kind() const { return kind_; }
  /// The name, which members of a control array share.
  const std::string& Name() const { return name_; }
  /// The place in a control array, -1 for a control of its own.
  int Index() const { return index_; }
  /// "cmdOK", or "optKeyType(2)" for a member of a control array.
  std::string FullName() const;

  /// The place in the container, and the size.
  float Left() const { return left_; }
  void Left(float value) { left_ = value; }
  float Top() const { return top_; }
  void Top(float value) { top_ = value; }
  float Width() const { return width_; }
  void Width(float value) { width_ = value; }
  float Height() const { return height_; }
  void Height(float value) { height_ = value; }
  void Place(float left, float top, float width, float height);

  /// Whether the user may act on it.
  bool Enabled() const { return enabled_; }
  void Enabled(bool value) { enabled_ = value; }
  /// Whether it is drawn.
  bool Visible() const { return visible_; }
  void Visible(bool value) { visible_ = value; }
  /// Whether Tab reaches it.
  bool TabStop() const { return tabStop_; }
  void TabStop(bool value) { tabStop_ = value; }
  /// Its place in the tab order.
  int TabIndex() const { return tabIndex_; }
  void TabIndex(int value) { tabIndex_ = value; }
  /// The number of its help topic, 0 for that of its container.
  std::int32_t HelpContextID() const { return helpContext_; }
  void HelpContextID(std::int32_t value) { helpContext_ = value; }
  /// What is shown beside the mouse.
  const std::string& ToolTipText() const { return toolTip_; }
  void ToolTipText(std::string value) { toolTip_ = std::move(value); }

  /// Puts the control into a frame, or on a page of a tab strip. The container must be of the same form.
  void Inside(Control& container) { container_ = &container; }
  /// Failure (Index) for a page that the strip lacks.
  void OnPage(TabStrip& strip, int page);
  /// The frame or tab strip in which it lies, null for the form.
  Control* Container() const { return container_; }
  /// The page of the tab strip, -1 for none.
  int Page() const { return page_; }

  /// Whether the user can see it: itself and its containers visible, its page in front.
  bool Shown() const;
  /// Whether the user can act on it: shown, and it and its containers enabled, its page not off.
  bool Usable() const { return Hindrance().empty(); }
  /// Why it is not usable, as the rest of a sentence about it ("is disabled"); empty when it is.
  std::string_view Hindrance() const;
  /// The same without regard to pages.
  std::string_view OwnHindrance() const;
  /// Whether its kind can hold the focus.
  virtual bool Focusable() const { return false; }
  /// Whether it can get the focus now, by the user.
  bool CanTakeFocus() const { return Focusable() && Usable(); }
  /// Gives it the focus. A page that is not in front or off is no hindrance to the program, as it is to the user: the
  /// control gets the keys all the same. Failure (InvalidCall) when it or a container is hidden or disabled.
  void SetFocus();
  /// Whether it has the focus.
  bool HasFocus() const;

  /// The captions and texts that stand on it.
  virtual std::vector<TextSlot> Texts() { return {}; }
  /// Its state under the names of the properties that it has.
  Description Describe() const;

  /// What was done to it, by the user or by an assignment.
  Event OnClick, OnDblClick, OnGotFocus, OnLostFocus;
  /// A key went down while it had the focus.
  KeyDownEvent OnKeyDown;
  /// A character was typed.
  KeyPressEvent OnKeyPress;
  /// A button of the mouse went down on it.
  MouseEvent OnMouseDown;

 protected:
  /// Adds what its kind has to a description.
  virtual void DescribeMore(Description& description) const = 0;

 private:
  /// The tab strip on whose page it lies, or null.
  const TabStrip* Strip() const;

  Form& form_;
  ControlKind kind_;
  std::string name_;
  int index_;
  float left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  bool enabled_ = true, visible_ = true, tabStop_ = true;
  int tabIndex_ = 0;
  std::int32_t helpContext_ = 0;
  std::string toolTip_;
  Control* container_ = nullptr;
  int page_ = -1;
};

/// Calls an event's handler if there is one.
template <typename Handler, typename... Arguments>
void Raise(const Handler& handler, Arguments&&... arguments) {
  if (handler) handler(std::forward<Arguments>(arguments)...);
}

}  // namespace plexel
