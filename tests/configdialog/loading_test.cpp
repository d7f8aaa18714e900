#include "configdialog/dialog_fixture.h"

namespace plexel {

namespace {

using ConfigurationDialogLoading = ConfigurationDialog;

// Loading.

struct TypeCase {
  enumTactisBaseElementType type;
  std::string caption;
  bool page0, page1;
  int front;
};

class ConfigurationDialogOfType : public ConfigurationDialog, public ::testing::WithParamInterface<TypeCase> {};

TEST_P(ConfigurationDialogOfType, ShowsItsPages) {
  const TypeCase expected = GetParam();
  OpenFor(expected.type, [&](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.Caption(), expected.caption);
    EXPECT_EQ(dialog.sstScanCode.TabEnabled(0), expected.page0);
    EXPECT_EQ(dialog.sstScanCode.TabEnabled(1), expected.page1);
    EXPECT_TRUE(dialog.sstScanCode.TabEnabled(2));
    EXPECT_EQ(dialog.sstScanCode.Tab(), expected.front);
  });
}

INSTANTIATE_TEST_SUITE_P(Kinds, ConfigurationDialogOfType,
                         ::testing::Values(TypeCase{Led, Text(2006), false, true, 1},
                                           TypeCase{Oval, Text(2005), true, false, 0},
                                           TypeCase{OvalLed, Text(2005), true, true, 0},
                                           TypeCase{Rect, Text(2005), true, false, 0},
                                           TypeCase{RectLed, Text(2005), true, true, 0},
                                           TypeCase{enumTactisBaseElementType{}, "", true, true, 0},
                                           TypeCase{static_cast<enumTactisBaseElementType>(7), "", true, true, 0}));

TEST_P(ConfigurationDialogOfType, BringsTheFrontPageToTheFrontOnceMore) {
  const TypeCase expected = GetParam();
  OpenFor(expected.type, [&](frmConfigurationDialog& dialog, Hand&) {
    dialog.sstScanCode.Tab(2);
    dialog.OnLoad();
    const bool known = !expected.caption.empty();
    EXPECT_EQ(dialog.sstScanCode.Tab(), known ? expected.front : 2);
  });
}

TEST_F(ConfigurationDialogLoading, KeyElementLeavesCaptionPagesAndContentsAsDesigned) {
  element->ElementType(Key);
  element->PressKeyDefLayer1("[a" + Both + "]");
  element->LEDTypeLayer1(PowerLed);
  Module().ctlCurrentElement = element;
  ShowDirectly([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.Caption(), "");
    EXPECT_TRUE(dialog.sstScanCode.TabEnabled(0));
    EXPECT_TRUE(dialog.sstScanCode.TabEnabled(1));
    EXPECT_EQ(dialog.sstScanCode.Tab(), 0);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).text, "");
    EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), "");
  });
}

TEST_F(ConfigurationDialogLoading, OkOnAKeyElementStoresTheNoteOnly) {
  element->ElementType(Key);
  element->PressKeyDefLayer1("[a" + Both + "]");
  element->LEDTypeLayer1(PowerLed);
  Module().ctlCurrentElement = element;
  ShowDirectly([](frmConfigurationDialog& dialog, Hand& hand) {
    dialog.txtButtonNotes.Text("note");
    hand.Click(dialog.cmdOK);
  });
  EXPECT_EQ(element->ButtonNotes(), "note");
  EXPECT_EQ(element->PressKeyDefLayer1(), "[a" + Both + "]");
  EXPECT_EQ(element->LEDTypeLayer1(), PowerLed);
}

TEST_F(ConfigurationDialogLoading, PureLedElementIgnoresTheGridTextsOfTheElement) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  OpenFor(Led, [](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).text, ""); });
}

TEST_F(ConfigurationDialogLoading, ElementWithoutALedIgnoresTheLedFunctionsOfTheElement) {
  element->LEDTypeLayer1(PowerLed);
  OpenFor(Oval, [](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), ""); });
}

