#include "configdialog/dialog_fixture.h"

namespace plexel {

namespace {

using CellClipboard = ConfigurationDialog;

constexpr std::int32_t GridCheck = 1;

std::int32_t Copied(frmConfigurationDialog& dialog) {
  std::int32_t result = -5;
  dialog.CopyGridCell(result);
  return result;
}

std::int32_t Pasted(frmConfigurationDialog& dialog) {
  std::int32_t result = -5;
  dialog.PasteGridCell(result);
  return result;
}

/// Puts a valid cell of `count` code bytes into the clipboard.
void Hold(std::int32_t count, const std::string& text) {
  Module().udtScanCodeClipboard = {True, CodesOfLength(count), text};
}

// Copy.

TEST_F(CellClipboard, CopyTakesTextAndWholeBuffer) {
  auto codes = CodesOfLength(3);
  Buffer(2, 2, codes);
  element->ReleaseKeyDefLayer2("[a" + Both + "]");
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    EXPECT_FALSE(dialog.MNU_POPUP_PASTE.Enabled());
    hand.Cell(dialog.msgScanCodes, 2, 2);
    EXPECT_EQ(Copied(dialog), 0);
    EXPECT_TRUE(dialog.MNU_POPUP_PASTE.Enabled());
  });
  EXPECT_EQ(Module().udtScanCodeClipboard.Valid, True);
  EXPECT_EQ(Module().udtScanCodeClipboard.VisibleString, "[a" + Both + "]");
  EXPECT_EQ(Module().udtScanCodeClipboard.scanCode, codes);
}

TEST_F(CellClipboard, CopyOfAnEmptyCellMakesTheClipboardInvalidAndLeavesThePasteEntryEnabled) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    Copied(dialog);
    hand.Cell(dialog.msgScanCodes, 2, 1);
    EXPECT_EQ(Copied(dialog), 1);
    EXPECT_EQ(Module().udtScanCodeClipboard.Valid, False);
    EXPECT_EQ(Module().udtScanCodeClipboard.VisibleString, "[a" + Both + "]");
    EXPECT_TRUE(dialog.MNU_POPUP_PASTE.Enabled());
    dialog.msgScanCodes.Text("[old]");
    EXPECT_EQ(Pasted(dialog), 1);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[old]");
  });
}

TEST_F(CellClipboard, CopyWithoutAnElementKeepsTheClipboardInvalid) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([this](frmConfigurationDialog& dialog, Hand&) {
    Module().ctlCurrentElement = nullptr;
    EXPECT_EQ(Copied(dialog), -5);
    EXPECT_EQ(Module().udtScanCodeClipboard.Valid, False);
    EXPECT_FALSE(dialog.MNU_POPUP_PASTE.Enabled());
    Module().ctlCurrentElement = element;
  });
}

// Paste.

TEST_F(CellClipboard, PasteReplacesTextAndBuffer) {
  Buffer(3, 1, CodesOfLength(9));
  element->PressKeyDefLayer3("[old" + Both + "]");
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Hold(2, "[new" + Both + "]");
    hand.Cell(dialog.msgScanCodes, 3, 1);
    EXPECT_EQ(Pasted(dialog), 0);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[new" + Both + "]");
    EXPECT_EQ(Buffer(3, 1), CodesOfLength(2));
  });
}

TEST_F(CellClipboard, PasteFromAPressIntoAReleaseCellStoresThePressBytesAndTheMarksDecide) {
  surroundings.Settings().Option(GridCheck, True);
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF}));
  element->PressKeyDefLayer1("[a" + Make + "]");
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Copied(dialog);
    hand.Cell(dialog.msgScanCodes, 2, 2);
    EXPECT_EQ(Pasted(dialog), 0);
    EXPECT_EQ(Bytes(Buffer(2, 2)), (std::vector<int>{0xFF, 0x1C, 0xFF}));
    EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 0).text, "X");
  });
}

