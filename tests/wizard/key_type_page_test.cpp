#include <algorithm>

#include "services/shared_services.h"
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

Names Items(WizardSession& session, const char* combo) { return session.Get<ComboBox>(combo).Items(); }

bool Enabled(WizardSession& session, const char* control) { return session.Get<Control>(control).Enabled(); }

/// A record whose buffers and texts are all filled.
udtTactisBaseElement_ScanCodeInfo FilledRecord(WizardSession& session) {
  auto record = session.Record();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    PressBuffer(record, layer)->Value.fill(0x1C);
    PressBuffer(record, layer)->NextValue = 7;
    ReleaseBuffer(record, layer)->Value.fill(0x2C);
    ReleaseBuffer(record, layer)->NextValue = 8;
  }
  return record;
}

bool BuffersAreZero(WizardSession& session) {
  auto record = session.Record();
  auto zero = record;
  ZeroAllBuffers(zero);
  return record == zero;
}

/// Presses left Ctrl on top of left Shift, the end of key entry.
void ShiftAndControl(WizardSession& session) { session.KeyDown(key::Control, key::ShiftBit | key::ControlBit); }

}  // namespace

TEST(WizardKeyTypePage, ATargetSystemWithoutFunctionsLeavesTheListEmptyAndDisabledAndItsOptionDisabled) {
  WizardSession session(Oval);
  Look(session, [&] {
    EXPECT_EQ(Items(session, "cmdSpecialIPCFunction"), Names{});
    EXPECT_EQ(session.Get<ComboBox>("cmdSpecialIPCFunction").Text(), "");
    EXPECT_FALSE(Enabled(session, "cmdSpecialIPCFunction"));
    EXPECT_FALSE(Enabled(session, "optKeyType(2)"));
  });
}

TEST(WizardKeyTypePage, TheListHoldsFiveFunctionsInItsOwnOrderAndShowsTheFirst) {
  WizardSession session(Oval);
  for (int query = 0; query < CapabilityCount; ++query) session.Grant(static_cast<Capability>(query));
  Look(session, [&] {
    EXPECT_EQ(Items(session, "cmdSpecialIPCFunction"),
              (Names{Text(2608), Text(2603), Text(2604), Text(2601), Text(2602)}));
    EXPECT_EQ(session.Get<ComboBox>("cmdSpecialIPCFunction").Text(), Text(2608));
    EXPECT_TRUE(Enabled(session, "optKeyType(2)"));
  });
}

TEST(WizardKeyTypePage, DeviceType2OffersAtMostThreePanelFunctions) {
  WizardSession session(Oval);
  for (int query = 0; query < CapabilityCount; ++query) session.Grant(static_cast<Capability>(query));
  session.element->DeviceType(2);
  Look(session, [&] {
    EXPECT_EQ(Items(session, "cmdSpecialIPCFunction"), (Names{Text(2608), Text(2603), Text(2604)}));
  });
}

TEST(WizardKeyTypePage, AFunctionIsOfferedOnlyWhenTheTargetSystemAnswersOne) {
  WizardSession session(Oval);
  session.element->TargetSystem("T");
  session.surroundings.Capabilities().Set("T", Capability::HasContrastLower, 1);
  session.surroundings.Capabilities().Set("T", Capability::HasContrastHigher, -1);
  session.surroundings.Capabilities().Set("T", Capability::HasSystemReset, 2);
  Look(session, [&] { EXPECT_EQ(Items(session, "cmdSpecialIPCFunction"), Names{Text(2604)}); });
}

TEST(WizardKeyTypePage, TheShortcutsAreAllOfferedInTheirOrderAndTheFirstIsShown) {
  WizardSession session(Oval);
  Look(session, [&] {
    Names expected;
    for (std::int32_t number = 2610; number <= 2626; ++number) expected.push_back(Text(number));
    expected.push_back(Text(10928));
    expected.push_back(Text(10929));
    EXPECT_EQ(Items(session, "cmbWindowsShortCuts"), expected);
    EXPECT_EQ(session.Get<ComboBox>("cmbWindowsShortCuts").Text(), Text(2610));
  });
}

