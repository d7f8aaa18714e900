#include "headless/key_road.h"
#include "scancodes/code_buffer.h"
#include "scancodes/code_type.h"
#include "scancodes/windows_shortcuts.h"
#include "wizard/wizard_session.h"

namespace plexel {

namespace {

using Names = std::vector<std::string>;

Names AllLayers(const std::string& press, const std::string& release) {
  return {press, press, press, press, release, release, release, release};
}

/// The bytes of all press and release buffers, where all layers are alike; "differ" where they are not.
std::string PressBytes(WizardSession& session) {
  const auto record = session.Record();
  for (std::int32_t layer = 2; layer <= LayerCount; ++layer) {
    if (*PressBuffer(record, layer) != *PressBuffer(record, 1)) return "differ";
  }
  return Bytes(*PressBuffer(record, 1), static_cast<std::size_t>(PressBuffer(record, 1)->NextValue) + 1);
}

std::string ReleaseBytes(WizardSession& session) {
  const auto record = session.Record();
  for (std::int32_t layer = 2; layer <= LayerCount; ++layer) {
    if (*ReleaseBuffer(record, layer) != *ReleaseBuffer(record, 1)) return "differ";
  }
  return Bytes(*ReleaseBuffer(record, 1), static_cast<std::size_t>(ReleaseBuffer(record, 1)->NextValue) + 1);
}

constexpr std::int32_t keyA = 0x41, scanA = 0x1E, keyB = 0x42, scanB = 0x30;

/// Presses OK on the finish page and runs the whole.
void Finish(WizardSession& session) {
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
}

}  // namespace

TEST(WizardForward, ANormalKeySendsTheWholeStrokeOnPress) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").Stroke(keyA, scanA);
  Finish(session);
  EXPECT_EQ(session.Texts(), AllLayers("[a‹›]", ""));
  EXPECT_EQ(PressBytes(session), "00 1C F0 1C FF");
  EXPECT_EQ(ReleaseBytes(session), "00");
  EXPECT_EQ(session.element->WizardOptions(), NormalKey);
}

TEST(WizardForward, ATipKeySendsMakeOnPressAndBreakOnRelease) {
  WizardSession session(Oval);
  session.Click("optKeyType(1)").DblClick("txtScanCodes").Stroke(keyA, scanA);
  Finish(session);
  EXPECT_EQ(session.Texts(), AllLayers("[a‹]", "[a›]"));
  EXPECT_EQ(PressBytes(session), "00 1C FF");
  EXPECT_EQ(ReleaseBytes(session), "00 F0 1C FF");
  EXPECT_EQ(session.element->WizardOptions(), TipKey);
}

TEST(WizardForward, EachPanelFunctionSendsItsByteOnPress) {
  struct Row {
    std::int32_t text;
    const char* bytes;
  };
  for (const Row& row : {Row{2601, "00 F9 FF"}, Row{2602, "00 FB FF"}, Row{2603, "00 F4 FF"}, Row{2604, "00 F6 FF"},
                         Row{2600, "00 F5 FF"}, Row{2605, "00 F1 FF"}, Row{2606, "00 F2 FF"}, Row{2607, "00 F3 FF"},
                         Row{2608, "00 FE FF"}}) {
    WizardSession session(Oval);
    session.Grant(Capability::HasSystemReset);
    session.Click("optKeyType(2)");
    session.Then([&] { session.Get<ComboBox>("cmdSpecialIPCFunction").Text(Text(row.text)); });
    Finish(session);
    EXPECT_EQ(PressBytes(session), row.bytes) << row.text;
    EXPECT_EQ(ReleaseBytes(session), "00") << row.text;
    EXPECT_EQ(session.Texts(), AllLayers("[" + Text(row.text) + "‹›]", "")) << row.text;
    EXPECT_EQ(session.element->WizardOptions(), IPCFunction) << row.text;
  }
}

