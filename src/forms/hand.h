#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/form.h"

namespace plexel {

/// The user's acts on one form, turned into events with the rules of focus, enabling, key preview, default and cancel
/// button. An act on a control that is disabled, hidden or on a page that is not in front is a Failure (InvalidCall) and
/// changes nothing. Failures of handlers without a guard pass through.
///
/// A key takes this road: the form's preview, the control with the focus, then the default action. A handler that sets
/// the key code to 0 takes the control's own action away; Tab, Escape with a cancel button and Return with a default
/// button act whatever a handler did to the code. The character that a key yields follows as a key press, whatever
/// became of the key down.
class Hand {
 public:
  explicit Hand(Form& form) : form_(form) {}

  void Click(Control& control);
  void Click(Grid& grid, int row, int col);
  /// A double click, whose first click is a click.
  void DblClick(Control& control);
  void DblClick(Grid& grid, int row, int col);
  /// A mouse button down; button 1 left, 2 right, 4 middle; x and y in twips in the control.
  void MouseDown(Control& control, std::int16_t button, std::int16_t shift, float x, float y);
  void Focus(Control& control);
  /// Picks a list entry by its place.
  void Select(ComboBox& box, int index);
  /// Types at the end of a text box, with all key events of each character.
  void Type(TextBox& box, std::string_view text);
  /// Takes over a text that the user has edited in place, with the caret behind `selStart` characters.
  void Edit(TextBox& box, const std::string& text, int selStart);
  /// Makes a cell current, as the arrow keys do. Fixed cells cannot be current: Failure (Index).
  void Cell(Grid& grid, int row, int col);
  void ResizeColumn(Grid& grid, int col, int width);
  void Scroll(Grid& grid, int topRow, int leftCol);
  /// Clicks on a tab; a page that is off refuses. A double click raises both events.
  void Tab(TabStrip& strip, int page);
  void DblClickTab(TabStrip& strip, int page);
  /// Picks an entry of the popup menu that is open; Failure (InvalidCall) when there is none or the entry is disabled.
  void Menu(MenuItem& entry);
  /// Closes the popup menu without a choice.
  void DismissMenu();
  /// The window has been moved.
  void Move(float left, float top);
  /// The window's close box.
  void Close();

  /// A key down at the focus, with its default action; gives the key code as it came back from the handlers.
  std::int16_t KeyDown(std::int16_t keyCode, std::int16_t shift);
  /// A character at the focus, with its insertion; gives it as it came back. `character` is a code of Windows-1252.
  std::int16_t KeyPress(std::int16_t character);
  /// A key up at the focus: Space released on a button presses it.
  void KeyUp(std::int16_t keyCode, std::int16_t shift);
  /// The same for an editor that keeps the text of a box itself: the events without the insertion of a text box.
  /// True when the editor is to carry out the key's own action.
  bool PreviewKey(std::int16_t keyCode, std::int16_t shift, std::int16_t character);

 private:
  Form& form_;
};

}  // namespace plexel