TEST(WizardKeyTypePage, TheOptionOfTheElementIsSetAndItsControlAloneIsEnabledWithTheVisibleText) {
  struct Row {
    enumWizardOptions options;
    const char* option;
    const char* control;
  };
  for (const Row& row : {Row{NormalKey, "optKeyType(0)", "txtScanCodes"}, Row{TipKey, "optKeyType(1)", "txtScanCodes"},
                         Row{IPCFunction, "optKeyType(2)", "cmdSpecialIPCFunction"},
                         Row{WindowsShortCut, "optKeyType(3)", "cmbWindowsShortCuts"}}) {
    WizardSession session(Oval);
    session.Grant(Capability::HasSystemReset);
    session.element->WizardOptions(row.options);
    session.GiveTexts("[Ctrl Left+a‹›]", "");
    Look(session, [&] {
      for (const char* option : {"optKeyType(0)", "optKeyType(1)", "optKeyType(2)", "optKeyType(3)"}) {
        EXPECT_EQ(session.Get<OptionButton>(option).Value(), std::string_view(option) == row.option) << row.option;
      }
      for (const char* control : {"txtScanCodes", "cmdSpecialIPCFunction", "cmbWindowsShortCuts"}) {
        EXPECT_EQ(Enabled(session, control), std::string_view(control) == row.control) << row.option << control;
        const auto* text = dynamic_cast<TextBox*>(&session.Get<Control>(control));
        const std::string shown = text != nullptr ? text->Text() : session.Get<ComboBox>(control).Text();
        EXPECT_EQ(shown == "Ctrl Left+a", std::string_view(control) == row.control) << row.option << control;
      }
    });
  }
}

TEST(WizardKeyTypePage, AHandMadeElementOpensWithTipKeyAndAnEmptyBox) {
  for (const std::int32_t options : {4, 5, -1}) {
    WizardSession session(Oval);
    session.element->WizardOptions(static_cast<enumWizardOptions>(options));
    session.GiveTexts("[a‹]", "[a›]");
    Look(session, [&] {
      EXPECT_TRUE(session.Get<OptionButton>("optKeyType(1)").Value());
      EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "");
      EXPECT_TRUE(Enabled(session, "txtScanCodes"));
    });
  }
}

TEST(WizardKeyTypePage, ForwardOnAHandMadeElementWithoutTouchingAnythingLeavesItsDefinitionAlone) {
  WizardSession session(Oval);
  session.element->WizardOptions(ManuallyDefined);
  session.GiveTexts("[a‹]", "[a›]");
  session.element->TactisBaseElementScanCodeBuffer(FilledRecord(session));
  const auto before = session.Record();
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.Record(), before);
}

TEST(WizardKeyTypePage, OpeningLeavesTheElementAndTheKeyUntouched) {
  WizardSession session(Oval);
  session.element->WizardOptions(WindowsShortCut);
  session.GiveTexts("[x‹]", "[x›]");
  const auto before = session.Record();
  session.host.Forget();
  session.Then([&] {
    EXPECT_EQ(session.Record(), before);
    EXPECT_TRUE(session.host.Notices().empty());
  });
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "[x‹]");
}

TEST(WizardKeyTypePage, SeveralGroupsRunTogetherInTheVisibleText) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›][ASCII:65‹]", "");
  Look(session, [&] { EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "aASCII:65"); });
}

TEST(WizardKeyTypePage, OnlyThePressTextOfLayer1IsLookedAt) {
  WizardSession session(Oval);
  session.element->PressKeyDefLayer2("[b‹›]");
  session.element->ReleaseKeyDefLayer1("[c›]");
  Look(session, [&] { EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), ""); });
}

TEST(WizardKeyTypePage, TheCaretStandsBehindTheText) {
  WizardSession session(Oval);
  session.GiveTexts("[ä1‹›]", "");
  Look(session, [&] { EXPECT_EQ(session.Get<TextBox>("txtScanCodes").SelStart(), 2); });
}

TEST(WizardKeyTypePage, LoadingTakesTheStoredPlaceTheOsFamilyTheHelpFileAndTheToolTip) {
  WizardSession session(Oval);
  session.surroundings.Settings().Position(0, "-22.5");
  session.surroundings.Settings().Position(1, " 410 ");
  session.surroundings.Settings().BasePath("C:\\P");
  session.platform.Version().PlatformId(1);
  Module().lngOsFamily = 9;
  Look(session, [&] {
    EXPECT_EQ(session.Top().Top(), -22.5F);
    EXPECT_EQ(session.Top().Left(), 410);
    EXPECT_EQ(Module().lngOsFamily, 0);
    EXPECT_EQ(Module().HelpFile, "C:\\P\\Help\\PlexelEnglish.chm");
    EXPECT_EQ(session.Get<Control>("txtScanCodes").ToolTipText(), Text(10955));
    EXPECT_EQ(session.platform.Events().Rounds(), 1);
  });
}

TEST(WizardKeyTypePage, TheFocusCatcherIsFiveTwipsAtThePlaceOfCancelAndNoTabStop) {
  WizardSession session(Oval);
  Look(session, [&] {
    const auto& catcher = session.Get<CommandButton>("cmdFocusCatcher");
    const auto& cancel = session.Get<CommandButton>("cmdCancel");
    EXPECT_EQ(catcher.Left(), cancel.Left());
    EXPECT_EQ(catcher.Top(), cancel.Top());
    EXPECT_EQ(catcher.Width(), 5);
    EXPECT_EQ(catcher.Height(), 5);
    EXPECT_FALSE(catcher.TabStop());
  });
}

