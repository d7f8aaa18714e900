#include "configdialog/dialog_fixture.h"

namespace plexel {

namespace {

using CaptureMode = ConfigurationDialog;

constexpr std::int32_t ControlKey = 0x11, ControlScan = 0x1D, ShiftKey = 0x10, ShiftScan = 0x2A;

// Capture on and off.

TEST_F(CaptureMode, DoubleClickStartsCapture) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 2, 1);
    EXPECT_TRUE(Capturing());
    EXPECT_TRUE(Hooked());
    EXPECT_EQ(Module().lngInputTarget, 0);
    EXPECT_EQ(Module().HelpFile, "");
    EXPECT_EQ(dialog.Focus(), &dialog.cmdFocusCatcher);
    EXPECT_TRUE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 1).backColor, CaptureColour);
    EXPECT_FALSE(dialog.cmdCancel.Cancel());
  });
}

TEST_F(CaptureMode, SecondDoubleClickEndsCapture) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 2, 1);
    hand.DblClick(dialog.msgScanCodes, 2, 1);
    EXPECT_FALSE(Capturing());
    EXPECT_FALSE(Hooked());
    EXPECT_NE(Module().HelpFile, "");
    EXPECT_EQ(dialog.Focus(), &dialog.msgScanCodes);
    EXPECT_FALSE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 1).backColor, White);
    EXPECT_TRUE(dialog.cmdCancel.Cancel());
  });
}

TEST_F(CaptureMode, TheCellThatRecordsShowsTheEndOfItsText) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    EXPECT_FALSE(dialog.msgScanCodes.ShowsEnd());
    hand.DblClick(dialog.msgScanCodes, 2, 1);
    EXPECT_TRUE(dialog.msgScanCodes.ShowsEnd());
    hand.DblClick(dialog.msgScanCodes, 2, 1);
    EXPECT_FALSE(dialog.msgScanCodes.ShowsEnd());
    hand.DblClick(dialog.msgScanCodes, 2, 1);
    hand.Tab(dialog.sstScanCode, 2);
    EXPECT_FALSE(dialog.msgScanCodes.ShowsEnd());
  });
}

TEST_F(CaptureMode, HostHearsCaptureOnAndOff) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    ASSERT_EQ(host.EventNames(), (std::vector<std::string>{"DirectInputStatusChanged", "DirectInputStatusChanged"}));
    EXPECT_EQ(host.Events()[0].arguments, (std::vector<HostEvent::Value>{std::int32_t{-1}}));
    EXPECT_EQ(host.Events()[1].arguments, (std::vector<HostEvent::Value>{std::int32_t{0}}));
  });
}

TEST_F(CaptureMode, FocusIsOnTheFocusCatcherThoughTheHostMovedItWhenItHeardOfCapture) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    host.onEvent = [&](const HostEvent& event) {
      if (event.name == "DirectInputStatusChanged") dialog.cmdOK.SetFocus();
    };
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    host.onEvent = nullptr;
    EXPECT_EQ(dialog.Focus(), &dialog.cmdFocusCatcher);
  });
}

TEST_F(CaptureMode, ReturnOnTheGridStartsCaptureAndItsReleaseStoresNothing) {
  Open([this](frmConfigurationDialog& dialog, Hand&) {
    StrokeReturn();
    EXPECT_TRUE(Capturing());
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    StrokeA();
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Both + "]");
  });
}

TEST_F(CaptureMode, ReturnDuringCaptureIsStoredAsAKey) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    StrokeReturn();
    EXPECT_TRUE(Capturing());
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x5A, 0xF0, 0x5A, 0xFF}));
    EXPECT_NE(dialog.msgScanCodes.Text(), "");
  });
}

TEST_F(CaptureMode, ReturnWithTheFocusOnTheNotesDoesNotStartCapture) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Tab(dialog.sstScanCode, 2);
    hand.Focus(dialog.txtButtonNotes);
    StrokeReturn();
    EXPECT_FALSE(Capturing());
  });
}

TEST_F(CaptureMode, EscapeDuringCaptureIsStoredAndDoesNotCloseTheDialog) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    StrokeEscape();
    EXPECT_TRUE(dialog.IsShown());
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x76, 0xF0, 0x76, 0xFF}));
  });
}

