#include <algorithm>

#include "configdialog/dialog_fixture.h"
#include "element/element_access.h"

namespace plexel {

namespace {

using ConfigurationDialogClosing = ConfigurationDialog;

// OK.

TEST_F(ConfigurationDialogClosing, OkOfALedElementEmptiesAllEightDefinitions) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    element->PressKeyDefLayer(layer, "[a" + Both + "]");
    element->ReleaseKeyDefLayer(layer, "[b" + Both + "]");
  }
  OpenFor(Led, [](frmConfigurationDialog& dialog, Hand& hand) { hand.Click(dialog.cmdOK); });
  EXPECT_TRUE(ElementAccess::IsDefinitionEmpty(*element));
}

TEST_F(ConfigurationDialogClosing, OkWithoutAChangeMakesTheElementManuallyDefinedAndRaisesProjectModified) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) { hand.Click(dialog.cmdOK); });
  EXPECT_EQ(element->WizardOptions(), ManuallyDefined);
  EXPECT_EQ(host.EventNames(), (std::vector<std::string>{"ProjectModified", "SendKeyDefinition"}));
}

TEST_F(ConfigurationDialogClosing, OkStoresNoteLedFunctionsAndTexts) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    dialog.txtButtonNotes.Text("note");
    dialog.cmbLEDTypes[2].Text(Text(10403));
    dialog.msgScanCodes.Current(4, 2);
    dialog.msgScanCodes.Text("[b" + Both + "]");
    hand.Click(dialog.cmdOK);
  });
  EXPECT_EQ(element->ButtonNotes(), "note");
  EXPECT_EQ(element->LEDTypeLayer3(), PowerLed);
  EXPECT_EQ(element->ReleaseKeyDefLayer4(), "[b" + Both + "]");
}

TEST_F(ConfigurationDialogClosing, OkRaisesProjectModifiedBehindWizardOptionsAndAheadOfClosing) {
  bool shownThen = false;
  enumWizardOptions optionsThen = NormalKey;
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    host.onEvent = [&](const HostEvent& event) {
      if (event.name != "ProjectModified") return;
      shownThen = dialog.IsShown();
      optionsThen = element->WizardOptions();
    };
    hand.Click(dialog.cmdOK);
    host.onEvent = nullptr;
  });
  EXPECT_TRUE(shownThen);
  EXPECT_EQ(optionsThen, ManuallyDefined);
}

TEST_F(ConfigurationDialogClosing, OkShowsTheTickOfADefinedElement) {
  element->ShowDefined(True);
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    dialog.msgScanCodes.Text("[a" + Both + "]");
    EXPECT_FALSE(element->SurfaceObjects().linOK1.Visible);
    hand.Click(dialog.cmdOK);
  });
  EXPECT_TRUE(element->SurfaceObjects().linOK1.Visible);
}

TEST_F(ConfigurationDialogClosing, OkDuringCaptureEndsItAheadOfStoring) {
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    EXPECT_TRUE(Hooked());
    hand.Click(dialog.cmdOK);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_FALSE(Hooked());
  EXPECT_FALSE(Capturing());
  EXPECT_EQ(host.EventNames(), (std::vector<std::string>{"DirectInputStatusChanged", "DirectInputStatusChanged",
                                                         "ProjectModified", "SendKeyDefinition"}));
}

TEST_F(ConfigurationDialogClosing, AFailingProjectModifiedHandlerKeepsWhatOkStoredAndTheDialogOpen) {
  platform.faults.Turn(Fault::HandlerProjectModified, true);
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    dialog.txtButtonNotes.Text("note");
    hand.Click(dialog.cmdOK);
    EXPECT_TRUE(dialog.IsShown());
    EXPECT_EQ(element->ButtonNotes(), "note");
    EXPECT_EQ(element->WizardOptions(), ManuallyDefined);
  });
}

// Cancel and the close box.

TEST_F(ConfigurationDialogClosing, CancelGivesTheBuffersBackAndRaisesNoProjectModified) {
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF}));
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    Buffer(1, 1, Codes({0xFF, 0x32, 0xFF}));
    Buffer(3, 2, Codes({0xFF, 0x21, 0xFF}));
    hand.Click(dialog.cmdCancel);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x1C, 0xFF}));
  EXPECT_EQ(Buffer(3, 2).NextValue, 0);
  EXPECT_EQ(host.Count("ProjectModified"), 0);
}

TEST_F(ConfigurationDialogClosing, CancelKeepsTheWizardOptions) {
  element->WizardOptions(TipKey);
  Open([](frmConfigurationDialog& dialog, Hand& hand) { hand.Click(dialog.cmdCancel); });
  EXPECT_EQ(element->WizardOptions(), TipKey);
}

