#include "forms/hand.h"
#include "test_form.h"

namespace plexel {
namespace {

struct PagesForm : TestForm {
  TabStrip sstA{*this, "sstA", 4};
  Grid msgA{*this, "msgA", 4, 4, 1, 1};
  TextBox txtA{*this, "txtA"};
  CommandButton cmdA{*this, "cmdA"}, cmdB{*this, "cmdB"}, cmdCatcher{*this, "cmdCatcher"};
  OptionButton opt0{*this, "opt", 0}, opt1{*this, "opt", 1};
  Hand hand{*this};
  PagesForm() {
    KeyPreview(true);
    for (Control* control : Controls()) Watch(*control);
    msgA.OnPage(sstA, 0);
    sstA.TabEnabled(1, false);
    cmdCatcher.ParksFocus(true);
    opt1.Value(true);
    Taken();
  }
  Strings AfterKey(Control& focus, std::int16_t keyCode, std::int16_t shift = 0) {
    Strings raised;
    WhileShown(*this, [&] {
      Focus(&focus);
      Taken();
      hand.Key(keyCode, shift, 0);
      raised = Taken();
    });
    return raised;
  }
  std::string FocusAfter(Control& focus, std::int16_t keyCode, std::int16_t shift = 0) {
    std::string name;
    WhileShown(*this, [&] {
      Focus(&focus);
      hand.Key(keyCode, shift, 0);
      name = Focus() == nullptr ? "" : Focus()->FullName();
    });
    return name;
  }
};

TEST(Keys, HaveTheNumbersThatTheSystemSends) {
  const std::vector<std::int16_t> numbers = {
      key::Back,     key::Tab, key::Return, key::Shift,    key::Control,    key::Escape, key::Space, key::PageUp,
      key::PageDown, key::End, key::Home,   key::Left,     key::Up,         key::Right,  key::Down,  key::Delete,
      key::F1,       key::F4,  key::F10,    key::ShiftBit, key::ControlBit, key::AltBit};
  EXPECT_EQ(numbers, (std::vector<std::int16_t>{0x08, 0x09, 0x0D, 0x10, 0x11, 0x1B, 0x20, 0x21, 0x22, 0x23, 0x24,
                                                0x25, 0x26, 0x27, 0x28, 0x2E, 0x70, 0x73, 0x79, 1,    2,    4}));
}

TEST(PageKeys, TurnToTheNextPageThatIsOnAsAClickOnItsTabDoes) {
  for (const std::int16_t keyCode : {key::Tab, key::PageDown}) {
    PagesForm form;
    EXPECT_EQ(form.AfterKey(form.txtA, keyCode, key::ControlBit),
              (Strings{"txtA LostFocus", "sstA GotFocus", "sstA Click"}));
    EXPECT_EQ(form.sstA.Tab(), 2);
  }
}

TEST(PageKeys, TurnBackWithShiftAndPageUp) {
  constexpr std::int16_t back = key::ControlBit | key::ShiftBit;
  for (const auto& [keyCode, shift] : {std::pair{key::Tab, back}, std::pair{key::PageUp, key::ControlBit}}) {
    PagesForm form;
    form.sstA.Tab(2);
    EXPECT_EQ(form.AfterKey(form.txtA, keyCode, shift), (Strings{"txtA LostFocus", "sstA GotFocus", "sstA Click"}));
    EXPECT_EQ(form.sstA.Tab(), 0);
  }
}

TEST(PageKeys, GoRoundTheStrip) {
  PagesForm form;
  form.sstA.Tab(3);
  form.AfterKey(form.cmdA, key::Tab, key::ControlBit);
  EXPECT_EQ(form.sstA.Tab(), 0);
  form.AfterKey(form.cmdA, key::PageUp, key::ControlBit);
  EXPECT_EQ(form.sstA.Tab(), 3);
}

TEST(PageKeys, LeaveTheOnlyPageThatIsOnAlone) {
  PagesForm form;
  for (const int page : {2, 3}) form.sstA.TabEnabled(page, false);
  EXPECT_EQ(form.AfterKey(form.txtA, key::Tab, key::ControlBit), Strings{});
  EXPECT_EQ(form.sstA.Tab(), 0);
}

TEST(PageKeys, AreOrdinaryKeysWithoutAStripThatCanBeUsed) {
  PagesForm form;
  form.sstA.Enabled(false);
  EXPECT_EQ(form.AfterKey(form.txtA, key::PageDown, key::ControlBit),
            (Strings{"Form KeyDown 34 2", "txtA KeyDown 34 2"}));
}

TEST(PageKeys, TurnTheStripAroundTheFocusRatherThanTheFirst) {
  PagesForm form;
  TabStrip other(form, "sstOther", 2);
  TextBox inside(form, "txtInside");
  inside.OnPage(other, 0);
  form.AfterKey(inside, key::PageDown, key::ControlBit);
  EXPECT_EQ(other.Tab(), 1);
  EXPECT_EQ(form.sstA.Tab(), 0);
}

TEST(PageKeys, TurnTheFirstStripWhenNothingHasTheFocus) {
  PagesForm form;
  WhileShown(form, [&] {
    form.Focus(nullptr);
    form.hand.Key(key::PageDown, key::ControlBit, 0);
  });
  EXPECT_EQ(form.sstA.Tab(), 2);
}

TEST(GridKeys, MoveTheCellOnAPageThatIsNotInFront) {
  PagesForm form;
  form.sstA.Tab(2);
  EXPECT_EQ(form.AfterKey(form.msgA, key::Down), (Strings{"Form KeyDown 40 0", "msgA KeyDown 40 0"}));
  EXPECT_EQ(form.msgA.Row(), 2);
  form.AfterKey(form.msgA, key::Right);
  EXPECT_EQ(form.msgA.Col(), 2);
}

TEST(GridKeys, MoveNothingInAGridThatIsDisabledOrHidden) {
  PagesForm form;
  WhileShown(form, [&] {
    form.msgA.SetFocus();
    form.msgA.Enabled(false);
    form.hand.Key(key::Down, 0, 0);
    form.msgA.Enabled(true);
    form.msgA.Visible(false);
    form.hand.Key(key::Down, 0, 0);
  });
  EXPECT_EQ(form.msgA.Row(), 1);
}

TEST(ButtonArrows, MoveTheFocusToTheButtonBesideInTabOrder) {
  PagesForm form;
  for (const std::int16_t forward : {key::Right, key::Down}) {
    EXPECT_EQ(form.FocusAfter(form.cmdA, forward), "cmdB");
  }
  for (const std::int16_t back : {key::Left, key::Up}) {
    EXPECT_EQ(form.FocusAfter(form.cmdB, back), "cmdA");
    EXPECT_EQ(form.FocusAfter(form.cmdA, back), "cmdA") << "a text box lies ahead";
  }
}

TEST(ButtonArrows, ReachTheChosenOptionAndChooseNoOther) {
  PagesForm form;
  form.cmdCatcher.TabStop(false);
  EXPECT_EQ(form.FocusAfter(form.cmdB, key::Down), "opt(1)");
  EXPECT_TRUE(form.opt1.Value());
}

TEST(ButtonArrows, StayWhenAHandlerTakesThemAway) {
  PagesForm form;
  form.cmdA.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  EXPECT_EQ(form.FocusAfter(form.cmdA, key::Right), "cmdA");
}

TEST(ParkedFocus, IsMovedByNoKeyButTab) {
  PagesForm form;
  form.cmdB.Caption("&B");
  for (const std::int16_t arrow : {key::Left, key::Up, key::Right, key::Down}) {
    EXPECT_EQ(form.FocusAfter(form.cmdCatcher, arrow), "cmdCatcher");
  }
  EXPECT_EQ(form.AfterKey(form.cmdCatcher, key::Tab, key::ControlBit),
            (Strings{"Form KeyDown 9 2", "cmdCatcher KeyDown 9 2"}));
  EXPECT_EQ(form.AfterKey(form.cmdCatcher, 'B', key::AltBit),
            (Strings{"Form KeyDown 66 4", "cmdCatcher KeyDown 66 4"}));
  EXPECT_EQ(form.sstA.Tab(), 0);
  EXPECT_EQ(form.FocusAfter(form.cmdCatcher, key::Tab), "opt(1)");
}

struct LettersForm : TestForm {
  TextBox txtA{*this, "txtA"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdOpen{*this, "cmdOpen"};
  OptionButton opt0{*this, "opt", 0}, opt1{*this, "opt", 1};
  Label labName{*this, "labName"}, labLink{*this, "labLink"}, labAlone{*this, "labAlone"};
  ComboBox cmbA{*this, "cmbA"};
  Frame fraA{*this, "fraA"};
  OptionButton in0{*this, "in", 0}, in1{*this, "in", 1};
  TabStrip sstA{*this, "sstA", 3};
  MenuItem mnuPopup{*this, "MNU_POPUP"}, mnuCopy{*this, "MNU_COPY"}, mnuPaste{*this, "MNU_PASTE"};
  Hand hand{*this};
  LettersForm() {
    KeyPreview(true);
    for (Control* control : Controls()) Watch(*control);
    cmdOK.Caption("&OK");
    opt1.Caption("Make and &break");
    labName.Caption("Na&me");
    labName.Names(cmbA);
    labLink.Caption("&Limits");
    labLink.Look(LabelLook::Link);
    labAlone.Caption("&Alone");
    fraA.Caption("&Choice");
    for (OptionButton* inside : {&in0, &in1}) inside->Inside(fraA);
    in1.Value(true);
    sstA.TabCaption(1, "N&otes");
    sstA.TabCaption(2, "&Keys");
    mnuPopup.Caption("&Popup");
    mnuCopy.Caption("&Copy");
    mnuPaste.Caption("&Paste");
    mnuPaste.Enabled(false);
    mnuPopup.Add(mnuCopy);
    mnuPopup.Add(mnuPaste);
    Taken();
  }
  Strings AfterKey(std::int16_t keyCode, std::int16_t shift = key::AltBit, Control* focus = nullptr) {
    Strings raised;
    WhileShown(*this, [&] {
      Focus(focus == nullptr ? &txtA : focus);
      Taken();
      hand.Key(keyCode, shift, 0);
      raised = Taken();
    });
    return raised;
  }
};

TEST(CaptionLetter, WithAltPressesAButton) {
  LettersForm form;
  EXPECT_EQ(form.AfterKey('O'), (Strings{"txtA LostFocus", "cmdOK GotFocus", "cmdOK Click"}));
}

TEST(CaptionLetter, WithAltPicksAnOption) {
  LettersForm form;
  EXPECT_EQ(form.AfterKey('B'), (Strings{"txtA LostFocus", "opt(1) GotFocus", "opt(1) Click"}));
  EXPECT_TRUE(form.opt1.Value());
}

TEST(CaptionLetter, OfALabelLeadsToTheControlThatItNames) {
  LettersForm form;
  EXPECT_EQ(form.AfterKey('M'), (Strings{"txtA LostFocus", "cmbA GotFocus"}));
}

TEST(CaptionLetter, OfALinkClicksOnIt) {
  LettersForm form;
  EXPECT_EQ(form.AfterKey('L'), Strings{"labLink Click"});
}

TEST(CaptionLetter, OfAFrameLeadsToItsFirstControl) {
  LettersForm form;
  EXPECT_EQ(form.AfterKey('C'), (Strings{"txtA LostFocus", "in(1) GotFocus"}));
}

TEST(CaptionLetter, OfATabClicksOnIt) {
  LettersForm form;
  EXPECT_EQ(form.AfterKey('K'), (Strings{"txtA LostFocus", "sstA GotFocus", "sstA Click"}));
  EXPECT_EQ(form.sstA.Tab(), 2);
}

TEST(CaptionLetter, ThatSeveralHaveLeadsToTheNextBehindTheFocus) {
  LettersForm form;
  EXPECT_EQ(form.AfterKey('O', key::AltBit, &form.cmdOK), (Strings{"cmdOK LostFocus", "sstA GotFocus", "sstA Click"}));
  EXPECT_EQ(form.sstA.Tab(), 1);
}

TEST(CaptionLetter, ThatSeveralHaveLeadsToTheFirstWhenNothingHasTheFocus) {
  LettersForm form;
  WhileShown(form, [&] {
    form.Focus(nullptr);
    form.Taken();
    form.hand.Key('O', key::AltBit, 0);
    EXPECT_EQ(form.Taken(), (Strings{"cmdOK GotFocus", "cmdOK Click"}));
  });
}

TEST(CaptionLetter, ThatLeadsNowhereIsAnOrdinaryKey) {
  LettersForm form;
  form.cmdOK.Enabled(false);
  form.sstA.TabEnabled(1, false);
  form.cmbA.Visible(false);
  for (const char letter : {'O', 'M', 'A', 'P', 'Z'}) {
    const std::string code = std::to_string(static_cast<int>(letter));
    EXPECT_EQ(form.AfterKey(letter), (Strings{"Form KeyDown " + code + " 4", "txtA KeyDown " + code + " 4"}));
  }
}

TEST(CaptionLetter, WithoutAltOrWithControlBesidesIsAnOrdinaryKey) {
  LettersForm form;
  EXPECT_EQ(form.AfterKey('O', 0), (Strings{"Form KeyDown 79 0", "txtA KeyDown 79 0"}));
  EXPECT_EQ(form.AfterKey('O', key::AltBit | key::ControlBit), (Strings{"Form KeyDown 79 6", "txtA KeyDown 79 6"}));
}

TEST(CaptionLetter, OfAnEntryPicksItFromTheMenuThatIsOpen) {
  for (const std::int16_t shift : {std::int16_t{0}, key::AltBit}) {
    LettersForm form;
    form.OpenPopup(&form.mnuPopup);
    form.hand.Key('C', shift, 'c');
    EXPECT_EQ(form.Taken(), Strings{"MNU_COPY Click"});
    EXPECT_EQ(form.OpenPopup(), nullptr);
  }
}

TEST(CaptionLetter, OfADisabledEntryPicksNothing) {
  LettersForm form;
  form.OpenPopup(&form.mnuPopup);
  form.hand.Key('P', 0, 0);
  EXPECT_EQ(form.Taken(), Strings{"Form KeyDown 80 0"});
  EXPECT_EQ(form.OpenPopup(), nullptr);
}

TEST(Letters, AFrameWithNothingInItIsPassedOver) {
  struct FramesForm : TestForm {
    CommandButton cmdA{*this, "cmdA"};
    Frame fraEmpty{*this, "fraEmpty"}, fraFull{*this, "fraFull"};
    CommandButton cmdB{*this, "cmdB"};
    Hand hand{*this};
  } form;
  form.fraEmpty.Caption("&Frame");
  form.fraFull.Caption("&Frame");
  form.cmdB.Inside(form.fraFull);
  WhileShown(form, [&] {
    form.cmdA.SetFocus();
    form.hand.KeyDown('F', key::AltBit);
    EXPECT_EQ(form.Focus(), &form.cmdB);
  });
}

TEST(Pages, AreTurnedOfTheStripThatCanBeUsed) {
  struct StripsForm : TestForm {
    TabStrip sstA{*this, "sstA", 2}, sstB{*this, "sstB", 2};
    TextBox txtA{*this, "txtA"};
    Hand hand{*this};
  } form;
  form.txtA.OnPage(form.sstA, 0);
  WhileShown(form, [&] {
    form.Focus(&form.txtA);
    form.sstA.Enabled(false);
    form.hand.Key(key::PageDown, key::ControlBit, 0);
    EXPECT_EQ(form.sstA.Tab(), 0);
    EXPECT_EQ(form.sstB.Tab(), 1);
  });
}

}  // namespace
}  // namespace plexel