TEST_F(CaptureMode, ShiftAndControlEndCaptureAndStoreNothing) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    Down(ShiftKey, ShiftScan);
    EXPECT_TRUE(Capturing());
    Down(ControlKey, ControlScan);
    EXPECT_FALSE(Capturing());
    Up(ControlKey, ControlScan);
    Up(ShiftKey, ShiftScan);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_EQ(Buffer(1, 1).NextValue, 0);
    EXPECT_TRUE(dialog.cmdCancel.Cancel());
  });
}

TEST_F(CaptureMode, ACaptureStateThatIsNeitherOnNorOffHandlesNoKeyAndTogglesNothing) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([this](frmConfigurationDialog& dialog, Hand&) {
    Module().bDirectInputActive = Boolean::Raw(1);
    dialog.Form_KeyDown(key::Delete, 0);
    dialog.Form_KeyDown(key::Control, key::ShiftBit | key::ControlBit);
    dialog.ToggleKeyCapture();
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Both + "]");
    EXPECT_EQ(Module().bDirectInputActive, Boolean::Raw(1));
    EXPECT_FALSE(Hooked());
  });
}

TEST_F(CaptureMode, DuringCaptureTheEditingKeysEditNothing) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    dialog.Form_KeyDown(key::Delete, 0);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Both + "]");
    dialog.Form_KeyDown(key::F10, key::ShiftBit);
    EXPECT_EQ(dialog.OpenPopup(), nullptr);
  });
}

TEST_F(CaptureMode, ARefusedHookShowsMessage5822AndCaptureStaysOff) {
  platform.faults.Turn(Fault::KeyboardHook, true);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    ASSERT_EQ(platform.Messages().Shown().size(), 1U);
    EXPECT_EQ(platform.Messages().Shown()[0].prompt, Text(5822));
    EXPECT_EQ(platform.Messages().Shown()[0].title, Text(6001));
    EXPECT_EQ(platform.Messages().Shown()[0].style, 16);
    EXPECT_FALSE(Capturing());
    EXPECT_TRUE(dialog.cmdCancel.Cancel());
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).backColor, White);
  });
}

TEST_F(CaptureMode, AHookThatCannotBeRemovedShowsMessage5823AndCaptureStaysOn) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    platform.faults.Turn(Fault::Unhook, true);
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    ASSERT_EQ(platform.Messages().Shown().size(), 1U);
    EXPECT_EQ(platform.Messages().Shown()[0].prompt, Text(5823));
    EXPECT_EQ(platform.Messages().Shown()[0].title, Text(6001));
    EXPECT_TRUE(Capturing());
    EXPECT_FALSE(dialog.cmdCancel.Cancel());
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).backColor, CaptureColour);
  });
}

// Hooks that a failed start or end leaves.

TEST_F(CaptureMode, ALowLevelHookThatAFailedStartLeavesStaysWhileTheDialogIsOpenAndGoesWithIt) {
  for (const char* way : {"cmdOK", "cmdCancel", "the close box"}) {
    SCOPED_TRACE(way);
    surroundings.Settings().Option(9, True);
    platform.faults.Turn(Fault::KeyboardHook, true);
    Open([&](frmConfigurationDialog& dialog, Hand& hand) {
      for (int tries = 0; tries < 3; ++tries) hand.DblClick(dialog.msgScanCodes, 1, 1);
      platform.faults.Turn(Fault::KeyboardHook, false);
      hand.DblClick(dialog.msgScanCodes, 1, 1);
      EXPECT_TRUE(Hooked());
      hand.DblClick(dialog.msgScanCodes, 1, 1);
      EXPECT_FALSE(Hooked());
      EXPECT_TRUE(platform.Hooks().Installed(HookKind::LowLevelKeyboard));
      if (Control* button = dialog.Find(way)) hand.Click(*button);
    });
    EXPECT_FALSE(platform.Hooks().Installed(HookKind::LowLevelKeyboard));
    EXPECT_EQ(Module().lngLowLevelHook, 0);
  }
}

TEST_F(CaptureMode, HooksThatCannotBeRemovedWhileTheDialogIsOpenGoWithIt) {
  surroundings.Settings().Option(9, True);
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    platform.faults.Turn(Fault::Unhook, true);
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    platform.faults.Turn(Fault::Unhook, false);
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    EXPECT_EQ(platform.Messages().Shown().size(), 2U);
    EXPECT_TRUE(Hooked());
  });
  EXPECT_FALSE(Hooked());
  EXPECT_FALSE(platform.Hooks().Installed(HookKind::LowLevelKeyboard));
}

