#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/form.h"

namespace plexel {

/// The user's acts on one form, turned into events with the rules of focus, enabling, key preview, default and cancel
/// button. An act on a control that is disabled, hidden or on a page that is not in front is a Failure (InvalidCall)
/// and changes nothing. Failures of handlers without a guard pass through. When a handler closes the form, the rest of
/// the act does not happen. Every act but a choice from it and the end of a key closes the popup menu that is open.
///
/// A key takes this road: the form itself, the form's preview, the control that has the focus when the key goes down,
/// then the control's own action. The form itself takes Tab, Escape with a cancel button, Return with a default button
/// or on a command button, Ctrl with Tab, PageUp or PageDown, which click on the next page of a tab strip that is on,
/// and Alt with the letter of a caption, which clicks on a button or a tab and gives the focus to what a label or a
/// frame names: such a key raises nothing of its own and yields no character. Any other is raised as a key down, and
/// its character follows as a key press, whatever became of the key down. A handler that sets the key code to 0 takes
/// the control's own action away.
///
/// A control's own actions: Space presses a command button and sets an option button; the arrow keys move the focus
/// from a command button to a button beside it in tab order, and move within the option buttons of a container, the
/// entries of a combo box, the cells of a grid and the tabs of a strip; Left, Right, Home, End and Delete edit a text
/// box. A grid and a text box of several lines keep Return for themselves. An open list of a combo box (F4, Alt and
/// Down) is the renderer's.
class Hand {
 public:
  /// Acts on a form, which outlives it.
  explicit Hand(Form& form) : form_(form) {}

  /// A click of the left button: the focus goes to the control if its kind takes it, and Click is raised. An option
  /// button becomes the one that is set, which raises Click when it was not; a combo box raises nothing until an entry
  /// is picked; a menu entry is picked.
  void Click(Control& control);
  /// The same on a cell, which becomes current ahead of Click unless it is fixed. Failure (Index) outside the grid.
  void Click(Grid& grid, int row, int col);
  /// A double click, whose first click is a click.
  void DblClick(Control& control);
  void DblClick(Grid& grid, int row, int col);
  /// A mouse button down; button 1 left, 2 right, 4 middle; x and y in twips in the control. The left button gives the
  /// focus to every control that takes it, the others only to a grid and a text box. No cell becomes current.
  void MouseDown(Control& control, std::int16_t button, std::int16_t shift, float x, float y);
  /// Gives a control the focus, as a walk with Tab does.
  void Focus(Control& control);
  /// Picks a list entry by its place.
  void Select(ComboBox& box, int index);
  /// Types at the end of a text box, with all key events of each character.
  void Type(TextBox& box, std::string_view text);
  /// Takes over a text that the user has edited in place, with the caret behind `selStart` characters. Failure
  /// (InvalidCall) for another text in a locked box.
  void Edit(TextBox& box, const std::string& text, int selStart);
  /// Makes a cell current, as the arrow keys do. Fixed cells cannot be current: Failure (Index).
  void Cell(Grid& grid, int row, int col);
  /// Failure (InvalidCall) when the widths are not the user's to change.
  void ResizeColumn(Grid& grid, int col, int width);
  /// Scrolls a grid, as its bars do.
  void Scroll(Grid& grid, int topRow, int leftCol);
  /// Clicks on a tab; a page that is off refuses.
  void Tab(TabStrip& strip, int page);
  /// A double click on a tab, which raises both events.
  void DblClickTab(TabStrip& strip, int page);
  /// Picks an entry of the popup menu that is open, which closes ahead of the entry's Click; Failure (InvalidCall) when
  /// there is none or the entry is disabled, hidden or a separator.
  void Menu(MenuItem& entry);
  /// Closes the popup menu without a choice; false when none is open.
  bool DismissMenu();
  /// The window has been moved.
  void Move(float left, float top);
  /// The window's close box.
  void Close();

  /// A key down at the focus, raised whatever the key is, then what the key does, without the character that it yields;
  /// gives the key code as it came back from the handlers, which keep no key from the form itself. With a popup menu
  /// open, Escape closes that and the letter of an entry picks it, and the key does nothing else.
  std::int16_t KeyDown(std::int16_t keyCode, std::int16_t shift);
  /// A character at the focus, with its insertion into a text box; gives it as it came back. `character` is a code of
  /// Windows-1252; Failure (InvalidCall) for a number that is none.
  std::int16_t KeyPress(std::int16_t character);
  /// A key that goes down, on its whole road, with the Unicode character that it yields, 0 for none (as with Alt, and
  /// for Delete); gives the key code as it came back from the handlers, 0 when the form itself took the key. A
  /// character that Windows-1252 lacks is a question mark to the handlers and goes into the text box unharmed.
  std::int16_t Key(std::int16_t keyCode, std::int16_t shift, char32_t character);
  /// The same ahead of an editor that works on the text of the focused text box itself: all events and the actions of
  /// the form, but no editing of the text. True when the editor is to carry out the key's own action and to hand the
  /// outcome to Edit; false when the key has had its effect, which may be none, and the box is to be drawn anew.
  bool PreviewKey(std::int16_t keyCode, std::int16_t shift, char32_t character);
  /// A key up at the focus: Space released on a command button, on which it went down, presses it.
  void KeyUp(std::int16_t keyCode, std::int16_t shift);

 private:
  /// Who edits the text of a text box.
  enum class Editor { Form, Renderer };
  struct DownResult {
    std::int16_t keyCode;   ///< as it came back, 0 when the form took the key
    bool characterFollows;  ///< false when the form took the key, or has closed
  };
  struct PressResult {
    std::int16_t character;  ///< as it came back
    bool left;               ///< true when the renderer's editor is to insert it
  };

  void Press(Control& control);
  void TakeFocus(Control& control, std::int16_t button);
  /// The road of a key that goes down, as far as the control's own action.
  DownResult Down(Control* target, std::int16_t keyCode, std::int16_t shift, Editor editor);
  /// Raises a key down; gives the code as it came back.
  std::int16_t RaiseKeyDown(Control* target, std::int16_t keyCode, std::int16_t shift);
  /// Whether the form itself takes a key, which it then has carried out.
  bool FormTakes(Control* target, std::int16_t keyCode, std::int16_t shift);
  bool TakesPlain(Control* target, std::int16_t keyCode, std::int16_t shift);
  bool TurnsPage(Control* target, std::int16_t keyCode, std::int16_t shift);
  bool FollowsLetter(const Control* target, std::int16_t keyCode);
  /// Whether the popup menu takes a key; it is closed in any case.
  bool MenuTakes(std::int16_t keyCode, std::int16_t shift);
  PressResult Character(Control* target, char32_t character, Editor editor);

  Form& form_;
};

}  // namespace plexel
