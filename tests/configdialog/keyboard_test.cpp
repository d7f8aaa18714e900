#include "configdialog/dialog_fixture.h"

namespace plexel {

namespace {

using KeyboardEntry = ConfigurationDialog;

constexpr std::int32_t ControlKey = 0x11, ControlScan = 0x1D;

// Strokes.

TEST_F(KeyboardEntry, AChordIsOneGroup) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    Down(ControlKey, ControlScan);
    StrokeA();
    Up(ControlKey, ControlScan);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[Ctrl Left+a" + Both + "]");
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x14, 0x1C, 0xF0, 0x1C, 0xF0, 0x14, 0xFF}));
  });
}

TEST_F(KeyboardEntry, TwoStrokesAreTwoGroups) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    StrokeA();
    StrokeA();
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Both + "][a" + Both + "]");
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x1C, 0xF0, 0x1C, 0xFF, 0x1C, 0xF0, 0x1C, 0xFF}));
  });
}

TEST_F(KeyboardEntry, OptionIndex1InAReleaseCellStoresTheMakeCodesWithTheMakeMarkAlone) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.optCodeType[1]);
    hand.DblClick(dialog.msgScanCodes, 2, 2);
    StrokeA();
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Make + "]");
    EXPECT_EQ(Bytes(Buffer(2, 2)), (std::vector<int>{0xFF, 0x1C, 0xFF}));
  });
}

TEST_F(KeyboardEntry, OptionIndex2InAPressCellStoresTheBreakCodesWithTheBreakMarkAlone) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.optCodeType[2]);
    hand.DblClick(dialog.msgScanCodes, 4, 1);
    StrokeA();
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Break + "]");
    EXPECT_EQ(Bytes(Buffer(4, 1)), (std::vector<int>{0xFF, 0xF0, 0x1C, 0xFF}));
  });
}

TEST_F(KeyboardEntry, StrokesFollowTheCellThatIsClickedDuringCapture) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.Click(dialog.msgScanCodes, 3, 2);
    StrokeA();
    EXPECT_EQ(dialog.msgScanCodes.CellAt(3, 2).text, "[a" + Both + "]");
    EXPECT_EQ(Buffer(1, 1).NextValue, 0);
  });
}

TEST_F(KeyboardEntry, UnbalancedRowIsMarkedAfterAStroke) {
  surroundings.Settings().Option(1, True);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.optCodeType[1]);
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    StrokeA();
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 0).text, "X");
  });
}

// A stroke of a letter takes three codes, and both end marks of the empty buffers are allowed for.
TEST_F(KeyboardEntry, ALayerTakesCodesWhileTheReckoningStaysBelow43) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    for (int i = 0; i < 14; ++i) StrokeA();
    const std::string full = dialog.msgScanCodes.Text();
    const auto codes = Buffer(1, 1);
    EXPECT_EQ(codes.NextValue, 14 * 4);
    StrokeA();
    EXPECT_EQ(dialog.msgScanCodes.Text(), full);
    EXPECT_EQ(Buffer(1, 1), codes);
    EXPECT_TRUE(Capturing());
    EXPECT_TRUE(platform.Messages().Shown().empty());
  });
}

TEST_F(KeyboardEntry, ALayerOfADeviceInterfaceTakesCodesWhileTheReckoningStaysBelow22) {
  element->VantaEnabled(True);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    for (int i = 0; i < 9; ++i) StrokeA();
    EXPECT_EQ(Buffer(1, 1).NextValue, 7 * 4);
  });
}

TEST_F(KeyboardEntry, AStrokeThatStoresOnlyPressCodesCountsWithItsReleaseCodes) {
  Buffer(1, 1, CodesOfLength(42));
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.optCodeType[1]);
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    StrokeA();  // one code would fit, three do not
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_EQ(Buffer(1, 1).NextValue, 43);
  });
}

// Keys while capture is off.

TEST_F(KeyboardEntry, DeleteTakesTheFirstGroup) {
  element->PressKeyDefLayer1("[a" + Both + "][b" + Both + "]");
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF, 0x32, 0xFF}));
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown(key::Delete, 0);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[b" + Both + "]");
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x32, 0xFF}));
  });
}

TEST_F(KeyboardEntry, BackspaceTakesTheLastGroup) {
  element->PressKeyDefLayer1("[a" + Both + "][b" + Both + "]");
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF, 0x32, 0xFF}));
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown(key::Back, 0);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Both + "]");
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x1C, 0xFF}));
  });
}

TEST_F(KeyboardEntry, DeleteOfTheOnlyGroupEmptiesTheTextAndSetsNextValueToZero) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF}));
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown(key::Delete, 0);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_EQ(Buffer(1, 1).NextValue, 0);
  });
}

