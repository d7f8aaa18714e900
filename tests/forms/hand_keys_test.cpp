#include "keys_form.h"

namespace plexel {
namespace {

constexpr std::int16_t letterA = 'A';

TEST(KeyDown, GoesToTheControlWithTheFocus) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyDown(letterA, key::ShiftBit), letterA); }),
            Strings{"txtLine KeyDown 65 1"});
}

TEST(KeyDown, IsPreviewedByTheForm) {
  KeysForm form;
  form.KeyPreview(true);
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.KeyDown(letterA, 0); }),
            (Strings{"Form KeyDown 65 0", "txtLine KeyDown 65 0"}));
}

TEST(KeyDown, ReachesTheControlWithTheCodeThatThePreviewLeft) {
  KeysForm form;
  form.KeyPreview(true);
  form.onKeyDown = [](std::int16_t& keyCode) { keyCode = 0; };
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyDown(letterA, 0), 0); }),
            (Strings{"Form KeyDown 65 0", "txtLine KeyDown 0 0"}));
}

TEST(KeyDown, DoesNotReachAFocusThatIsNotUsable) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine,
                        [&] {
                          form.txtLine.Enabled(false);
                          EXPECT_EQ(form.hand.KeyDown(letterA, 0), letterA);
                          EXPECT_EQ(form.hand.KeyPress('a'), 'a');
                        }),
            Strings{});
  EXPECT_EQ(form.txtLine.Text(), "");
}

TEST(KeyDown, WithoutAFocusIsStillPreviewed) {
  KeysForm form;
  form.KeyPreview(true);
  form.hand.KeyDown(letterA, 0);
  EXPECT_EQ(form.log, Strings{"Form KeyDown 65 0"});
}

TEST(KeyDown, IsOverWhenThePreviewClosesTheForm) {
  KeysForm form;
  form.KeyPreview(true);
  form.onKeyDown = [&](std::int16_t&) { form.Unload(); };
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.Key(letterA, 0, 'a'); }),
            (Strings{"Form KeyDown 65 0", "QueryUnload 1", "Unload"}));
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.KeyDown(key::Return, 0); }),
            (Strings{"Form KeyDown 13 0", "QueryUnload 1", "Unload"}));
}

TEST(KeyDown, IsOverWhenTheControlClosesTheForm) {
  KeysForm form;
  form.txtLine.OnKeyDown = [&](std::int16_t&, std::int16_t) { form.Unload(); };
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.Key(letterA, 0, 'a'); }), (Strings{"QueryUnload 1", "Unload"}));
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.KeyDown(key::Return, 0); }),
            (Strings{"QueryUnload 1", "Unload"}));
}

TEST(KeyDown, StaysWithTheControlThatHadTheFocusWhenThePreviewMovesIt) {
  KeysForm form;
  form.KeyPreview(true);
  form.onKeyDown = [&](std::int16_t&) { form.cmdHelp.SetFocus(); };
  EXPECT_EQ(form.Raised(form.msgA, [&] { form.hand.Key(key::Return, 0, key::Return); }),
            (Strings{"Form KeyDown 13 0", "msgA LostFocus", "cmdHelp GotFocus", "msgA KeyDown 13 0", "Form KeyPress 13",
                     "msgA KeyPress 13"}));
}

TEST(ReturnKey, PressesTheDefaultButtonFromATextBoxAndRaisesNothingElse) {
  KeysForm form;
  form.KeyPreview(true);
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.Key(key::Return, 0, key::Return), 0); }),
            Strings{"cmdOK Click"});
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_FALSE(form.hand.PreviewKey(key::Return, 0, key::Return)); }),
            Strings{"cmdOK Click"});
}

TEST(ReturnKey, AsAKeyDownOfItsOwnIsRaisedAndPressesTheDefaultButton) {
  KeysForm form;
  form.KeyPreview(true);
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyDown(key::Return, 0), key::Return); }),
            (Strings{"Form KeyDown 13 0", "txtLine KeyDown 13 0", "cmdOK Click"}));
}

TEST(ReturnKey, PressesTheDefaultButtonWhateverAHandlerDidToTheCode) {
  KeysForm form;
  form.txtLine.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyDown(key::Return, 0), 0); }),
            Strings{"cmdOK Click"});
}

TEST(ReturnKey, LeavesTheFocusWhereItIs) {
  KeysForm form;
  form.Raised(form.txtLine, [&] {
    form.hand.KeyDown(key::Return, 0);
    EXPECT_TRUE(form.txtLine.HasFocus());
  });
}

