#include "configdialog/dialog_fixture.h"
#include "services/dialogs.h"

namespace plexel {

namespace {

/// A form that stands in for a child dialog and closes at once.
class ChildForm : public Form {
 public:
  using Form::Form;
};

class PopupMenu : public ConfigurationDialog {
 protected:
  PopupMenu() {
    for (const FormName name : {dialogs::frmASCIICharacterTable, dialogs::frmSpecialIPCKey,
                                dialogs::frmSpecialWindowsKey, dialogs::frmNonStandardScancodes}) {
      FormDirectory::Instance().Add(name, [name] { return std::make_unique<ChildForm>(name); });
    }
  }
  /// The character table hands back this code.
  void Choose(std::uint16_t code) {
    onChild = [code](Form&) { Module().intAsciiResult = code; };
  }
  /// Opens the menu on a cell and picks an entry.
  static void Pick(frmConfigurationDialog& dialog, Hand& hand, int row, int col, MenuItem& entry) {
    hand.Cell(dialog.msgScanCodes, row, col);
    hand.KeyDown(key::F10, key::ShiftBit);
    hand.Menu(entry);
  }
};

TEST_F(PopupMenu, Character65IsTypedOnTheKeypadWithLeftAltHeld) {
  Choose(65);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(Bytes(Buffer(1, 1)),
              (std::vector<int>{0xFF, 0x11, 0x74, 0xF0, 0x74, 0x73, 0xF0, 0x73, 0xF0, 0x11, 0xFF}));
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[ASCII:65" + Both + "]");
  });
  EXPECT_EQ(shown, (std::vector<std::string>{dialogs::frmConfigurationDialog, dialogs::frmASCIICharacterTable}));
  EXPECT_EQ(owners[1], dialogs::frmConfigurationDialog);
}

TEST_F(PopupMenu, Character9IsOneDigit) {
  Choose(9);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x11, 0x7D, 0xF0, 0x7D, 0xF0, 0x11, 0xFF}));
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[ASCII:9" + Both + "]");
  });
}

TEST_F(PopupMenu, Character255TakesTwelveCodes) {
  Choose(255);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(Buffer(1, 1).NextValue, 12 + 1);
  });
}

TEST_F(PopupMenu, Character0IsTheDigitZero) {
  Choose(0);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x11, 0x70, 0xF0, 0x70, 0xF0, 0x11, 0xFF}));
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[ASCII:0" + Both + "]");
  });
}

TEST_F(PopupMenu, ACancelledTableLeavesEverythingAsItWas) {
  Choose(65535);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    const auto before = Buffer(1, 1);
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(Buffer(1, 1), before);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
  });
}

TEST_F(PopupMenu, AReleaseCellTakesTheSequenceUnchangedAsMakeBytes) {
  Choose(9);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 3, 2, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(Bytes(Buffer(3, 2)), (std::vector<int>{0xFF, 0x11, 0x7D, 0xF0, 0x7D, 0xF0, 0x11, 0xFF}));
  });
}

TEST_F(PopupMenu, TheBreakOnlyOptionChangesNothingOfACharacter) {
  Choose(9);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.optCodeType[2]);
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(Bytes(Buffer(1, 1)), (std::vector<int>{0xFF, 0x11, 0x7D, 0xF0, 0x7D, 0xF0, 0x11, 0xFF}));
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[ASCII:9" + Both + "]");
  });
}

TEST_F(PopupMenu, ACharacterGoesBehindTheGroupsOfTheCell) {
  Choose(9);
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[a" + Both + "][ASCII:9" + Both + "]");
  });
}

TEST_F(PopupMenu, ACharacterWithoutRoomLeavesCellAndBufferAsTheyWereAndTheTableCloses) {
  Choose(100);
  Buffer(2, 1, CodesOfLength(40));
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 2, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(Buffer(2, 1), CodesOfLength(40));
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_EQ(FormDirectory::Instance().Open(dialogs::frmASCIICharacterTable), nullptr);
    EXPECT_TRUE(platform.Messages().Shown().empty());
  });
}