TEST(WizardForward, TheFirstEqualPanelFunctionInTheComparingOrderWins) {
  WizardSession session(Oval);
  session.Grant(Capability::HasSystemReset);
  for (const std::int32_t text : {2600, 2605, 2608}) session.surroundings.Language().Set(text, "same");
  session.Click("optKeyType(2)");
  Finish(session);
  EXPECT_EQ(PressBytes(session), "00 F5 FF");
}

TEST(WizardForward, EachShortcutSendsTheCodesOfItsIndex) {
  for (std::int32_t index = 0; index < 19; ++index) {
    const std::int32_t text = index < 17 ? 2610 + index : 10928 + index - 17;
    KeyCodes codes;
    GetWindowsShortCutCodes(codes, index);
    udtTactisBaseElement_TACTIS_SCANCODE press, release;
    AppendCodeGroup(press, codes, MakeOnly, 0);
    AppendCodeGroup(release, codes, BreakOnly, 0);

    WizardSession session(Oval);
    session.Click("optKeyType(3)").Select("cmbWindowsShortCuts", Text(text));
    Finish(session);
    const auto record = session.Record();
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      EXPECT_EQ(*PressBuffer(record, layer), press) << index;
      EXPECT_EQ(*ReleaseBuffer(record, layer), release) << index;
    }
    EXPECT_EQ(session.Texts(), AllLayers("[" + Text(text) + "‹]", "[" + Text(text) + "›]")) << index;
    EXPECT_EQ(session.element->WizardOptions(), WindowsShortCut) << index;
  }
}

TEST(WizardForward, Entry10928IsControlShiftEscapeAndEntry10929AltF4) {
  struct Row {
    std::int32_t text;
    const char* bytes;
  };
  for (const Row& row : {Row{10928, "00 14 12 76 FF"}, Row{10929, "00 11 0C FF"}}) {
    WizardSession session(Oval);
    session.Click("optKeyType(3)").Select("cmbWindowsShortCuts", Text(row.text));
    Finish(session);
    EXPECT_EQ(PressBytes(session), row.bytes);
  }
}

TEST(WizardForward, TheLastTwoShortcutsAreComparedTheOtherWayRoundFromTheList) {
  WizardSession session(Oval);
  session.surroundings.Language().Set(10928, "same");
  session.surroundings.Language().Set(10929, "same");
  session.Click("optKeyType(3)").Select("cmbWindowsShortCuts", "same");
  Finish(session);
  EXPECT_EQ(PressBytes(session), "00 11 0C FF");
}

TEST(WizardForward, ATextThatTheLanguageLacksStoresTheEndMarkAlone) {
  WizardSession session(Oval);
  session.Click("optKeyType(3)").Then([&] { session.Get<ComboBox>("cmbWindowsShortCuts").Text("gone"); });
  Finish(session);
  EXPECT_EQ(PressBytes(session), "00 FF");
  EXPECT_EQ(ReleaseBytes(session), "00 FF");
  EXPECT_EQ(session.Texts(), AllLayers("[gone‹]", "[gone›]"));
}

TEST(WizardForward, APanelFunctionThatTheLanguageLacksStoresTheEndMarkAlone) {
  WizardSession session(Oval);
  session.Grant(Capability::HasSystemReset);
  session.Click("optKeyType(2)").Then([&] { session.Get<ComboBox>("cmdSpecialIPCFunction").Text("gone"); });
  Finish(session);
  EXPECT_EQ(PressBytes(session), "00 FF");
  EXPECT_EQ(ReleaseBytes(session), "00");
}

TEST(WizardForward, AStoredShortcutWithBracketsIsRecognisedNoMore) {
  WizardSession session(Oval);
  session.surroundings.Language().Set(2615, "[F13]");
  session.Click("optKeyType(3)").Select("cmbWindowsShortCuts", "[F13]");
  Finish(session);
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "[(F13)‹]");
  EXPECT_EQ(PressBytes(session), "00 08 FF");
  session.Then([&] {
    Hand hand(session.Top());
    hand.Focus(session.Get<Control>("cmbWindowsShortCuts"));
    hand.KeyDown(key::Return, 0);
  });
  Finish(session);
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "[(F13)‹]");
  EXPECT_EQ(PressBytes(session), "00 FF");
}