TEST(ReturnKey, PressesTheCommandButtonWithTheFocusRatherThanTheDefaultOne) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.cmdHelp, [&] { form.hand.Key(key::Return, 0, key::Return); }), Strings{"cmdHelp Click"});
  EXPECT_EQ(form.Raised(form.cmdHelp, [&] { form.hand.KeyDown(key::Return, 0); }),
            (Strings{"cmdHelp KeyDown 13 0", "cmdHelp Click"}));
}

TEST(ReturnKey, IsTheGridsOwn) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.msgA, [&] { form.hand.Key(key::Return, 0, key::Return); }),
            (Strings{"msgA KeyDown 13 0", "msgA KeyPress 13"}));
}

TEST(ReturnKey, BreaksTheLineInABoxOfSeveralLines) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtNotes, [&] { form.hand.Key(key::Return, 0, key::Return); }),
            (Strings{"txtNotes KeyDown 13 0", "txtNotes KeyPress 13"}));
  EXPECT_EQ(form.txtNotes.Text(), "\r\n");
}

TEST(ReturnKey, WithADisabledDefaultButtonIsTheControls) {
  KeysForm form;
  form.cmdOK.Enabled(false);
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.Key(key::Return, 0, key::Return); }),
            (Strings{"txtLine KeyDown 13 0", "txtLine KeyPress 13"}));
  EXPECT_EQ(form.txtLine.Text(), "");
}

TEST(ReturnKey, WithControlOrAltPressesNothing) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine,
                        [&] {
                          form.hand.KeyDown(key::Return, key::ControlBit);
                          form.hand.KeyDown(key::Return, key::AltBit);
                        }),
            (Strings{"txtLine KeyDown 13 2", "txtLine KeyDown 13 4"}));
}

TEST(ReturnKey, WithoutAFocusPressesTheDefaultButton) {
  KeysForm form;
  form.hand.KeyDown(key::Return, 0);
  EXPECT_EQ(form.log, Strings{"cmdOK Click"});
}

TEST(EscapeKey, PressesTheCancelButtonFromAnywhereAndRaisesNothingElse) {
  KeysForm form;
  form.KeyPreview(true);
  for (Control* focus : std::initializer_list<Control*>{&form.msgA, &form.txtNotes, &form.cmdOK}) {
    EXPECT_EQ(form.Raised(*focus, [&] { form.hand.Key(key::Escape, 0, key::Escape); }), Strings{"cmdCancel Click"});
    EXPECT_EQ(form.Raised(*focus, [&] { form.hand.PreviewKey(key::Escape, 0, key::Escape); }),
              Strings{"cmdCancel Click"});
  }
}

TEST(EscapeKey, AsAKeyDownOfItsOwnIsRaisedAndPressesTheCancelButton) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.KeyDown(key::Escape, 0); }),
            (Strings{"txtLine KeyDown 27 0", "cmdCancel Click"}));
}

TEST(EscapeKey, WithoutACancelButtonIsACharacter) {
  KeysForm form;
  form.cmdCancel.Cancel(false);
  form.KeyPreview(true);
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.Key(key::Escape, 0, key::Escape); }),
            (Strings{"Form KeyDown 27 0", "txtLine KeyDown 27 0", "Form KeyPress 27", "txtLine KeyPress 27"}));
  EXPECT_EQ(form.txtLine.Text(), "");
}

TEST(EscapeKey, WithADisabledOrHiddenCancelButtonPressesNothing) {
  KeysForm form;
  form.cmdCancel.Enabled(false);
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.Key(key::Escape, 0, 0); }), Strings{"txtLine KeyDown 27 0"});
  form.cmdCancel.Enabled(true);
  form.cmdCancel.Visible(false);
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.Key(key::Escape, 0, 0); }), Strings{"txtLine KeyDown 27 0"});
}

TEST(EscapeKey, OnlyClosesTheMenuThatIsOpen) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.msgA,
                        [&] {
                          form.OpenPopup(&form.mnuPopup);
                          form.hand.Key(key::Escape, 0, key::Escape);
                          EXPECT_EQ(form.OpenPopup(), nullptr);
                        }),
            Strings{});
}