TEST_F(PopupMenu, TheRoomForACharacterCountsTheLengthOfItsSequence) {
  Choose(9);
  Buffer(1, 1, CodesOfLength(38));  // 39 + 0 + 6 - 3 is 42
  Buffer(2, 1, CodesOfLength(39));  // 40 + 0 + 6 - 3 is 43
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "[ASCII:9" + Both + "]");
    Pick(dialog, hand, 2, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
  });
}

TEST_F(PopupMenu, ATableThatCannotBeShownInsertsNothing) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Module().intAsciiResult = 65;
    platform.faults.Turn(Fault::Show, true);
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_TRUE(dialog.IsShown());
  });
}

TEST_F(PopupMenu, EachDialogEntryShowsItsDialogOwnedByThisOne) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 1, 1, dialog.MNU_SPECIALKEY);
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_WINDOWSKEY);
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_NONSTANDARDCODE);
  });
  EXPECT_EQ(shown, (std::vector<std::string>{dialogs::frmConfigurationDialog, dialogs::frmSpecialIPCKey,
                                             dialogs::frmSpecialWindowsKey, dialogs::frmNonStandardScancodes}));
  EXPECT_EQ(owners, (std::vector<std::string>{"HostForm", dialogs::frmConfigurationDialog,
                                              dialogs::frmConfigurationDialog, dialogs::frmConfigurationDialog}));
}

TEST_F(PopupMenu, ADialogThatCannotBeShownIsNotSeen) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    platform.faults.Turn(Fault::Show, true);
    Pick(dialog, hand, 1, 1, dialog.MNU_SPECIALKEY);
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_WINDOWSKEY);
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_NONSTANDARDCODE);
    EXPECT_TRUE(dialog.IsShown());
  });
}

TEST_F(PopupMenu, CaptureIsOffWhileAChildDialogIsOpen) {
  bool capturing = true;
  onChild = [&](Form&) { capturing = Capturing() || Hooked(); };
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.MouseDown(dialog.msgScanCodes, 2, 0, 10, 10);
    hand.Menu(dialog.MNU_SPECIALKEY);
  });
  EXPECT_FALSE(capturing);
}

TEST_F(PopupMenu, CopyAndPasteWorkOnTheCurrentCell) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Buffer(1, 1, Codes({0xFF, 0x1C, 0xFF}));
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    Pick(dialog, hand, 1, 1, dialog.MNU_POPUP_COPY);
    Pick(dialog, hand, 4, 2, dialog.MNU_POPUP_PASTE);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(4, 2).text, "[a" + Both + "]");
    EXPECT_EQ(Bytes(Buffer(4, 2)), (std::vector<int>{0xFF, 0x1C, 0xFF}));
  });
}

TEST_F(PopupMenu, PasteIsDisabledUntilTheFirstCopy) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown(key::F10, key::ShiftBit);
    EXPECT_THROW(hand.Menu(dialog.MNU_POPUP_PASTE), Failure);
  });
}

TEST_F(PopupMenu, ControlVAheadOfAnyCopyDoesNothing) {
  Module().udtScanCodeClipboard = {True, CodesOfLength(2), "[other element]"};
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown('V', key::ControlBit);
    EXPECT_EQ(dialog.msgScanCodes.Text(), "");
    EXPECT_EQ(Buffer(1, 1).NextValue, 0);
  });
}

TEST_F(PopupMenu, ReopeningTheDialogEmptiesTheClipboard) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog&, Hand& hand) { hand.KeyDown('C', key::ControlBit); });
  EXPECT_EQ(Module().udtScanCodeClipboard.Valid, True);
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(Module().udtScanCodeClipboard.Valid, False);
    EXPECT_FALSE(dialog.MNU_POPUP_PASTE.Enabled());
  });
}

TEST_F(PopupMenu, ACharacterDoesNotUpdateTheRowMarks) {
  Choose(9);
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Cell(dialog.msgScanCodes, 1, 1);
    dialog.msgScanCodes.Text("[a" + Make + "]");
    surroundings.Settings().Option(1, True);
    hand.KeyDown(key::F10, key::ShiftBit);
    hand.Menu(dialog.MNU_POPUP_ASCII);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 0).text, "1");
  });
}

}  // namespace

}  // namespace plexel