TEST(WizardForward, ChangingTheOptionAfterACaptureEmptiesTheCodesAndTheBox) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").Stroke(keyA, scanA).Click("optKeyType(1)");
  session.Then([&] {
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "");
    EXPECT_EQ(PressBytes(session), "00");
  });
  Finish(session);
  EXPECT_EQ(session.Texts(), AllLayers("", ""));
}

TEST(WizardForward, OfSeveralCombinationsInOneCaptureTheLastStays) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").Stroke(keyA, scanA).Stroke(keyB, scanB);
  session.Then([&] { EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "b"); });
  Finish(session);
  EXPECT_EQ(session.Texts(), AllLayers("[b‹›]", ""));
  EXPECT_EQ(PressBytes(session), "00 32 F0 32 FF");
}

TEST(WizardForward, ACapturedCombinationChangesNeitherTextsNorWizardOptionsUntilForward) {
  WizardSession session(Oval);
  session.GiveTexts("[old]", "");
  session.DblClick("txtScanCodes").Stroke(keyA, scanA);
  session.Then([&] {
    EXPECT_EQ(session.Texts(), AllLayers("[old]", ""));
    EXPECT_EQ(session.element->WizardOptions(), ManuallyDefined);
  });
  session.Click("cmdCancel");
  session.Open();
}

TEST(WizardForward, AnArrowInTheIdleBoxRewritesTheTextsAndKeepsTheCodes) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  auto record = session.Record();
  record.strLayer3PressScanCode.Value[4] = 0x55;
  session.element->TactisBaseElementScanCodeBuffer(record);
  session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>("txtScanCodes")); }).KeyDown(key::Left);
  Finish(session);
  EXPECT_EQ(session.Texts(), AllLayers("[a‹›]", ""));
  EXPECT_EQ(session.Record().strLayer3PressScanCode, record.strLayer3PressScanCode);
}

TEST(WizardForward, AfterBackTheDefinitionStaysAsTheFirstForwardWroteIt) {
  WizardSession session(Oval);
  session.Click("optKeyType(3)").Click("cmdForward").Click("cmdBack");
  session.Then([&] { session.Get<ComboBox>("cmbWindowsShortCuts").Text("other"); });
  Finish(session);
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "[text 2610‹]");
}

TEST(WizardForward, ARectWithoutAKeyLosesItsTickAfterPage3) {
  WizardSession session(Rect);
  session.element->ShowDefined(True);
  session.element->ShowDefinedObject(True);
  bool tickDuringPage3 = false;
  session.Click("cmdForward");
  session.Then([&] { tickDuringPage3 = session.element->SurfaceObjects().linOK1.Visible; }).Click("cmdOK");
  session.Open();
  EXPECT_TRUE(tickDuringPage3);
  EXPECT_FALSE(session.element->SurfaceObjects().linOK1.Visible);
}

TEST(WizardForward, ARectWithoutAKeyLosesItsTickOnBackToo) {
  WizardSession session(Rect);
  session.element->ShowDefined(True);
  session.element->ShowDefinedObject(True);
  session.Click("cmdForward").Click("cmdBack");
  session.Then([&] { EXPECT_FALSE(session.element->SurfaceObjects().linOK1.Visible); }).Click("cmdCancel");
  session.Open();
}

TEST(WizardForward, ARectWithAPressTextKeepsItsTick) {
  WizardSession session(Rect);
  session.element->ShowDefined(True);
  session.element->PressKeyDefLayer1("[a‹›]");
  session.element->ShowDefinedObject(True);
  Finish(session);
  EXPECT_TRUE(session.element->SurfaceObjects().linOK1.Visible);
}