TEST_F(ConfigurationDialogLoading, HelpFileIsThatOfTheLanguage) {
  surroundings.Settings().BasePath("C:\\Editor");
  surroundings.Settings().LanguageName("German");
  Open([](frmConfigurationDialog&, Hand&) { EXPECT_EQ(Module().HelpFile, "C:\\Editor\\Help\\PlexelGerman.chm"); });
}

TEST_F(ConfigurationDialogLoading, StatusTextOfTheFamilyThatIsNotZeroIs2017) {
  platform.Version().PlatformId(2);
  Open([](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.stbStatusBar.SimpleText(), Text(2017)); });
}

TEST_F(ConfigurationDialogLoading, StatusTextOfFamilyZeroIs2018) {
  platform.Version().PlatformId(1);
  Open([](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.stbStatusBar.SimpleText(), Text(2018)); });
}

TEST_F(ConfigurationDialogLoading, CaptionMarkersBecomeLanguageTexts) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.cmdOK.Caption(), Text(153));
    EXPECT_EQ(dialog.optCodeType[2].Caption(), Text(2702));
    EXPECT_EQ(dialog.sstScanCode.TabCaption(1), Text(2014));
    EXPECT_EQ(dialog.MNU_POPUP_NONSTANDARDCODE.Caption(), Text(10814));
    EXPECT_EQ(dialog.Label2.Caption(), "Layer 1:");
    EXPECT_EQ(dialog.MNU_DUMMY.Caption(), "-");
  });
}

TEST_F(ConfigurationDialogLoading, GridHasTheToolTip10956) {
  Open([](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.msgScanCodes.ToolTipText(), Text(10956)); });
}

TEST_F(ConfigurationDialogLoading, FirstDataCellIsCurrentAfterLoading) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.msgScanCodes.Row(), 1);
    EXPECT_EQ(dialog.msgScanCodes.Col(), 1);
  });
}

TEST_F(ConfigurationDialogLoading, FirstFocusOfAKeyElementIsTheGrid) {
  OpenFor(Rect, [](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.Focus(), &dialog.msgScanCodes); });
}

TEST_F(ConfigurationDialogLoading, FirstFocusOfALedElementIsTheFirstListBox) {
  OpenFor(Led, [](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.Focus(), &dialog.cmbLEDTypes[0]); });
}

TEST_F(ConfigurationDialogLoading, OpensAtItsRememberedPlace) {
  surroundings.Settings().Position(0, "1530");
  surroundings.Settings().Position(1, "22.5");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.Top(), 1530.0F);
    EXPECT_EQ(dialog.Left(), 22.5F);
    EXPECT_EQ(dialog.Width(), 9345.0F);
    EXPECT_EQ(dialog.Height(), 3750.0F);
  });
}

TEST_F(ConfigurationDialogLoading, LoadingThePositionAloneMakesItAsWideAsDesignedAnd3810High) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    dialog.Width(5000);
    dialog.LoadDialogPosition();
    EXPECT_EQ(dialog.Width(), 9345.0F);
    EXPECT_EQ(dialog.Height(), 3810.0F);
  });
}

TEST_F(ConfigurationDialogLoading, ATopThatIsNoNumberLeavesTopAndLeftAndLoadingGoesOn) {
  surroundings.Settings().Position(0, "nowhere");
  surroundings.Settings().Position(1, "300");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.Left(), 0.0F);
    EXPECT_EQ(dialog.Caption(), Text(2005));
  });
}

TEST_F(ConfigurationDialogLoading, AFailingSettingsServiceEndsTheLoadingAtItsFirstStep) {
  platform.faults.Turn(Fault::Settings, true);
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.stbStatusBar.SimpleText(), "");
    EXPECT_EQ(dialog.cmdOK.Caption(), "@153");
    EXPECT_EQ(dialog.CancelButton(), nullptr);
  });
}

