#pragma once

#include "forms/hand.h"
#include "test_form.h"

namespace plexel {

struct MouseForm : TestForm {
  CommandButton cmdA{*this, "cmdA"};
  OptionButton opt0{*this, "opt", 0}, opt1{*this, "opt", 1};
  Label labLink{*this, "labLink"};
  ComboBox cmbA{*this, "cmbA"};
  TextBox txtA{*this, "txtA"};
  TabStrip sstA{*this, "sstA", 3};
  Grid msgA{*this, "msgA", 3, 3, 1, 1};
  MenuItem mnuPopup{*this, "MNU_POPUP"}, mnuCopy{*this, "MNU_COPY"}, mnuDummy{*this, "MNU_DUMMY"},
      mnuOther{*this, "MNU_OTHER"};
  Hand hand{*this};
  MouseForm() {
    for (Control* control : Controls()) Watch(*control);
    for (const char* text : {"one", "two"}) cmbA.AddItem(text);
    mnuDummy.Caption("-");
    mnuPopup.Add(mnuCopy);
    mnuPopup.Add(mnuDummy);
    msgA.OnEnterCell = [this] { Note("msgA EnterCell"); };
    msgA.OnScroll = [this] { Note("msgA Scroll"); };
    txtA.OnChange = [this] { Note("txtA Change"); };
  }
  /// What an act raises when no control had the focus.
  Strings Raised(const std::function<void()>& act) {
    WhileShown(*this, [&] {
      Focus(nullptr);
      Taken();
      act();
      raised = Taken();
    });
    return raised;
  }
  Strings raised;
};

}  // namespace plexel
