#include "scancodes/capture.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "scancodes/input_focus.h"
#include "scancodes/key_table.h"
#include "scancodes/scancode_session.h"
#include "services/shared_services.h"

namespace plexel {
namespace {

using Names = std::vector<std::string>;

bool Hooked(ScanCodeSession& session, HookKind kind) { return session.platform.Hooks().Installed(kind); }

TEST(Capture, StartingInstallsTheKeyboardHookAndReportsItsHandle) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    const std::int32_t result = SetDirectInput(True, 0);
    EXPECT_NE(result, 0);
    EXPECT_EQ(Module().lngKeyboardHook, result);
    EXPECT_TRUE(Hooked(session, HookKind::Keyboard));
    EXPECT_FALSE(Hooked(session, HookKind::LowLevelKeyboard));
    EXPECT_EQ(Module().lngLowLevelHook, 0);
  });
}

TEST(Capture, StartingPutsTheFocusOnTheCatcherAndTakesTheHelpFileAway) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    Module().HelpFile = "help";
    dialog.msgScanCodes.SetFocus();
    SetDirectInput(True, 0);
    EXPECT_TRUE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_TRUE(dialog.cmdFocusCatcher.HasFocus());
    EXPECT_EQ(Module().HelpFile, "");
    EXPECT_EQ(Module().lngInputTarget, 0);
    EXPECT_EQ(Module().lngPressedKeys[0], (ModuleState::KeySlot{0, 1, 0, 0}));
  });
}

TEST(Capture, StartingForTheWizardUsesItsCatcher) {
  ScanCodeSession session;
  session.InWizard([&](StandInWizardPage& page) {
    EXPECT_NE(SetDirectInput(True, 2), 0);
    EXPECT_TRUE(page.cmdFocusCatcher.TabStop());
    EXPECT_TRUE(page.cmdFocusCatcher.HasFocus());
    EXPECT_EQ(Module().lngInputTarget, 2);
  });
}

TEST(Capture, AHandlerThatThrowsAnythingAtTheStartLeavesCaptureOff) {
  ScanCodeSession session;
  session.surroundings.Settings().Option(9, True);
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    session.host.onEvent = [](const HostEvent& event) {
      if (event.arguments[0] == HostEvent::Value(-1)) throw 7;
    };
    EXPECT_THROW(SetDirectInput(True, 0), int);
    EXPECT_FALSE(Hooked(session, HookKind::Keyboard));
    EXPECT_FALSE(Hooked(session, HookKind::LowLevelKeyboard));
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_EQ(Module().lngLowLevelHook, 0);
    EXPECT_EQ(Module().HelpFile, HelpFileName());
    session.host.onEvent = nullptr;
    EXPECT_NE(SetDirectInput(True, 0), 0);
  });
  const std::vector<HostEvent> expected = {{"Key1", "DirectInputStatusChanged", {-1}},
                                           {"Key1", "DirectInputStatusChanged", {0}},
                                           {"Key1", "DirectInputStatusChanged", {-1}}};
  EXPECT_EQ(session.host.Events(), expected);
}

TEST(Capture, AHookThatThrowsAnythingTakesTheOtherOneAlong) {
  ScanCodeSession session;
  session.surroundings.Settings().Option(9, True);
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    session.platform.faults.Thrown([] { throw 7; });
    session.platform.faults.Arm(Fault::KeyboardHook, 1);
    EXPECT_THROW(SetDirectInput(True, 0), int);
    EXPECT_FALSE(Hooked(session, HookKind::LowLevelKeyboard));
    ASSERT_NE(SetDirectInput(True, 0), 0);
    session.platform.faults.Arm(Fault::Unhook, 1);
    EXPECT_THROW(SetDirectInput(False, 0), int);
    EXPECT_FALSE(Hooked(session, HookKind::Keyboard));
    EXPECT_FALSE(Hooked(session, HookKind::LowLevelKeyboard));
  });
}

TEST(Capture, TheElementHearsOfStartAndStop) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    SetDirectInput(True, 0);
    SetDirectInput(False, 0);
  });
  const std::vector<HostEvent> expected = {{"Key1", "DirectInputStatusChanged", {-1}},
                                           {"Key1", "DirectInputStatusChanged", {0}}};
  EXPECT_EQ(session.host.Events(), expected);
}

TEST(Capture, RequestsThatChangeNothingRaiseNothingAndReportZero) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    EXPECT_EQ(SetDirectInput(False, 0), 0);
    SetDirectInput(True, 0);
    session.host.Forget();
    EXPECT_EQ(SetDirectInput(True, 0), 0);
    EXPECT_TRUE(session.host.Events().empty());
  });
}

