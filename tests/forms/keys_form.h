#pragma once

#include "forms/hand.h"
#include "test_form.h"

namespace plexel {

struct KeysForm : TestForm {
  TextBox txtLine{*this, "txtLine"}, txtNotes{*this, "txtNotes"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"}, cmdHelp{*this, "cmdHelp"};
  Grid msgA{*this, "msgA", 3, 3, 1, 1};
  MenuItem mnuPopup{*this, "MNU_POPUP"};
  Hand hand{*this};
  KeysForm() {
    txtNotes.MultiLine(true);
    for (Control* control : Controls()) Watch(*control);
    cmdOK.Default(true);
    cmdCancel.Cancel(true);
  }
  /// What an act raises while a control has the focus.
  Strings Raised(Control& focus, const std::function<void()>& act) {
    Strings raised;
    WhileShown(*this, [&] {
      Focus(&focus);
      Taken();
      act();
      raised = Taken();
    });
    return raised;
  }
};

}  // namespace plexel