TEST_F(CellClipboard, PasteOverAHeaderChangesItsTextAlone) {
  Buffer(1, 2, CodesOfLength(9));
  const udtTactisBaseElement_ScanCodeInfo before = element->TactisBaseElementScanCodeBuffer();
  Open([&](frmConfigurationDialog& dialog, Hand&) {
    Hold(2, "[new" + Both + "]");
    for (const int column : {1, 2}) {
      dialog.msgScanCodes.Current(0, column);
      EXPECT_EQ(Pasted(dialog), 0);
      EXPECT_EQ(dialog.msgScanCodes.Text(), "[new" + Both + "]");
    }
    EXPECT_EQ(element->TactisBaseElementScanCodeBuffer(), before);
  });
}

TEST_F(CellClipboard, RefusedPasteChangesNothingAndStillGivesZero) {
  Buffer(2, 2, CodesOfLength(41));
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Hold(20, "[new" + Both + "]");
    hand.Cell(dialog.msgScanCodes, 2, 1);
    host.Forget();
    EXPECT_EQ(Pasted(dialog), 0);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_EQ(Buffer(2, 1).NextValue, 0);
    EXPECT_TRUE(platform.Messages().Shown().empty());
    EXPECT_GT(host.Count("PropertyChanged"), 0) << "the record goes back into the element";
  });
}

// 20 codes count as 19: NextValue 21 minus two end marks.
TEST_F(CellClipboard, PasteIntoLayer3IsLetThroughByTheReleaseBufferOfLayer1) {
  Buffer(3, 1, CodesOfLength(40));
  Buffer(3, 2, CodesOfLength(40));
  Buffer(1, 2, CodesOfLength(18));  // NextValue 19
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Hold(20, "[new" + Both + "]");
    hand.Cell(dialog.msgScanCodes, 3, 1);
    Pasted(dialog);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[new" + Both + "]");
    EXPECT_EQ(Buffer(3, 1), CodesOfLength(20));
  });
}

TEST_F(CellClipboard, PasteIntoAFullLayer3IsRefusedWhenTheReleaseBufferOfLayer1IsOneShorter) {
  Buffer(3, 1, CodesOfLength(40));
  Buffer(3, 2, CodesOfLength(40));
  Buffer(1, 2, CodesOfLength(17));  // NextValue 18
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Hold(20, "[new" + Both + "]");
    hand.Cell(dialog.msgScanCodes, 3, 1);
    Pasted(dialog);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_EQ(Buffer(3, 1), CodesOfLength(40));
  });
}

TEST_F(CellClipboard, PasteWithoutAValidClipboardGivesOne) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    Hold(2, "[new]");
    Module().udtScanCodeClipboard.Valid = False;
    EXPECT_EQ(Pasted(dialog), 1);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
  });
}

TEST_F(CellClipboard, PasteOnARowHeaderChangesNothing) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    Hold(2, "[new]");
    dialog.msgScanCodes.Current(2, 0);
    EXPECT_EQ(Pasted(dialog), 0);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "2");
  });
}

TEST_F(CellClipboard, PasteWithoutAnElementEndsQuietly) {
  Open([this](frmConfigurationDialog& dialog, Hand&) {
    Hold(2, "[new]");
    Module().ctlCurrentElement = nullptr;
    EXPECT_EQ(Pasted(dialog), -5);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    Module().ctlCurrentElement = element;
  });
}

// The limits.

TEST_F(CellClipboard, EndMarksCountFromIndexZeroToNextValue) {
  frmConfigurationDialog dialog;
  EXPECT_EQ(dialog.CountCodeGroupEnds(Codes({0xFF, 0x1C, 0xFF, 0x32, 0xFF})), 3);
  EXPECT_EQ(dialog.CountCodeGroupEnds(Codes({0x00, 0x1C, 0xFF})), 1);
}

TEST_F(CellClipboard, EndMarksBehindNextValueDoNotCount) {
  frmConfigurationDialog dialog;
  auto buffer = Codes({0xFF, 0x1C, 0xFF, 0xFF, 0xFF});
  buffer.NextValue = 2;
  EXPECT_EQ(dialog.CountCodeGroupEnds(buffer), 2);
}

TEST_F(CellClipboard, ABufferWithoutAnIndexInUseHasNoEndMarks) {
  frmConfigurationDialog dialog;
  auto buffer = Codes({0xFF, 0xFF});
  buffer.NextValue = -1;
  EXPECT_EQ(dialog.CountCodeGroupEnds(buffer), 0);
}