TEST(Capture, ABooleanThatIsNeitherTrueNorFalseDoesNothing) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    EXPECT_EQ(SetDirectInput(Boolean::Raw(1), 0), 0);
    EXPECT_FALSE(Hooked(session, HookKind::Keyboard));
    SetDirectInput(True, 0);
    EXPECT_EQ(SetDirectInput(Boolean::Raw(1), 0), 0);
    EXPECT_TRUE(Hooked(session, HookKind::Keyboard));
  });
}

TEST(Capture, TheOptionAddsTheLowLevelHook) {
  ScanCodeSession session;
  session.surroundings.Settings().Option(9, True);
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    SetDirectInput(True, 0);
    EXPECT_TRUE(Hooked(session, HookKind::LowLevelKeyboard));
    EXPECT_NE(Module().lngLowLevelHook, 0);
    EXPECT_NE(SetDirectInput(False, 0), 0);
    EXPECT_FALSE(Hooked(session, HookKind::LowLevelKeyboard));
    EXPECT_FALSE(Hooked(session, HookKind::Keyboard));
    EXPECT_EQ(Module().lngLowLevelHook, 0);
    EXPECT_EQ(Module().lngKeyboardHook, 0);
  });
}

TEST(Capture, StoppingRemovesTheOneHookThatIsInstalled) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    SetDirectInput(True, 0);
    session.platform.faults.Arm(Fault::Unhook, 2);
    EXPECT_NE(SetDirectInput(False, 0), 0);
  });
}

TEST(Capture, StoppingGivesTheGridTheFocusAndTheHelpFileBack) {
  ScanCodeSession session;
  session.surroundings.Settings().BasePath("C:");
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    SetDirectInput(True, 0);
    SetDirectInput(False, 0);
    EXPECT_FALSE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_TRUE(dialog.msgScanCodes.HasFocus());
    EXPECT_EQ(Module().HelpFile, "C:\\Help\\PlexelEnglish.chm");
  });
}

TEST(Capture, StoppingForTheWizardGivesTheFocusToThePage) {
  ScanCodeSession session;
  session.InWizard([&](StandInWizardPage& page) {
    SetDirectInput(True, 2);
    SetDirectInput(False, 2);
    EXPECT_FALSE(page.cmdFocusCatcher.TabStop());
    EXPECT_EQ(page.Focus(), nullptr);
  });
}

TEST(Capture, TheArgumentAndNotTheStoredTargetDecidesOnStopping) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    SetDirectInput(True, 0);
    SetDirectInput(False, 7);
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_TRUE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_EQ(Module().lngInputTarget, 0);
  });
}

TEST(Capture, StoppingEmptiesTheTableButKeepsTheExtendedFlags) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    SetDirectInput(True, 0);
    for (auto& slot : Module().lngPressedKeys) slot = {1, 1, 1, 1};
    Module().lngPressedKeyCount = 4;
    SetDirectInput(False, 0);
    for (const auto& slot : Module().lngPressedKeys) EXPECT_EQ(slot, (ModuleState::KeySlot{0, 0, 0, 1}));
    EXPECT_EQ(Module().lngPressedKeyCount, 0);
  });
}

TEST(Capture, AHookThatCannotBeInstalledLeavesCaptureOffThoughTheLowLevelOneIsIn) {
  ScanCodeSession session;
  session.surroundings.Settings().Option(9, True);
  session.platform.faults.Turn(Fault::KeyboardHook, true);
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    Module().HelpFile = "help";
    EXPECT_EQ(SetDirectInput(True, 0), 0);
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_NE(Module().lngLowLevelHook, 0);
    EXPECT_EQ(Module().installedHooks, std::vector<std::int32_t>{Module().lngLowLevelHook});
    EXPECT_EQ(Module().HelpFile, "help");
    EXPECT_FALSE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_TRUE(session.host.Events().empty());
  });
}

TEST(Capture, AHookThatCannotBeRemovedIsForgottenAndReportsZero) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    SetDirectInput(True, 0);
    session.host.Forget();
    session.platform.faults.Turn(Fault::Unhook, true);
    EXPECT_EQ(SetDirectInput(False, 0), 0);
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_TRUE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_EQ(Module().lngPressedKeys[0][key_field::Down], 1);
    EXPECT_TRUE(session.host.Events().empty());
  });
}

TEST(Capture, AFailingSettingEndsTheStartAheadOfAnyHook) {
  ScanCodeSession session;
  session.platform.faults.Turn(Fault::Settings, true);
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    EXPECT_EQ(SetDirectInput(True, 0), 0);
    EXPECT_FALSE(Hooked(session, HookKind::Keyboard));
  });
}

TEST(Capture, AFailureBehindTheHookKeepsItsResult) {
  ScanCodeSession session;
  EXPECT_NE(SetDirectInput(True, 0), 0);  // there is no dialog
  EXPECT_NE(Module().lngKeyboardHook, 0);
  EXPECT_EQ(Module().lngPressedKeys[0][key_field::Down], 0);
  EXPECT_TRUE(session.host.Events().empty());
  EXPECT_NE(SetDirectInput(False, 0), 0);
  EXPECT_EQ(Module().lngKeyboardHook, 0);
}

