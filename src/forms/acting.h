#pragma once

#include "forms/form.h"
#include "platform/failure.h"

namespace plexel {

/// What the user's acts share.

inline constexpr std::int16_t LeftButton = 1;

/// Whether a form that was shown when an act began has not closed since. A form object outlives every act on it.
class OpenForm {
 public:
  explicit OpenForm(const Form& form) : form_(form), wasShown_(form.IsShown()) {}
  explicit operator bool() const { return form_.IsShown() == wasShown_; }

 private:
  const Form& form_;
  const bool wasShown_;
};

/// Failure (InvalidCall) with the reason when the user cannot act on a control.
void CheckUsable(const Control& control);

/// Makes a cell current and brings it into view.
void MoveTo(Grid& grid, int row, int col);

/// Carries out a key's own action on the control with the focus, as Hand tells them; nothing for a key without one.
void ActOnKey(Control& control, std::int16_t keyCode, std::int16_t shift);

/// Enters a character at the caret of a text box, or deletes the one ahead of it (Backspace). Characters that a box
/// does not take, or has no room for, change nothing.
void EnterCharacter(TextBox& box, char32_t character);

}  // namespace plexel
