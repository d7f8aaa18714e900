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

std::string_view KindName(ControlKind kind);

/// Keys of key events, as virtual keys.
namespace key {
inline constexpr std::int16_t Back = 8, Tab = 9, Return = 13, Shift = 16, Control = 17, Escape = 27, Space = 32,
                              PageUp = 33, PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38, Right = 39,
                              Down = 40, Delete = 46, F1 = 112, F4 = 115, F10 = 121;
/// Bits of the shift state.
inline constexpr std::int16_t ShiftBit = 1, ControlBit = 2, AltBit = 4;
}  // namespace key

/// A caption or text of a control that the language service may replace.
struct TextSlot {
  std::string current;
  std::function<void(std::string)> assign;
};

/// A control of a form. Positions and sizes are twips, relative to the container (a frame, a page of a tab strip, or
/// the form's client area). A control belongs to its form as a member and registers with it by name; it is neither
/// copied nor moved. Assignments from the program raise what the assignment raises and nothing else; the user's acts
/// come through Hand.
class Control {
 public:
  using Event = std::function<void()>;
  using KeyDownEvent = std::function<void(std::int16_t& keyCode, std::int16_t shift)>;
  using KeyPressEvent = std::function<void(std::int16_t& keyAscii)>;
  using MouseEvent = std::function<void(std::int16_t button, std::int16_t shift, float x, float y)>;

  /// `index` is the place in a control array, -1 for a control of its own.
  Control(Form& form, ControlKind kind, std::string_view name, int index = -1);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& Owner() const { return form_; }
  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  /// "cmdOK", or "optKeyType(2)" for a member of a control array.
  std::string FullName() const;

  float Left() const { return left_; }
  void Left(float value) { left_ = value; }
  float Top() const { return top_; }
  void Top(float value) { top_ = value; }
  float Width() const { return width_; }
  void Width(float value) { width_ = value; }
  float Height() const { return height_; }
  void Height(float value) { height_ = value; }
  void Place(float left, float top, float width, float height);

  bool Enabled() const { return enabled_; }
  void Enabled(bool value) { enabled_ = value; }
  bool Visible() const { return visible_; }
  void Visible(bool value) { visible_ = value; }
  bool TabStop() const { return tabStop_; }
  void TabStop(bool value) { tabStop_ = value; }
  int TabIndex() const { return tabIndex_; }
  void TabIndex(int value) { tabIndex_ = value; }
  std::int32_t HelpContextID() const { return helpContext_; }
  void HelpContextID(std::int32_t value) { helpContext_ = value; }
  const std::string& ToolTipText() const { return toolTip_; }
  void ToolTipText(std::string value) { toolTip_ = std::move(value); }

  /// Puts the control into a frame, or on a page of a tab strip. The container must be of the same form.
  void Inside(Control& container) { container_ = &container; }
  /// Failure (Index) for a page that the strip lacks.
  void OnPage(TabStrip& strip, int page);
  Control* Container() const { return container_; }
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
  bool CanTakeFocus() const { return Focusable() && Usable(); }
  /// Gives it the focus. A page that is not in front or off is no hindrance to the program, as it is to the user: the
  /// control gets the keys all the same. Failure (InvalidCall) when it or a container is hidden or disabled.
  void SetFocus();
  bool HasFocus() const;

  /// The captions and texts that stand on it.
  virtual std::vector<TextSlot> Texts() { return {}; }
  /// Its state under the names of the properties that it has.
  Description Describe() const;

  Event OnClick, OnDblClick, OnGotFocus, OnLostFocus;
  KeyDownEvent OnKeyDown;
  KeyPressEvent OnKeyPress;
  MouseEvent OnMouseDown;

 protected:
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
