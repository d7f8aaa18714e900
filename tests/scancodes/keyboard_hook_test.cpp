#include "scancodes/keyboard_hook.h"

#include <gtest/gtest.h>

#include "platform/platform_in_force.h"
#include "scancodes/capture.h"
#include "scancodes/scancode_session.h"

namespace plexel {
namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;

struct Stroke {
  std::int32_t virtualKey, scanCode;
  bool extended;
};
constexpr Stroke keyA{0x41, 0x1E, false}, keyB{0x42, 0x30, false}, controlLeft{0x11, 0x1D, false},
    altRight{0x12, 0x38, true}, keyReturn{0x0D, 0x1C, false}, unknown{0x88, 0x54, false};

/// Capture running in one of the dialogs, with a keyboard to press keys on.
class Capturing {
 public:
  explicit Capturing(ScanCodeSession& session) : session_(session) {}

  void Down(const Stroke& key) { Send(key, true); }
  void Up(const Stroke& key) { Send(key, false); }
  /// All down in this order, all up in the opposite one.
  void Press(const std::vector<Stroke>& keys) {
    for (const Stroke& key : keys) Down(key);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) Up(*key);
  }

 private:
  void Send(const Stroke& key, bool down) {
    session_.platform.Hooks().Deliver({key.virtualKey, key.scanCode, key.extended, down, 0}, false);
  }
  ScanCodeSession& session_;
};

/// The text and the bytes of cell (1, 1) after an act during capture.
struct Captured {
  std::string text, codes;
};

Captured InDialog(const std::function<void(Capturing&, StandInConfigurationDialog&)>& act) {
  ScanCodeSession session;
  Captured captured;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    SetDirectInput(True, 0);
    Capturing capturing(session);
    act(capturing, dialog);
    captured.text = dialog.CellText(1, 1);
    SetDirectInput(False, 0);
  });
  captured.codes = Used(session.Record().strLayer1PressScanCode);
  return captured;
}

Captured Pressed(const std::vector<Stroke>& keys) {
  return InDialog([&](Capturing& keyboard, StandInConfigurationDialog&) { keyboard.Press(keys); });
}

TEST(KeyboardHook, CtrlAndALetterGiveOneGroup) {
  const Captured captured = Pressed({controlLeft, keyA});
  EXPECT_EQ(captured.text, "[Ctrl Left+a" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 14 1C F0 1C F0 14 FF");
}

TEST(KeyboardHook, TheOrderOfGoingDownCountsAndNotThatOfComingUp) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    keyboard.Down(controlLeft);
    keyboard.Down(keyA);
    keyboard.Up(controlLeft);
    keyboard.Up(keyA);
  });
  EXPECT_EQ(captured.text, "[Ctrl Left+a" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 14 1C F0 1C F0 14 FF");
}

TEST(KeyboardHook, TwoCombinationsGiveTwoGroups) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    keyboard.Press({keyA});
    keyboard.Press({keyB});
  });
  EXPECT_EQ(captured.text, "[a" + M + B + "][b" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 1C F0 1C FF 32 F0 32 FF");
}

TEST(KeyboardHook, AHeldKeyGivesOneSlot) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    for (int times = 0; times < 20; ++times) keyboard.Down(keyA);
    keyboard.Up(keyA);
  });
  EXPECT_EQ(captured.codes, "FF 1C F0 1C FF");
}

TEST(KeyboardHook, TheReleaseOfTheKeyThatStartedCaptureEndsNoCombination) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    keyboard.Up(keyReturn);
    keyboard.Press({keyA});
  });
  EXPECT_EQ(captured.text, "[a" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 1C F0 1C FF");
}

TEST(KeyboardHook, AStrayReleaseBehindACombinationEndsAnEmptyOne) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    keyboard.Press({keyA});
    keyboard.Up(keyB);
  });
  EXPECT_EQ(captured.text, "[a" + M + B + "][" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 1C F0 1C FF FF");
}

