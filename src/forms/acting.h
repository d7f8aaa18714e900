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

/// Whether the control with the focus gets the keys: it and its containers are visible and enabled. A page that is not
/// in front is no hindrance.
bool GetsKeys(const Control* focus);

}  // namespace plexel