TEST_F(ConfigurationDialogLoading, AFailingLanguageServiceEndsTheLoadingAtTheStatusText) {
  platform.faults.Turn(Fault::Language, true);
  Module().HelpFile = "before";
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_NE(Module().HelpFile, "before");
    EXPECT_EQ(Module().lngOsFamily, 1);
    EXPECT_EQ(dialog.Height(), 3750.0F);
    EXPECT_EQ(dialog.cmdOK.Caption(), "@153");
  });
}

TEST_F(ConfigurationDialogLoading, WithoutACurrentElementTheLoadingEndsAtTheNote) {
  Module().ctlCurrentElement = nullptr;
  ShowDirectly([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.cmdOK.Caption(), Text(153));
    EXPECT_EQ(dialog.msgScanCodes.ToolTipText(), Text(10956));
    EXPECT_EQ(dialog.Caption(), "");
    EXPECT_EQ(dialog.Height(), 3810.0F);
    EXPECT_EQ(dialog.CancelButton(), nullptr);
    EXPECT_EQ(dialog.StatusBar1.SimpleText(), "");
  });
}

TEST_F(ConfigurationDialogLoading, WithoutACurrentElementOkLeavesTheDialogOpen) {
  Module().ctlCurrentElement = nullptr;
  ShowDirectly([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.cmdOK);
    EXPECT_TRUE(dialog.IsShown());
  });
}

TEST_F(ConfigurationDialogLoading, WithoutACurrentElementCancelClosesTheDialog) {
  Module().ctlCurrentElement = nullptr;
  ShowDirectly([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.cmdCancel);
    EXPECT_FALSE(dialog.IsShown());
  });
}

// The note.

TEST_F(ConfigurationDialogLoading, NoteAndCharactersLeftShowAfterLoading) {
  element->ButtonNotes("abc");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.txtButtonNotes.Text(), "abc");
    EXPECT_EQ(dialog.StatusBar1.SimpleText(), Text(2109) + "997");
  });
}

TEST_F(ConfigurationDialogLoading, ANoteOfExactly1000CharactersLeavesZero) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    dialog.txtButtonNotes.Text(std::string(1000, 'x'));
    EXPECT_EQ(dialog.StatusBar1.SimpleText(), Text(21090));
  });
}

TEST_F(ConfigurationDialogLoading, CharactersLeftCountCharactersAndNotBytes) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    dialog.txtButtonNotes.Text("äöü");
    EXPECT_EQ(dialog.StatusBar1.SimpleText(), Text(2109) + "997");
  });
}

TEST_F(ConfigurationDialogLoading, ANoteChangedAheadOfThePrefixStaysQuiet) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    dialog.StatusBar1.SimpleText("untouched");
    dialog.strNotesCounterPrefix.clear();
    dialog.txtButtonNotes.Text("new");
    EXPECT_EQ(dialog.StatusBar1.SimpleText(), "untouched");
  });
}

TEST_F(ConfigurationDialogLoading, WithoutAPrefixTextTheNumberAloneShowsAndChangesStayQuiet) {
  surroundings.Language().Set(2109, "");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.StatusBar1.SimpleText(), "1000");
    dialog.txtButtonNotes.Text("new");
    EXPECT_EQ(dialog.StatusBar1.SimpleText(), "1000");
  });
}

// Help.

TEST_F(ConfigurationDialogLoading, HelpOpensTopic2000) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) { hand.Click(dialog.cmdHelp); });
  ASSERT_EQ(platform.Help().Shown().size(), 1U);
  EXPECT_EQ(platform.Help().Shown()[0].topic, 2000);
}

TEST_F(ConfigurationDialogLoading, AFailingHelpViewerIsNotSeen) {
  platform.faults.Turn(Fault::Help, true);
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.cmdHelp);
    EXPECT_TRUE(dialog.IsShown());
  });
}

}  // namespace

}  // namespace plexel