TEST_F(CaptureMode, HooksThatOutliveTheDialogGoWithTheNextOneBeforeItIsShown) {
  surroundings.Settings().Option(9, True);
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    platform.faults.Turn(Fault::Unhook, true);
  });
  EXPECT_TRUE(Hooked());
  EXPECT_TRUE(platform.Hooks().Installed(HookKind::LowLevelKeyboard));
  platform.faults.Turn(Fault::Unhook, false);
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    EXPECT_FALSE(Hooked());
    EXPECT_FALSE(platform.Hooks().Installed(HookKind::LowLevelKeyboard));
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    EXPECT_TRUE(Hooked());
  });
  EXPECT_FALSE(Hooked());
}

TEST_F(CaptureMode, AFailingMessageBoxIsNotSeen) {
  platform.faults.Turn(Fault::KeyboardHook, true);
  platform.faults.Turn(Fault::Messages, true);
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    EXPECT_FALSE(Capturing());
    EXPECT_TRUE(dialog.IsShown());
  });
}

TEST_F(CaptureMode, EndingCaptureSilentlyClearsTheStateEvenWhenTheHookStays) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    platform.faults.Turn(Fault::Unhook, true);
    dialog.EndKeyCapture();
    EXPECT_FALSE(Capturing());
    EXPECT_TRUE(platform.Messages().Shown().empty());
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).backColor, White);
  });
}

TEST_F(CaptureMode, EndingCaptureSilentlyHandlesWaitingEventsOnce) {
  Open([this](frmConfigurationDialog& dialog, Hand&) {
    const auto before = platform.Events().Rounds();
    dialog.EndKeyCapture();
    EXPECT_EQ(platform.Events().Rounds(), before + 1);
  });
}

TEST_F(CaptureMode, RestoringTheDefinitionEndsCaptureAheadOfTheElement) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    element->PressKeyDefLayer1("[new]");
    std::string text = "not ended";
    host.onEvent = [&](const HostEvent& event) {
      if (event.name == "DirectInputStatusChanged") text = element->PressKeyDefLayer1();
    };
    dialog.RestoreDefinition();
    host.onEvent = nullptr;
    EXPECT_EQ(text, "[new]");
    EXPECT_EQ(element->PressKeyDefLayer1(), "");
  });
}

TEST_F(CaptureMode, TabClickEndsCaptureAndTakesTheColourAway) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.Tab(dialog.sstScanCode, 1);
    EXPECT_FALSE(Capturing());
    EXPECT_FALSE(Hooked());
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).backColor, White);
    EXPECT_EQ(dialog.sstScanCode.Tab(), 1);
  });
}

TEST_F(CaptureMode, DoubleClickOnTheTabStripEndsCaptureByItself) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    dialog.sstScanCode.OnClick = nullptr;
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.DblClickTab(dialog.sstScanCode, 0);
    EXPECT_FALSE(Capturing());
    EXPECT_FALSE(Hooked());
  });
}

TEST_F(CaptureMode, AfterATabClickThatEndedCaptureEscapeDoesNothingUntilCaptureWasToggledOnceMore) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.Tab(dialog.sstScanCode, 1);
    StrokeEscape();
    EXPECT_TRUE(dialog.IsShown());
    hand.Tab(dialog.sstScanCode, 0);
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    EXPECT_TRUE(dialog.IsShown());
    StrokeEscape();
    EXPECT_FALSE(dialog.IsShown());
  });
}

TEST_F(CaptureMode, FocusCatcherIsPutOnTheCornerOfTheGridOutOfTheTabOrder) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    dialog.cmdFocusCatcher.Place(1, 1, 15, 15);
    dialog.cmdFocusCatcher.TabStop(true);
    dialog.OnLoad();
    EXPECT_EQ(dialog.cmdFocusCatcher.Left(), dialog.msgScanCodes.Left());
    EXPECT_EQ(dialog.cmdFocusCatcher.Top(), dialog.msgScanCodes.Top());
    EXPECT_FALSE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_TRUE(dialog.cmdFocusCatcher.CanTakeFocus());
  });
}

}  // namespace

}  // namespace plexel
