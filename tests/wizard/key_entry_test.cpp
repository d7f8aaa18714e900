#include "wizard/wizard_session.h"

namespace plexel {

namespace {

using Names = std::vector<std::string>;
constexpr std::int32_t white = 0xFFFFFF, captureColour = 65535;

/// A session on page 1 that looks and then cancels.
void Look(WizardSession& session, const WizardSession::Act& look) {
  session.Then(look).Click("cmdCancel");
  session.Open();
}

/// Presses left Ctrl on top of left Shift, the end of key entry.
void ShiftAndControl(WizardSession& session) { session.KeyDown(key::Control, key::ShiftBit | key::ControlBit); }

}  // namespace

TEST(WizardKeyEntry, ADoubleClickOnTheDisabledBoxDoesNothing) {
  WizardSession session(Oval);
  session.element->WizardOptions(WindowsShortCut);
  Look(session, [&] {
    EXPECT_THROW(Hand(session.Top()).DblClick(session.Get<Control>("txtScanCodes")), Failure);
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_EQ(Module().bDirectInputActive, False);
  });
}

TEST(WizardKeyEntry, StartingCaptureColoursAndEmptiesTheBoxAndTakesKeyPreviewAway) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "");
  session.DblClick("txtScanCodes");
  Look(session, [&] {
    EXPECT_NE(Module().lngKeyboardHook, 0);
    EXPECT_EQ(Module().bDirectInputActive, True);
    EXPECT_EQ(Module().lngInputTarget, 2);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").BackColor(), captureColour);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "");
    EXPECT_FALSE(session.Top().KeyPreview());
    EXPECT_TRUE(session.Get<Control>("cmdFocusCatcher").HasFocus());
  });
}

TEST(WizardKeyEntry, StartingCaptureEmptiesTheCodesAndLeavesTheTexts) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.element->TactisBaseElementScanCodeBuffer(session.FilledRecord());
  const Names texts = session.Texts();
  session.DblClick("txtScanCodes");
  Look(session, [&] {
    EXPECT_TRUE(session.BuffersAreZero());
    EXPECT_EQ(session.Texts(), texts);
    EXPECT_EQ(session.element->WizardOptions(), ManuallyDefined);
  });
}

TEST(WizardKeyEntry, EndingCaptureGivesWhiteKeyPreviewAndTheFocusOfTheFormBack) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").DblClick("txtScanCodes");
  Look(session, [&] {
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_EQ(Module().bDirectInputActive, False);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").BackColor(), white);
    EXPECT_TRUE(session.Top().KeyPreview());
    EXPECT_EQ(session.Top().Focus(), nullptr);
    EXPECT_FALSE(session.Get<Control>("cmdFocusCatcher").TabStop());
  });
}

TEST(WizardKeyEntry, CaptureWithoutAKeyStrokeLeavesTheCodesEmpty) {
  WizardSession session(Oval);
  session.element->TactisBaseElementScanCodeBuffer(session.FilledRecord());
  session.DblClick("txtScanCodes");
  ShiftAndControl(session);
  Look(session, [&] { EXPECT_TRUE(session.BuffersAreZero()); });
}

TEST(WizardKeyEntry, ReturnInTheIdleBoxStartsCapture) {
  WizardSession session(Oval);
  session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>("txtScanCodes")); }).KeyDown(key::Return);
  Look(session, [&] { EXPECT_NE(Module().lngKeyboardHook, 0); });
}

TEST(WizardKeyEntry, AnyKeyInTheIdleBoxMakesForwardRewriteTheTexts) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>("txtScanCodes")); }).KeyDown(key::Home);
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.Texts(), (Names{"[a‹›]", "[a‹›]", "[a‹›]", "[a‹›]", "", "", "", ""}));
}

TEST(WizardKeyEntry, TabPastTheBoxLeavesTheLayersAsTheyAre) {
  constexpr std::int32_t placeOfTab = 0x0F;
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.element->PressKeyDefLayer2("[other‹›]");
  const Names before = session.Texts();
  session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>("txtScanCodes")); });
  session.Stroke(key::Tab, placeOfTab).Then([&] { EXPECT_FALSE(session.Get<Control>("txtScanCodes").HasFocus()); });
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.Texts(), before);
}

TEST(WizardKeyEntry, ArrowsOnTheButtonsLeaveTheLayersAsTheyAre) {
  constexpr std::int32_t placeOfUp = 0x48;
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.element->PressKeyDefLayer2("[other‹›]");
  const Names before = session.Texts();
  session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>("cmdForward")); });
  for (int times = 0; times < 3; ++times) session.Stroke(key::Up, placeOfUp);
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.Texts(), before);
}