TEST(KeyboardHook, AnEmptyCombinationWithoutAnyOptionLeavesTheTextAlone) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog& dialog) {
    keyboard.Press({keyA});
    dialog.optCodeType[0].Value(false);
    keyboard.Up(keyB);
  });
  EXPECT_EQ(captured.text, "[a" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 1C F0 1C FF FF");
}

TEST(KeyboardHook, WithoutAnyOptionAGroupHasNoMarksAndTheBreakCodes) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog& dialog) {
    dialog.optCodeType[0].Value(false);
    keyboard.Press({keyA});
  });
  EXPECT_EQ(captured.text, "[a]");
  EXPECT_EQ(captured.codes, "FF F0 1C FF");
}

TEST(KeyboardHook, TheSelectedOptionTellsMarksAndCodes) {
  const auto with = [](std::size_t option) {
    return InDialog([option](Capturing& keyboard, StandInConfigurationDialog& dialog) {
      dialog.optCodeType[option].Value(true);
      keyboard.Press({keyA});
    });
  };
  EXPECT_EQ(with(1).text, "[a" + M + "]");
  EXPECT_EQ(with(1).codes, "FF 1C FF");
  EXPECT_EQ(with(2).text, "[a" + B + "]");
  EXPECT_EQ(with(2).codes, "FF F0 1C FF");
}

TEST(KeyboardHook, PrintAloneIsOneKeyAtItsRelease) {
  const Captured captured =
      InDialog([](Capturing& keyboard, StandInConfigurationDialog&) { keyboard.Up({0x2C, 0x37, true}); });
  EXPECT_EQ(captured.text, "[Print" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF E0 12 E0 7C E0 F0 7C E0 F0 12 FF");
}

TEST(KeyboardHook, AltGrIsOneKeyWithoutItsFalseControl) {
  const Captured captured = Pressed({controlLeft, altRight});
  EXPECT_EQ(captured.text, "[Alt Gr" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF E0 11 E0 F0 11 FF");
}

TEST(KeyboardHook, PauseHasNoBreakCodes) {
  const Captured captured = Pressed({{0x13, 0x45, false}});
  EXPECT_EQ(captured.text, "[Pause" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF E1 14 77 E1 F0 14 F0 77 FF");
}

TEST(KeyboardHook, AnUntranslatedKeyRepeatsTheOneTranslatedBeforeIt) {
  const Captured captured = Pressed({keyA, unknown});
  EXPECT_EQ(captured.text, "[a+UnknownKey" + M + B + "]");
  // Breaking begins with the unknown key, which still finds the sequence of A.
  EXPECT_EQ(captured.codes, "FF 1C 1C F0 1C F0 1C FF");
}

TEST(KeyboardHook, AnUntranslatedKeyAheadOfAllAddsNothingToTheMakeCodes) {
  const Captured captured = Pressed({unknown, keyA});
  EXPECT_EQ(captured.text, "[UnknownKey+a" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 1C F0 1C F0 1C FF");
}

TEST(KeyboardHook, ANamelessKeyIsFollowedByNoPlus) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    dynamic_cast<HeadlessPlatform&>(Platform::Current()).Layout().KeyText(0x41, 1, u"\u0100");
    keyboard.Press({keyA, keyB});
  });
  EXPECT_EQ(captured.text, "[b" + M + B + "]");
}

TEST(KeyboardHook, ALastKeyWithoutANameLeavesThePlusAheadOfIt) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    dynamic_cast<HeadlessPlatform&>(Platform::Current()).Layout().KeyText(0x41, 1, u"\u0100");
    keyboard.Press({keyB, keyA});
  });
  EXPECT_EQ(captured.text, "[b+" + M + B + "]");
}