TEST_F(CellClipboard, ANextValueOutsideTheBufferEndsTheCountQuietly) {
  frmConfigurationDialog dialog;
  udtTactisBaseElement_TACTIS_SCANCODE buffer;
  buffer.Value.fill(0xFF);
  buffer.NextValue = 89;
  EXPECT_EQ(dialog.CountCodeGroupEnds(buffer), 89);
}

TEST_F(CellClipboard, GroupEndsOfALayerAreThoseOfItsDirection) {
  frmConfigurationDialog dialog;
  udtTactisBaseElement_ScanCodeInfo record;
  record.strLayer4PressScanCode = Codes({0xFF, 0x1C, 0xFF});
  record.strLayer4ReleaseScanCode = Codes({0xFF});
  EXPECT_EQ(dialog.CountPressGroupEnds(4, record), 2);
  EXPECT_EQ(dialog.CountReleaseGroupEnds(4, record), 1);
}

TEST_F(CellClipboard, ALayerOutside1To4HasNoGroupEnds) {
  frmConfigurationDialog dialog;
  udtTactisBaseElement_ScanCodeInfo record;
  record.strLayer1PressScanCode = record.strLayer4ReleaseScanCode = Codes({0xFF, 0x1C, 0xFF});
  for (const std::int32_t layer : {-1, 0, 5}) {
    EXPECT_EQ(dialog.CountPressGroupEnds(layer, record), 0);
    EXPECT_EQ(dialog.CountReleaseGroupEnds(layer, record), 0);
  }
}

TEST_F(CellClipboard, PressPasteFitsBelowTheLimitOfReleaseCodesPlusLengthMinusPressEnds) {
  frmConfigurationDialog dialog;
  Module().lngMaxScanCodes = 43;
  udtTactisBaseElement_ScanCodeInfo record;
  record.strLayer2ReleaseScanCode = CodesOfLength(29);                    // NextValue 30, two ends
  record.strLayer2PressScanCode = Codes({0xFF, 0x1C, 0xFF, 0x32, 0xFF});  // three ends
  EXPECT_TRUE(dialog.PressPasteFits(2, record, 15));
  EXPECT_FALSE(dialog.PressPasteFits(2, record, 16));
}

TEST_F(CellClipboard, ReleasePasteFitsBelowTheLimitOfPressCodesPlusLengthMinusReleaseEnds) {
  frmConfigurationDialog dialog;
  Module().lngMaxScanCodes = 22;
  udtTactisBaseElement_ScanCodeInfo record;
  record.strLayer2PressScanCode = CodesOfLength(9);                         // NextValue 10, two ends
  record.strLayer2ReleaseScanCode = Codes({0xFF, 0x1C, 0xFF, 0x32, 0xFF});  // three ends
  EXPECT_TRUE(dialog.ReleasePasteFits(2, record, 14));
  EXPECT_FALSE(dialog.ReleasePasteFits(2, record, 15));
}

TEST_F(CellClipboard, BothPasteTestsLookAtTheReleaseBufferOfLayer1First) {
  frmConfigurationDialog dialog;
  Module().lngMaxScanCodes = 0;
  udtTactisBaseElement_ScanCodeInfo record;
  record.strLayer1ReleaseScanCode.NextValue = 20;
  for (const std::int32_t layer : {0, 1, 3, 5}) {
    EXPECT_TRUE(dialog.PressPasteFits(layer, record, 20));
    EXPECT_TRUE(dialog.ReleasePasteFits(layer, record, 20));
    EXPECT_FALSE(dialog.PressPasteFits(layer, record, 21));
    EXPECT_FALSE(dialog.ReleasePasteFits(layer, record, 21));
  }
}

TEST_F(CellClipboard, APasteTestWhoseSumOverflowsIsFalse) {
  frmConfigurationDialog dialog;
  Module().lngMaxScanCodes = 43;
  udtTactisBaseElement_ScanCodeInfo record;
  record.strLayer1ReleaseScanCode.NextValue = -2147483647 - 1;
  record.strLayer2ReleaseScanCode.NextValue = 2147483647;
  EXPECT_FALSE(dialog.PressPasteFits(2, record, 1));
  record.strLayer2PressScanCode.NextValue = -2147483647 - 1;
  EXPECT_FALSE(dialog.ReleasePasteFits(2, record, -1));
}

}  // namespace

}  // namespace plexel
