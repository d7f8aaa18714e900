#include "wizard/wizard_session.h"

namespace plexel {

namespace {

using Names = std::vector<std::string>;
constexpr std::int32_t white = 0xFFFFFF;

/// A session on page 1 that looks and then cancels.
void Look(WizardSession& session, const WizardSession::Act& look) {
  session.Then(look).Click("cmdCancel");
  session.Open();
}

Names Items(WizardSession& session, const char* combo) { return session.Get<ComboBox>(combo).Items(); }

bool Enabled(WizardSession& session, const char* control) { return session.Get<Control>(control).Enabled(); }

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

TEST(WizardKeyTypePage, LoadingDisablesAnEmptyListAndItsOptionThoughTheyWereEnabled) {
  WizardSession session(Oval);
  Look(session, [&] {
    session.Get<Control>("cmdSpecialIPCFunction").Enabled(true);
    session.Get<Control>("optKeyType(2)").Enabled(true);
    session.Top().OnLoad();
    EXPECT_FALSE(Enabled(session, "cmdSpecialIPCFunction"));
    EXPECT_FALSE(Enabled(session, "optKeyType(2)"));
  });
}

TEST(WizardKeyTypePage, LoadingTakesTheKeyForUntouched) {
  WizardSession session(Oval);
  session.Click("optKeyType(3)");
  session.Then([&] {
    session.GiveTexts("[a‹]", "[a›]");
    session.Top().OnLoad();
  });
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "[a‹]");
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
  Look(session,
       [&] { EXPECT_EQ(Items(session, "cmdSpecialIPCFunction"), (Names{Text(2608), Text(2603), Text(2604)})); });
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
  session.element->TactisBaseElementScanCodeBuffer(session.FilledRecord());
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
    auto& catcher = session.Get<CommandButton>("cmdFocusCatcher");
    catcher.Place(1, 2, 3, 4);
    catcher.TabStop(true);
    session.Top().OnLoad();
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
  session.element->TactisBaseElementScanCodeBuffer(session.FilledRecord());
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
    EXPECT_TRUE(session.BuffersAreZero());
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

}  // namespace plexel