TEST(OpenMenu, StaysWhenThePreviewOpensItForAKeyWithACharacter) {
  KeysForm form;
  form.KeyPreview(true);
  form.onKeyDown = [&](std::int16_t&) { form.OpenPopup(&form.mnuPopup); };
  form.hand.Key(letterA, 0, 'a');
  EXPECT_EQ(form.OpenPopup(), &form.mnuPopup);
}

TEST(TabKey, MovesTheFocusAndRaisesNothingElse) {
  KeysForm form;
  form.KeyPreview(true);
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.Key(key::Tab, 0, key::Tab), 0); }),
            (Strings{"txtLine LostFocus", "txtNotes GotFocus"}));
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_FALSE(form.hand.PreviewKey(key::Tab, key::ShiftBit, 0)); }),
            (Strings{"txtLine LostFocus", "msgA GotFocus"}));
}

TEST(TabKey, RaisesNothingWhenThereIsNoOtherControl) {
  TestForm form;
  CommandButton only(form, "cmdA");
  form.Watch(only);
  form.KeyPreview(true);
  only.SetFocus();
  Hand(form).Key(key::Tab, 0, 0);
  EXPECT_EQ(form.log, Strings{});
}

TEST(TabKey, AsAKeyDownOfItsOwnMovesTheFocusWhateverAHandlerDidToTheCode) {
  KeysForm form;
  form.txtLine.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyDown(key::Tab, 0), 0); }),
            (Strings{"txtLine LostFocus", "txtNotes GotFocus"}));
}

TEST(TabKey, WithShiftMovesTheFocusBack) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.KeyDown(key::Tab, key::ShiftBit); }),
            (Strings{"txtLine KeyDown 9 1", "txtLine LostFocus", "msgA GotFocus"}));
}

TEST(TabKey, WithControlLeavesTheFocus) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.KeyDown(key::Tab, key::ControlBit); }),
            Strings{"txtLine KeyDown 9 2"});
}

TEST(SpaceKey, PressesACommandButtonWhenItComesUp) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.cmdHelp,
                        [&] {
                          form.hand.Key(key::Space, 0, ' ');
                          EXPECT_EQ(form.Taken(), (Strings{"cmdHelp KeyDown 32 0", "cmdHelp KeyPress 32"}));
                          form.hand.KeyUp(key::Space, 0);
                        }),
            Strings{"cmdHelp Click"});
}

TEST(SpaceKey, ThatWentDownElsewherePressesNothing) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine,
                        [&] {
                          form.hand.KeyDown(key::Space, 0);
                          form.cmdHelp.SetFocus();
                          form.Taken();
                          form.hand.KeyUp(key::Space, 0);
                        }),
            Strings{});
}

TEST(SpaceKey, HoldsItsButtonThoughAnotherKeyComesUp) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.cmdHelp,
                        [&] {
                          form.hand.KeyDown(key::Space, 0);
                          form.Taken();
                          form.hand.KeyUp(key::Return, 0);
                          EXPECT_EQ(form.Taken(), Strings{});
                          form.hand.KeyUp(key::Space, 0);
                        }),
            Strings{"cmdHelp Click"});
}

TEST(SpaceKey, PressesNothingWhenTheFocusHasMovedMeanwhile) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.cmdHelp,
                        [&] {
                          form.hand.KeyDown(key::Space, 0);
                          form.cmdOK.SetFocus();
                          form.cmdHelp.SetFocus();
                          form.Taken();
                          form.hand.KeyUp(key::Space, 0);
                        }),
            Strings{});
}

TEST(SpaceKey, PressesNoButtonThatWasSwitchedOffMeanwhile) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.cmdHelp,
                        [&] {
                          form.hand.KeyDown(key::Space, 0);
                          form.cmdHelp.Enabled(false);
                          form.Taken();
                          form.hand.KeyUp(key::Space, 0);
                        }),
            Strings{});
}

TEST(SpaceKey, PressesOnce) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.cmdHelp,
                        [&] {
                          form.hand.KeyDown(key::Space, 0);
                          form.Taken();
                          form.hand.KeyUp(key::Space, 0);
                          form.hand.KeyUp(key::Space, 0);
                        }),
            Strings{"cmdHelp Click"});
}

TEST(SpaceKey, TakenAwayByAHandlerPressesNothing) {
  KeysForm form;
  form.cmdHelp.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  EXPECT_EQ(form.Raised(form.cmdHelp,
                        [&] {
                          form.hand.KeyDown(key::Space, 0);
                          form.hand.KeyUp(key::Space, 0);
                        }),
            Strings{});
}

}  // namespace
}  // namespace plexel