TEST_F(KeyboardEntry, BackspaceOnAnEmptyCellLeavesTextAndBufferEmpty) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    const auto before = Buffer(1, 1);
    hand.KeyDown(key::Back, 0);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_EQ(Buffer(1, 1), before);
  });
}

TEST_F(KeyboardEntry, DeletingUpdatesTheRowMarks) {
  surroundings.Settings().Option(1, True);
  element->PressKeyDefLayer1("[a" + Make + "][b" + Break + "]");
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 0).text, "1");
    hand.KeyDown(key::Delete, 0);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 0).text, "X");
  });
}

TEST_F(KeyboardEntry, DeleteInTheNoteEditsTheNoteAndTheCurrentCell) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  element->ButtonNotes("xyz");
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Tab(dialog.sstScanCode, 2);
    hand.Focus(dialog.txtButtonNotes);
    hand.KeyDown(key::Delete, 0);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).text, "");
    EXPECT_EQ(dialog.txtButtonNotes.Text(), "yz");
  });
}

TEST_F(KeyboardEntry, DeleteOnALedElementHitsTheHiddenFirstCell) {
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF}));
  OpenFor(Led, [this](frmConfigurationDialog&, Hand& hand) {
    hand.KeyDown(key::Delete, 0);
    EXPECT_EQ(Buffer(1, 1).NextValue, 0);
  });
}

TEST_F(KeyboardEntry, ControlCAndControlVCopyAndPasteTheCell) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF}));
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown('C', key::ControlBit);
    hand.Cell(dialog.msgScanCodes, 4, 1);
    hand.KeyDown('V', key::ControlBit);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Both + "]");
    EXPECT_EQ(Bytes(Buffer(4, 1)), (std::vector<int>{0xFF, 0x1C, 0xFF}));
  });
}

TEST_F(KeyboardEntry, CAndVWithoutControlDoNothing) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown('C', 0);
    EXPECT_EQ(Module().udtScanCodeClipboard.Valid, False);
    hand.KeyDown('C', key::ControlBit);
    hand.Cell(dialog.msgScanCodes, 4, 1);
    hand.KeyDown('V', key::ShiftBit);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
  });
}

TEST_F(KeyboardEntry, ControlBitCountsAmongOthers) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog&, Hand& hand) {
    hand.KeyDown('C', key::ControlBit | key::AltBit);
    EXPECT_EQ(Module().udtScanCodeClipboard.Valid, True);
  });
}

TEST_F(KeyboardEntry, ShiftF10OpensTheMenuAtTheCurrentCell) {
  bool placedMenu = false;
  float menuX = 0, menuY = 0;
  platform.Modal().onPopup = [&](Form&, MenuItem&, bool placed, float x, float y) {
    placedMenu = placed;
    menuX = x;
    menuY = y;
  };
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Cell(dialog.msgScanCodes, 3, 2);
    hand.KeyDown(key::F10, key::ShiftBit);
    EXPECT_EQ(dialog.OpenPopup(), &dialog.MNU_POPUP);
    EXPECT_TRUE(placedMenu);
    EXPECT_EQ(menuX, dialog.msgScanCodes.Left() + dialog.msgScanCodes.CellLeft());
    EXPECT_EQ(menuY, dialog.msgScanCodes.Top() + dialog.msgScanCodes.CellTop());
  });
}

TEST_F(KeyboardEntry, F10OpensTheMenuWithShiftAloneOnly) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    for (const int shift : {0, 2, 3, 4, 5}) {
      hand.KeyDown(key::F10, static_cast<std::int16_t>(shift));
      EXPECT_EQ(dialog.OpenPopup(), nullptr) << shift;
    }
  });
}

TEST_F(KeyboardEntry, AMenuThatCannotOpenIsNotSeen) {
  platform.faults.Turn(Fault::Popup, true);
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown(key::F10, key::ShiftBit);
    hand.MouseDown(dialog.msgScanCodes, 2, 0, 10, 10);
    EXPECT_TRUE(dialog.IsShown());
  });
}

TEST_F(KeyboardEntry, FormKeyDownLeavesTheKeyToTheControl) {
  Open([](frmConfigurationDialog&, Hand& hand) { EXPECT_EQ(hand.KeyDown('V', key::ControlBit), 'V'); });
}

TEST_F(KeyboardEntry, DeleteWithoutAnElementTakesTheTextAndEndsQuietly) {
  surroundings.Settings().Option(1, True);
  element->PressKeyDefLayer1("[a" + Make + "]");
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Module().ctlCurrentElement = nullptr;
    hand.KeyDown(key::Delete, 0);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).text, "");
    Module().ctlCurrentElement = element;
  });
}

}  // namespace

}  // namespace plexel