TEST(Capture, AFailingHandlerOfTheHostEndsTheStartAheadOfTheTarget) {
  ScanCodeSession session;
  session.platform.faults.Turn(Fault::HandlerDirectInputStatusChanged, true);
  session.InWizard([&](StandInWizardPage& page) {
    EXPECT_NE(SetDirectInput(True, 2), 0);
    EXPECT_TRUE(page.cmdFocusCatcher.HasFocus());
    EXPECT_EQ(Module().lngInputTarget, 0);
  });
}

TEST(Capture, AGridThatCannotTakeTheFocusLeavesTheTable) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    SetDirectInput(True, 0);
    dialog.msgScanCodes.Enabled(false);
    EXPECT_NE(SetDirectInput(False, 0), 0);
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_EQ(Module().lngPressedKeys[0][key_field::Down], 1);
  });
}

TEST(Capture, ParkingBringsTheFocusBackToTheCatcherOfTheTarget) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    dialog.msgScanCodes.SetFocus();
    ParkInputFocus();
    EXPECT_TRUE(dialog.cmdFocusCatcher.HasFocus());
    EXPECT_TRUE(dialog.cmdFocusCatcher.TabStop());
  });
  Module().lngInputTarget = 2;
  session.InWizard([&](StandInWizardPage& page) {
    page.txtScanCodes.SetFocus();
    ParkInputFocus();
    EXPECT_TRUE(page.cmdFocusCatcher.HasFocus());
  });
}

TEST(Capture, ParkingOnACatcherThatCannotTakeTheFocusEndsQuietlyAndKeepsTheTabStop) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    dialog.msgScanCodes.SetFocus();
    dialog.cmdFocusCatcher.Enabled(false);
    EXPECT_NO_THROW(ParkInputFocus());
    EXPECT_TRUE(dialog.cmdFocusCatcher.TabStop());
    EXPECT_TRUE(dialog.msgScanCodes.HasFocus());
  });
}

TEST(Capture, ParkingWithoutAnOpenDialogEndsQuietly) {
  ScanCodeSession session;
  for (const std::int32_t target : {0, 1, 2}) {
    Module().lngInputTarget = target;
    EXPECT_NO_THROW(ParkInputFocus());
  }
}

TEST(Capture, AbandoningWhenItIsOffTellsNobody) {
  ScanCodeSession session;
  Module().HelpFile = "help";
  AbandonCapture();
  EXPECT_EQ(Module().HelpFile, "help");
  EXPECT_TRUE(session.host.Events().empty());
}

TEST(Capture, DroppingForgetsTheKeysThatAreHeld) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    SetDirectInput(True, 0);
    Module().bDirectInputActive = True;
    TrackKeyEvent(0x41, 1, 0x1E, 0);
    ASSERT_EQ(Module().lngPressedKeyCount, 1);
    DropCapture();
    EXPECT_EQ(Module().bDirectInputActive, False);
    EXPECT_EQ(Module().lngPressedKeyCount, 0);
    EXPECT_EQ(Module().lngPressedKeys[0], ModuleState::KeySlot{});
  });
}

TEST(Capture, WhenNoHookCanBeRemovedTheFirstFailureIsToldAndAllAreTriedAgain) {
  ScanCodeSession session;
  session.surroundings.Settings().Option(9, True);
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    SetDirectInput(True, 0);
    ASSERT_EQ(Module().installedHooks.size(), 2U);
    session.platform.faults.Thrown([] { throw 7; });
    session.platform.faults.Turn(Fault::Unhook, true);
    EXPECT_THROW(DropCapture(), int);
    EXPECT_EQ(Module().installedHooks.size(), 2U);
    {
      const LeftHooks leaving;
    }
    EXPECT_EQ(Module().installedHooks.size(), 2U) << "what cannot be removed stays for the next time";
    session.platform.faults.Turn(Fault::Unhook, false);
    {
      const LeftHooks leaving;
    }
    EXPECT_TRUE(Module().installedHooks.empty());
    EXPECT_FALSE(Hooked(session, HookKind::Keyboard));
    EXPECT_FALSE(Hooked(session, HookKind::LowLevelKeyboard));
  });
}

TEST(Capture, ThatRunsAsADialogIsMadeGoesOnUntilTheDialogGoes) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    SetDirectInput(True, 0);
    {
      const LeftHooks made;
      EXPECT_TRUE(Hooked(session, HookKind::Keyboard));
    }
    EXPECT_FALSE(Hooked(session, HookKind::Keyboard));
  });
}

}  // namespace
}  // namespace plexel