TEST(WizardKeyTypePage, AnOptionClickEmptiesTheElementInOrderAndMakesItHandMade) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.element->TactisBaseElementScanCodeBuffer(FilledRecord(session));
  Module().bDirectInputActive = True;
  Names whenNoticed;
  session.Then([&] {
    session.host.Forget();
    session.host.onEvent = [&](const HostEvent&) {
      std::string empty;
      for (const std::string& text : session.Texts()) empty += text.empty() ? '-' : 'x';
      if (whenNoticed.size() < 8) whenNoticed.push_back(empty);
    };
  });
  session.Click("optKeyType(3)");
  session.Then([&] {
    session.host.onEvent = nullptr;
    EXPECT_EQ(whenNoticed,
              (Names{"-xxxxxxx", "--xxxxxx", "---xxxxx", "----xxxx", "-----xxx", "------xx", "-------x", "--------"}));
    EXPECT_TRUE(BuffersAreZero(session));
    EXPECT_EQ(session.element->WizardOptions(), ManuallyDefined);
    EXPECT_EQ(Module().bDirectInputActive, False);
  });
  session.Click("cmdCancel");
  session.Open();
}

TEST(WizardKeyTypePage, AnOptionClickEnablesTheControlOfTheOptionAlone) {
  struct Row {
    const char* option;
    const char* control;
  };
  for (const Row& row : {Row{"optKeyType(0)", "txtScanCodes"}, Row{"optKeyType(1)", "txtScanCodes"},
                         Row{"optKeyType(2)", "cmdSpecialIPCFunction"}, Row{"optKeyType(3)", "cmbWindowsShortCuts"}}) {
    WizardSession session(Oval);
    session.Grant(Capability::HasSystemReset);
    session.element->WizardOptions(std::string_view(row.option) == "optKeyType(3)" ? NormalKey : WindowsShortCut);
    session.Click(row.option);
    Look(session, [&] {
      for (const char* control : {"txtScanCodes", "cmdSpecialIPCFunction", "cmbWindowsShortCuts"}) {
        EXPECT_EQ(Enabled(session, control), std::string_view(control) == row.control) << row.option << control;
      }
    });
  }
}

TEST(WizardKeyTypePage, AnOptionClickEmptiesTheBoxAndKeepsTheTextsOfTheLists) {
  WizardSession session(Oval);
  session.element->WizardOptions(WindowsShortCut);
  session.GiveTexts("[chosen‹]", "[chosen›]");
  session.Click("optKeyType(1)");
  Look(session, [&] {
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "");
    EXPECT_EQ(session.Get<ComboBox>("cmbWindowsShortCuts").Text(), "chosen");
  });
}

TEST(WizardKeyTypePage, AnOptionClickCountsAsAChange) {
  WizardSession session(Oval);
  session.Click("optKeyType(1)").Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.element->WizardOptions(), TipKey);
}

TEST(WizardKeyTypePage, AnOptionClickDuringCaptureEndsItAndLeavesKeyPreviewOffUntilTheNextCaptureEnds) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").Click("optKeyType(1)");
  session.Then([&] {
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").BackColor(), white);
    EXPECT_FALSE(session.Top().KeyPreview());
    Hand(session.Top()).KeyPress(key::Escape);
    EXPECT_TRUE(session.Top().IsShown());
  });
  session.DblClick("txtScanCodes").DblClick("txtScanCodes");
  Look(session, [&] { EXPECT_TRUE(session.Top().KeyPreview()); });
}

TEST(WizardKeyTypePage, ADoubleClickOnTheDisabledBoxDoesNothing) {
  WizardSession session(Oval);
  session.element->WizardOptions(WindowsShortCut);
  Look(session, [&] {
    EXPECT_THROW(Hand(session.Top()).DblClick(session.Get<Control>("txtScanCodes")), Failure);
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_EQ(Module().bDirectInputActive, False);
  });
}

TEST(WizardKeyTypePage, StartingCaptureColoursAndEmptiesTheBoxAndTakesKeyPreviewAway) {
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

TEST(WizardKeyTypePage, StartingCaptureEmptiesTheCodesAndLeavesTheTexts) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.element->TactisBaseElementScanCodeBuffer(FilledRecord(session));
  const Names texts = session.Texts();
  session.DblClick("txtScanCodes");
  Look(session, [&] {
    EXPECT_TRUE(BuffersAreZero(session));
    EXPECT_EQ(session.Texts(), texts);
    EXPECT_EQ(session.element->WizardOptions(), ManuallyDefined);
  });
}