TEST(WizardForward, ForwardUpdatesTheDefinedMark) {
  WizardSession session(Oval);
  session.element->ShowDefined(True);
  session.Click("optKeyType(3)").Click("cmdForward");
  session.Then([&] { EXPECT_TRUE(session.element->SurfaceObjects().linOK1.Visible); }).Click("cmdOK");
  session.Open();
}

TEST(WizardForward, ForwardEndsCaptureTurnsTheBoxWhiteAndLeavesKeyPreviewOff) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").Click("cmdForward");
  session.Then([&] {
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    EXPECT_EQ(Module().bDirectInputActive, False);
  });
  session.Click("cmdBack").Then([&] {
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").BackColor(), 0xFFFFFF);
    EXPECT_FALSE(session.Top().KeyPreview());
  });
  session.Click("cmdCancel");
  session.Open();
}

TEST(WizardForward, AnEmptyBoxLeavesAllTextsEmptyForNormalAndTipKey) {
  for (const char* option : {"optKeyType(0)", "optKeyType(1)"}) {
    WizardSession session(Oval);
    session.element->WizardOptions(WindowsShortCut);
    session.Click(option);
    Finish(session);
    EXPECT_EQ(session.Texts(), AllLayers("", "")) << option;
  }
}

TEST(WizardForward, AnEmptyPanelFunctionIsWrittenAsMarksAlone) {
  WizardSession session(Oval);
  session.element->WizardOptions(IPCFunction);
  session.Then([&] {
    Hand(session.Top()).Focus(session.Get<Control>("cmdSpecialIPCFunction"));
    Hand(session.Top()).KeyPress('x');
  });
  Finish(session);
  EXPECT_EQ(session.Texts(), AllLayers("[‹›]", ""));
}

TEST(WizardForward, ATextWithABracketLeavesCodesWithoutTexts) {
  WizardSession session(Oval);
  session.GiveTexts("[a‹›]", "[b›]");
  session.DblClick("txtScanCodes").Stroke(keyA, scanA);
  session.Then([&] { session.Get<TextBox>("txtScanCodes").Text("x["); });
  Finish(session);
  EXPECT_EQ(session.Texts(), AllLayers("", ""));
  EXPECT_EQ(PressBytes(session), "00 1C F0 1C FF");
}

TEST(WizardForward, APanelFunctionWithABracketLeavesTheCodeWithoutTexts) {
  WizardSession session(Oval);
  session.Grant(Capability::HasSystemReset);
  session.surroundings.Language().Set(2608, "Reset [all]");
  session.Click("optKeyType(2)");
  Finish(session);
  EXPECT_EQ(session.Texts(), AllLayers("", ""));
  EXPECT_EQ(PressBytes(session), "00 FE FF");
}

TEST(WizardForward, LedsNumbersAndTheNoteAreNotTouched) {
  WizardSession session(Oval);
  session.element->LEDTypeLayer3(AlarmLed);
  session.element->HardwareNumberButton(7);
  session.element->ButtonNotes("note");
  session.Click("optKeyType(3)");
  Finish(session);
  EXPECT_EQ(session.element->LEDTypeLayer3(), AlarmLed);
  EXPECT_EQ(session.element->HardwareNumberButton(), 7);
  EXPECT_EQ(session.element->ButtonNotes(), "note");
}

TEST(WizardForward, ShiftAndControlOnTheKeyboardEndCaptureAndTheKeyStays) {
  WizardSession session(Oval);
  session.DblClick("txtScanCodes").Stroke(keyA, scanA);
  session.Then([&] {
    KeyRoad road(session.platform);
    road.Send({0x10, 0x2A, false, true});
    road.Send({0x11, 0x1D, false, true});
    EXPECT_EQ(Module().lngKeyboardHook, 0);
    road.Send({0x11, 0x1D, false, false});
    road.Send({0x10, 0x2A, false, false});
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "a");
  });
  Finish(session);
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "[a‹›]");
  EXPECT_EQ(PressBytes(session), "00 1C F0 1C FF");
}

}  // namespace plexel