TEST(WizardKeyEntry, ArrowsInTheIdleBoxAreNotDropped) {
  WizardSession session(Oval);
  Look(session, [&] {
    Hand hand(session.Top());
    hand.Focus(session.Get<Control>("txtScanCodes"));
    EXPECT_EQ(hand.KeyDown(key::Left, 0), key::Left);
  });
}

TEST(WizardKeyEntry, ArrowsInTheBoxAreDroppedDuringCapture) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes");
  Look(session, [&] {
    Hand hand(session.Top());
    hand.Focus(session.Get<Control>("txtScanCodes"));
    for (const std::int16_t arrow : {key::Left, key::Up, key::Right, key::Down}) EXPECT_EQ(hand.KeyDown(arrow, 0), 0);
    EXPECT_EQ(hand.KeyDown(key::Home, 0), key::Home);
    EXPECT_EQ(hand.KeyDown(key::Return, 0), key::Return);
    EXPECT_NE(Module().lngKeyboardHook, 0);
  });
}

TEST(WizardKeyEntry, ArrowsOnTheFocusCatcherAreDroppedDuringCaptureOnly) {
  WizardSession session(Oval);
  session.Then([&] {
    Hand hand(session.Top());
    hand.Focus(session.Get<Control>("cmdFocusCatcher"));
    EXPECT_EQ(hand.KeyDown(key::Left, 0), key::Left);
    EXPECT_EQ(hand.KeyDown(key::Control, key::ShiftBit | key::ControlBit), key::Control);
    EXPECT_EQ(Module().lngKeyboardHook, 0);
  });
  session.DblClick("txtScanCodes");
  Look(session, [&] {
    Hand hand(session.Top());
    for (const std::int16_t arrow : {key::Left, key::Up, key::Right, key::Down}) EXPECT_EQ(hand.KeyDown(arrow, 0), 0);
    EXPECT_EQ(hand.KeyDown(key::End, 0), key::End);
  });
}

TEST(WizardKeyEntry, ShiftAndControlEndCaptureInTheBoxAndOnTheFocusCatcher) {
  for (const char* control : {"txtScanCodes", "cmdFocusCatcher"}) {
    WizardSession session(Oval);
    session.DblClick("txtScanCodes");
    session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>(control)); });
    ShiftAndControl(session);
    Look(session, [&] { EXPECT_EQ(Module().lngKeyboardHook, 0) << control; });
  }
}

TEST(WizardKeyEntry, OnlyControlPressedWithExactlyShiftAndControlEndsCapture) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes");
  session.KeyDown(key::Control, key::ControlBit);
  session.KeyDown(key::Shift, key::ShiftBit | key::ControlBit);
  session.KeyDown(key::Control, key::ShiftBit | key::ControlBit | key::AltBit);
  Look(session, [&] { EXPECT_NE(Module().lngKeyboardHook, 0); });
}

TEST(WizardKeyEntry, EndingCaptureOnTheFocusCatcherCountsAsAChange) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "");
  session.DblClick("txtScanCodes").Click("cmdForward").Click("cmdBack");
  session.Then([&] {
    session.GiveTexts("[a‹›]", "");
    Module().bDirectInputActive = True;
    Hand(session.Top()).Focus(session.Get<Control>("cmdFocusCatcher"));
  });
  ShiftAndControl(session);
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "");
}

TEST(WizardKeyEntry, AHookThatCannotBeInstalledLeavesThePageInItsCaptureLook) {
  WizardSession session(Oval);
  session.platform.faults.Turn(Fault::KeyboardHook, true);
  session.DblClick("txtScanCodes");
  Look(session, [&] {
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_EQ(Module().bDirectInputActive, True);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").BackColor(), captureColour);
    EXPECT_FALSE(session.Top().KeyPreview());
  });
}

TEST(WizardKeyEntry, TheListsTakeOnlyDownUpAndReturnAndNoCharacter) {
  for (const char* combo : {"cmdSpecialIPCFunction", "cmbWindowsShortCuts"}) {
    WizardSession session(Oval);
    session.Grant(Capability::HasSystemReset);
    session.element->WizardOptions(std::string_view(combo) == "cmbWindowsShortCuts" ? WindowsShortCut : IPCFunction);
    Look(session, [&] {
      Hand hand(session.Top());
      hand.Focus(session.Get<Control>(combo));
      for (const std::int16_t kept : {key::Down, key::Up, key::Return}) EXPECT_EQ(hand.KeyDown(kept, 0), kept);
      for (const std::int16_t dropped : {key::Home, key::Left, key::Space, std::int16_t{'A'}, key::Delete}) {
        EXPECT_EQ(hand.KeyDown(dropped, 0), 0) << combo << dropped;
      }
      EXPECT_EQ(hand.KeyPress('a'), 0);
    });
  }
}