TEST_F(ConfigurationDialogClosing, EscapeCancels) {
  Open([this](frmConfigurationDialog& dialog, Hand&) {
    StrokeEscape();
    EXPECT_FALSE(dialog.IsShown());
  });
}

TEST_F(ConfigurationDialogClosing, ReturnOnTheNotesPageClosesNothing) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Tab(dialog.sstScanCode, 2);
    hand.Focus(dialog.txtButtonNotes);
    StrokeReturn();
    EXPECT_TRUE(dialog.IsShown());
  });
}

TEST_F(ConfigurationDialogClosing, CloseBoxDuringCaptureEndsItFirstAndThenRestoresTheRecord) {
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF}));
  element->ButtonNotes("old");
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    StrokeA();
    element->ButtonNotes("new");
    host.Forget();
    hand.Close();
  });
  EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x1C, 0xFF}));
  EXPECT_EQ(element->ButtonNotes(), "old");
  const auto& heard = host.Heard();
  const auto named = [](const char* name) { return [name](const HostEvent& event) { return event.name == name; }; };
  const auto ended = std::find_if(heard.begin(), heard.end(), named("DirectInputStatusChanged"));
  const auto restored = std::find_if(heard.begin(), heard.end(), named("PropertyChanged"));
  EXPECT_LT(ended, restored);
  EXPECT_NE(restored, heard.end());
}

TEST_F(ConfigurationDialogClosing, UnloadingByCodeDuringCaptureEndsItWhileTheDialogIsShown) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    bool shownThen = false;
    host.onEvent = [&](const HostEvent& event) {
      if (event.name == "DirectInputStatusChanged") shownThen = dialog.IsShown();
    };
    dialog.Unload();
    host.onEvent = nullptr;
    EXPECT_TRUE(shownThen);
  });
}

TEST_F(ConfigurationDialogClosing, UnloadingByCodeRestoresNothing) {
  Open([this](frmConfigurationDialog& dialog, Hand&) {
    Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF}));
    dialog.Unload();
  });
  EXPECT_EQ(Buffer(1, 1).NextValue, 2);
}

TEST_F(ConfigurationDialogClosing, RestoringAlsoBringsTheDefinedMarkUpToDate) {
  element->ShowDefined(True);
  Open([this](frmConfigurationDialog& dialog, Hand&) {
    Module().udtSavedScanCodeInfo.strLayer1PressString = "[a" + Both + "]";
    dialog.RestoreDefinition();
    EXPECT_TRUE(element->SurfaceObjects().linOK1.Visible);
  });
}

// Saved positions.

TEST_F(ConfigurationDialogClosing, CancelWritesTheFivePositionsInTheirOrder) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Move(22.5F, 1530);
    hand.ResizeColumn(dialog.msgScanCodes, 0, 600);
    hand.ResizeColumn(dialog.msgScanCodes, 1, 2001);
    hand.ResizeColumn(dialog.msgScanCodes, 2, 3002);
    hand.Click(dialog.cmdCancel);
  });
  EXPECT_EQ(platform.UserRegistry().Stored(), (MemoryRegistry::Values{{"ConfigDialogMsFlexGridRow0Width", "600"},
                                                                      {"ConfigDialogMsFlexGridRow1Width", "2001"},
                                                                      {"ConfigDialogMsFlexGridRow2Width", "3002"},
                                                                      {"ConfigDialogTop", "1530"},
                                                                      {"ConfigDialogLeft", "22.5"}}));
  EXPECT_EQ(platform.UserRegistry().OpenKeys(), 0);
}

TEST_F(ConfigurationDialogClosing, OkAndTheCloseBoxWriteThePositionsToo) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Move(1, 2);
    hand.Click(dialog.cmdOK);
  });
  EXPECT_EQ(*platform.UserRegistry().Find("ConfigDialogLeft"), "1");
  Open([](frmConfigurationDialog&, Hand& hand) {
    hand.Move(3, 4);
    hand.Close();
  });
  EXPECT_EQ(*platform.UserRegistry().Find("ConfigDialogLeft"), "3");
}

TEST_F(ConfigurationDialogClosing, AFailingRegistryKeepsNoPositionsAndTheDialogCloses) {
  platform.faults.Turn(Fault::Registry, true);
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.cmdCancel);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_TRUE(platform.UserRegistry().Stored().empty());
}

TEST_F(ConfigurationDialogClosing, AFailingEventPumpDoesNotKeepTheDialogOpen) {
  platform.faults.Turn(Fault::Events, true);
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.cmdCancel);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_FALSE(platform.UserRegistry().Stored().empty());
}

}  // namespace

}  // namespace plexel
