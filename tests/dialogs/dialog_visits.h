#pragma once

#include <functional>
#include <string>
#include <vector>

#include "element/ctlPlexelBaseElement.h"
#include "forms/form.h"
#include "forms/form_name.h"
#include "forms/hand.h"

namespace plexel::dialogs {

/// A walk over every dialog in its states, the same for each renderer.

/// What comes next while dialogs are open: it waits until a form is in front.
struct Step {
  FormName form;
  std::string look;                            ///< what a look that is taken then is called; empty for none
  std::function<void(Hand&, Form&)> act = {};  ///< of the user's behind it; it may open a dialog over that form
};

/// An element, one of its dialogs, and what happens until that has closed.
struct Visit {
  enumTactisBaseElementType type;
  bool properties = false, wizard = false;
  std::vector<Step> steps = {};

  /// Gives an element some definitions and what the visit needs.
  void SetUp(ctlPlexelBaseElement& element) const;
  /// Opens the dialog; returns when it has closed.
  void Open(ctlPlexelBaseElement& element) const;
};

/// All of them.
std::vector<Visit> Visits();
/// How many looks they take.
inline constexpr int Looks = 14;

}  // namespace plexel::dialogs