TEST(KeyboardHook, TheEleventhKeyIsNeitherNamedNorTranslated) {
  std::vector<Stroke> keys;
  for (std::int32_t key = 0; key < 11; ++key) keys.push_back({0x70 + key, 0x3B, false});
  const Captured captured = Pressed(keys);
  EXPECT_EQ(captured.text, "[F1+F2+F3+F4+F5+F6+F7+F8+F9+F10" + M + B + "]");
  EXPECT_EQ(captured.codes.size(), std::string("FF 05 F0 05 FF").size() + 9 * std::string(" 05 F0 05").size());
}

TEST(KeyboardHook, AGroupThatDoesNotFitLeavesCellAndBufferAndEmptiesTheTable) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    Module().lngMaxScanCodes = 4;
    keyboard.Press({keyA});
    keyboard.Press({keyB});
    EXPECT_EQ(Module().lngPressedKeyCount, 0);
    EXPECT_EQ(Module().lngPressedKeys[0], ModuleState::KeySlot{});
  });
  EXPECT_EQ(captured.text, "[a" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 1C F0 1C FF");
}

TEST(KeyboardHook, ACombinationUpdatesTheRowMarks) {
  InDialog([](Capturing& keyboard, StandInConfigurationDialog& dialog) {
    dialog.optCodeType[1].Value(true);
    keyboard.Press({keyA});
    EXPECT_EQ(dialog.CellText(1, 0), "X");
  });
}

TEST(KeyboardHook, EachEventBringsTheFocusBackToTheCatcher) {
  InDialog([](Capturing& keyboard, StandInConfigurationDialog& dialog) {
    dialog.msgScanCodes.SetFocus();
    keyboard.Down(keyA);
    EXPECT_TRUE(dialog.cmdFocusCatcher.HasFocus());
    dialog.msgScanCodes.SetFocus();
    keyboard.Up(keyA);
    EXPECT_TRUE(dialog.cmdFocusCatcher.HasFocus());
  });
}

TEST(KeyboardHook, ACatcherThatCannotTakeTheFocusStopsNothing) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog& dialog) {
    dialog.cmdFocusCatcher.Enabled(false);
    keyboard.Press({keyA});
  });
  EXPECT_EQ(captured.text, "[a" + M + B + "]");
  EXPECT_EQ(captured.codes, "FF 1C F0 1C FF");
}

TEST(KeyboardHook, AStoreThatFailsLetsTheTextGoOn) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    SetDirectInput(True, 0);
    Module().ctlCurrentElement = nullptr;
    Capturing(session).Press({keyA});
    EXPECT_EQ(dialog.CellText(1, 1), "[a" + M + B + "]");
  });
  EXPECT_EQ(session.Record().strLayer1PressScanCode, InitialBuffer());
}

TEST(KeyboardHook, TheWizardShowsTheBareNamesOfTheLastCombination) {
  ScanCodeSession session;
  session.InWizard([&](StandInWizardPage& page) {
    page.optKeyType[1].Value(true);
    SetDirectInput(True, 2);
    Capturing keyboard(session);
    keyboard.Press({controlLeft, keyA});
    EXPECT_EQ(page.txtScanCodes.Text(), "Ctrl Left+a");
    keyboard.Press({keyB});
    EXPECT_EQ(page.txtScanCodes.Text(), "b");
  });
  const Info info = session.Record();
  EXPECT_EQ(Used(info.strLayer3PressScanCode), "00 32 FF");
  EXPECT_EQ(Used(info.strLayer3ReleaseScanCode), "00 F0 32 FF");
}

TEST(KeyboardHook, ACombinationTooLongForTheWizardsBufferKeepsTheOldCodesAndShowsItsText) {
  ScanCodeSession session;
  const Info before = session.Record();
  session.InWizard([&](StandInWizardPage& page) {
    page.optKeyType[0].Value(true);
    SetDirectInput(True, 2);
    session.platform.Keys().Hold(0x10);  // five codes for each key in both directions
    Capturing(session).Press({{0x24, 0x47, true},
                              {0x26, 0x48, true},
                              {0x21, 0x49, true},
                              {0x25, 0x4B, true},
                              {0x27, 0x4D, true},
                              {0x23, 0x4F, true},
                              {0x28, 0x50, true},
                              {0x22, 0x51, true},
                              {0x2D, 0x52, true},
                              {0x2E, 0x53, true}});
    EXPECT_EQ(page.txtScanCodes.Text(),
              "Pos1+Cursor Up+Page Up+Cursor Left+Cursor Right+End+Cursor Down+Page down+Insert+Del");
  });
  EXPECT_EQ(session.Record(), before);
}