TEST(WizardKeyTypePage, EndingCaptureGivesWhiteKeyPreviewAndTheFocusOfTheFormBack) {
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

TEST(WizardKeyTypePage, CaptureWithoutAKeyStrokeLeavesTheCodesEmpty) {
  WizardSession session(Oval);
  session.element->TactisBaseElementScanCodeBuffer(FilledRecord(session));
  session.DblClick("txtScanCodes");
  ShiftAndControl(session);
  Look(session, [&] { EXPECT_TRUE(BuffersAreZero(session)); });
}

TEST(WizardKeyTypePage, ReturnInTheIdleBoxStartsCapture) {
  WizardSession session(Oval);
  session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>("txtScanCodes")); }).KeyDown(key::Return);
  Look(session, [&] { EXPECT_NE(Module().lngKeyboardHook, 0); });
}

TEST(WizardKeyTypePage, AnyKeyInTheIdleBoxMakesForwardRewriteTheTexts) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>("txtScanCodes")); }).KeyDown(key::Home);
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.Texts(), (Names{"[a‹›]", "[a‹›]", "[a‹›]", "[a‹›]", "", "", "", ""}));
}

TEST(WizardKeyTypePage, ArrowsInTheIdleBoxAreNotDropped) {
  WizardSession session(Oval);
  Look(session, [&] {
    Hand hand(session.Top());
    hand.Focus(session.Get<Control>("txtScanCodes"));
    EXPECT_EQ(hand.KeyDown(key::Left, 0), key::Left);
  });
}

TEST(WizardKeyTypePage, ArrowsInTheBoxAreDroppedDuringCapture) {
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

TEST(WizardKeyTypePage, ArrowsOnTheFocusCatcherAreDroppedDuringCaptureOnly) {
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

TEST(WizardKeyTypePage, ShiftAndControlEndCaptureInTheBoxAndOnTheFocusCatcher) {
  for (const char* control : {"txtScanCodes", "cmdFocusCatcher"}) {
    WizardSession session(Oval);
    session.DblClick("txtScanCodes");
    session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>(control)); });
    ShiftAndControl(session);
    Look(session, [&] { EXPECT_EQ(Module().lngKeyboardHook, 0) << control; });
  }
}

TEST(WizardKeyTypePage, OnlyControlPressedWithExactlyShiftAndControlEndsCapture) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes");
  session.KeyDown(key::Control, key::ControlBit);
  session.KeyDown(key::Shift, key::ShiftBit | key::ControlBit);
  session.KeyDown(key::Control, key::ShiftBit | key::ControlBit | key::AltBit);
  Look(session, [&] { EXPECT_NE(Module().lngKeyboardHook, 0); });
}

TEST(WizardKeyTypePage, EndingCaptureOnTheFocusCatcherCountsAsAChange) {
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

TEST(WizardKeyTypePage, AHookThatCannotBeInstalledLeavesThePageInItsCaptureLook) {
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

TEST(WizardKeyTypePage, TheListsTakeOnlyDownUpAndReturnAndNoCharacter) {
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

TEST(WizardKeyTypePage, EachEventOfAListCountsAsAChange) {
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

TEST(WizardKeyTypePage, DeleteEmptiesTheDefinitionAndKeepsNotesLedsAndNumbers) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.element->ButtonNotes("note");
  session.element->LEDTypeLayer2(PowerLed);
  session.element->HardwareNumberKey3(12);
  session.element->TactisBaseElementScanCodeBuffer(FilledRecord(session));
  session.Click("cmdDeleteKEY");
  Look(session, [&] {
    EXPECT_EQ(session.Texts(), Names(8, ""));
    EXPECT_TRUE(BuffersAreZero(session));
    EXPECT_EQ(session.element->WizardOptions(), ManuallyDefined);
    EXPECT_EQ(session.element->ButtonNotes(), "note");
    EXPECT_EQ(session.element->LEDTypeLayer2(), PowerLed);
    EXPECT_EQ(session.element->HardwareNumberKey3(), 12);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "");
  });
}

TEST(WizardKeyTypePage, DeleteDuringCaptureTurnsTheBoxWhiteAndLeavesCaptureRunning) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").Click("cmdDeleteKEY");
  Look(session, [&] {
    EXPECT_NE(Module().lngKeyboardHook, 0);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").BackColor(), white);
  });
}

TEST(WizardKeyTypePage, ForwardAfterDeleteLeavesTheEmptiedElementHandMade) {
  WizardSession session(Oval);
  session.element->WizardOptions(WindowsShortCut);
  session.GiveTexts("[a‹]", "[a›]");
  session.Click("cmdDeleteKEY").Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.Texts(), Names(8, ""));
  EXPECT_EQ(session.element->WizardOptions(), ManuallyDefined);
}

}  // namespace plexel