TEST(WizardKeyEntry, EachEventOfAListCountsAsAChange) {
  const std::vector<std::function<void(WizardSession&)>> events = {
      [](WizardSession& session) { Hand(session.Top()).Select(session.Get<ComboBox>("cmbWindowsShortCuts"), 0); },
      [](WizardSession& session) { Hand(session.Top()).KeyDown('A', 0); },
      [](WizardSession& session) { Hand(session.Top()).KeyPress('a'); }};
  for (const auto& event : events) {
    WizardSession session(Oval);
    session.element->WizardOptions(WindowsShortCut);
    session.GiveTexts("[text 2610‹]", "");
    session.Then([&] {
      Hand(session.Top()).Focus(session.Get<Control>("cmbWindowsShortCuts"));
      event(session);
    });
    session.Click("cmdForward").Click("cmdOK");
    session.Open();
    EXPECT_EQ(session.element->ReleaseKeyDefLayer1(), "[text 2610›]");
  }
}

TEST(WizardKeyEntry, DeleteEmptiesTheDefinitionAndKeepsNotesLedsAndNumbers) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.element->ButtonNotes("note");
  session.element->LEDTypeLayer2(PowerLed);
  session.element->HardwareNumberKey3(12);
  session.element->TactisBaseElementScanCodeBuffer(session.FilledRecord());
  session.Click("cmdDeleteKEY");
  Look(session, [&] {
    EXPECT_EQ(session.Texts(), Names(8, ""));
    EXPECT_TRUE(session.BuffersAreZero());
    EXPECT_EQ(session.element->WizardOptions(), ManuallyDefined);
    EXPECT_EQ(session.element->ButtonNotes(), "note");
    EXPECT_EQ(session.element->LEDTypeLayer2(), PowerLed);
    EXPECT_EQ(session.element->HardwareNumberKey3(), 12);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "");
  });
}

TEST(WizardKeyEntry, DeleteDuringCaptureTurnsTheBoxWhiteAndLeavesCaptureRunning) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").Click("cmdDeleteKEY");
  Look(session, [&] {
    EXPECT_NE(Module().lngKeyboardHook, 0);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").BackColor(), white);
  });
}

TEST(WizardKeyEntry, ForwardAfterDeleteLeavesTheEmptiedElementHandMade) {
  WizardSession session(Oval);
  session.element->WizardOptions(WindowsShortCut);
  session.GiveTexts("[a‹]", "[a›]");
  session.Click("cmdDeleteKEY").Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.Texts(), Names(8, ""));
  EXPECT_EQ(session.element->WizardOptions(), ManuallyDefined);
}

namespace {

bool AnyHook(WizardSession& session) {
  return session.platform.Hooks().Installed(HookKind::Keyboard) ||
         session.platform.Hooks().Installed(HookKind::LowLevelKeyboard);
}

}  // namespace

TEST(WizardKeyEntry, ALowLevelHookThatAFailedStartLeavesStaysUpToTheEndOfTheWizardAndNoLonger) {
  const std::vector<Names> ways = {{"cmdCancel"},           {""},
                                   {"cmdForward", "cmdOK"}, {"cmdForward", "cmdCancel"},
                                   {"cmdForward", ""},      {"cmdForward", "cmdBack", "cmdCancel"}};
  for (const Names& way : ways) {
    SCOPED_TRACE(way.front() + ' ' + way.back());
    WizardSession session(Oval);
    session.surroundings.Settings().Option(9, True);
    session.platform.faults.Turn(Fault::KeyboardHook, true);
    session.DblClick("txtScanCodes").DblClick("txtScanCodes").DblClick("txtScanCodes");
    session.Then([&] { session.platform.faults.Turn(Fault::KeyboardHook, false); });
    session.Click("optKeyType(0)").DblClick("txtScanCodes").DblClick("txtScanCodes");
    session.Then([&] { EXPECT_TRUE(AnyHook(session)); });
    for (const std::string& button : way) button.empty() ? session.Close() : session.Click(button);
    session.Open();
    EXPECT_FALSE(AnyHook(session));
    EXPECT_EQ(Module().lngLowLevelHook, 0);
  }
}

TEST(WizardKeyEntry, HooksThatOutliveTheWizardGoWithTheNextOneBeforeItIsShown) {
  WizardSession session(Oval);
  session.surroundings.Settings().Option(9, True);
  session.DblClick("txtScanCodes").Then([&] { session.platform.faults.Turn(Fault::Unhook, true); }).Click("cmdCancel");
  session.Open();
  EXPECT_TRUE(AnyHook(session));
  session.platform.faults.Turn(Fault::Unhook, false);
  session.Then([&] { EXPECT_FALSE(AnyHook(session)); }).DblClick("txtScanCodes");
  session.Then([&] { EXPECT_TRUE(AnyHook(session)); }).Click("cmdCancel");
  session.Open();
  EXPECT_FALSE(AnyHook(session));
}

}  // namespace plexel