TEST(KeyboardHook, AnotherTargetGetsNoText) {
  const Captured captured = InDialog([](Capturing& keyboard, StandInConfigurationDialog&) {
    Module().lngInputTarget = 1;
    keyboard.Press({keyA});
    EXPECT_EQ(Module().lngPressedKeyCount, 0);
  });
  EXPECT_EQ(captured.text, "");
  EXPECT_EQ(captured.codes, "FF");
}

TEST(KeyboardHook, OnlyCodeZeroIsHandled) {
  ScanCodeSession session;
  EXPECT_EQ(KeyboardHookProc(3, 0x41, 0x001E0001), 0);
  EXPECT_EQ(KeyboardHookProc(-1, 0x41, 0x001E0001), 0);
  EXPECT_EQ(Module().lngPressedKeyCount, 0);
  EXPECT_EQ(session.platform.Hooks().NextCalls(), 1);
  EXPECT_EQ(KeyboardHookProc(0, 0x41, 0x001E0001), 0);
  EXPECT_EQ(Module().lngPressedKeyCount, 1);
  EXPECT_EQ(session.platform.Hooks().NextCalls(), 1);
}

/// Hooks that keep the arguments of the last call onward and answer 77.
class RecordingHooks : public HeadlessPlatform {
 public:
  struct Table : HeadlessHooks {
    using HeadlessHooks::HeadlessHooks;
    std::int32_t CallNext(std::int32_t hook, std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) override {
      call = {hook, nCode, wParam};
      flags = nCode < 0 ? *reinterpret_cast<const std::int32_t*>(lParam) : 0;
      return 77;
    }
    std::vector<std::int32_t> call;
    std::int32_t flags = 0;
  };
  HeadlessHooks& Hooks() override { return table; }
  Table table{faults};
};

TEST(KeyboardHook, ANegativeCodeGoesOnWithHookTwoAndTheAddressOfTheFlagWord) {
  RecordingHooks platform;
  const PlatformInForce use(platform);
  EXPECT_EQ(KeyboardHookProc(-3, 0x41, 0x001E0001), 77);
  EXPECT_EQ(platform.table.call, (std::vector<std::int32_t>{2, -3, 0x41}));
  EXPECT_EQ(platform.table.flags, 0x001E0001);
}

TEST(LowLevelHook, OtherCodesGoOnWithoutAHandle) {
  RecordingHooks platform;
  const PlatformInForce use(platform);
  EXPECT_EQ(LowLevelKeyboardProc(3, 0x100, 0), 77);
  EXPECT_EQ(platform.table.call, (std::vector<std::int32_t>{0, 3, 0x100}));
}

TEST(LowLevelHook, SwallowedKeysNeverReachTheCapture) {
  ScanCodeSession session;
  session.surroundings.Settings().Option(9, True);
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    SetDirectInput(True, 0);
    Capturing(session).Press({{0x5B, 0x5B, true}});
    EXPECT_EQ(dialog.CellText(1, 1), "");
    SetDirectInput(False, 0);
  });
}

TEST(LowLevelHook, WithoutItTheWindowsKeysAreCaptured) {
  EXPECT_EQ(Pressed({{0x5B, 0x5B, true}}).codes, "FF E0 1F E0 F0 1F FF");
  EXPECT_EQ(Pressed({{0x5C, 0x5C, true}}).text, "[Windows Right" + M + B + "]");
}

}  // namespace
}  // namespace plexel
