#include "scancodes/frmNonStandardScancodes.h"

#include <gtest/gtest.h>

#include "forms/hand.h"
#include "scancodes/memory_parameter_file.h"
#include "scancodes/scancode_session.h"
#include "services/dialogs.h"

namespace plexel {
namespace {

using Items = std::vector<std::string>;

/// The dialog over a configuration dialog whose cell (1, 1) holds "[old]".
class DialogSession : public ScanCodeSession {
 public:
  DialogSession() {
    surroundings.Settings().BasePath("C:\\Plexel");
    surroundings.ParameterFiles().Use(file);
    FormDirectory::Instance().Add(dialogs::frmNonStandardScancodes,
                                  [] { return std::make_unique<frmNonStandardScancodes>(); });
  }
  void Open(const std::function<void(frmNonStandardScancodes&)>& act,
            const std::function<void(StandInConfigurationDialog&)>& prepare = {}) {
    InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
      dialog.msgScanCodes.Text("[old]");
      if (prepare) prepare(dialog);
      Show<frmNonStandardScancodes>(dialogs::frmNonStandardScancodes, act);
      text = dialog.CellText(1, 1);
    });
    codes = Used(Record().strLayer1PressScanCode);
  }
  /// Picks an entry and presses OK, which must close the dialog.
  void Take(int entry, const std::function<void(StandInConfigurationDialog&)>& prepare = {}) {
    Open(
        [&](frmNonStandardScancodes& dialog) {
          Hand hand(dialog);
          hand.Select(dialog.cmbNonStandardScancodes, entry);
          hand.Click(dialog.cmdOK);
          EXPECT_FALSE(dialog.IsShown());
        },
        prepare);
  }

  MemoryParameterFile file{"C:\\Plexel\\NonStandardScancodes.cfg"};
  std::string text, codes;
};

TEST(NonStandardScancodes, NamesStandInTheListUpToTheFirstGap) {
  DialogSession session;
  session.file.SetEntry(1, "Zulu", "1", "2");
  session.file.SetEntry(2, "Alpha", "1", "2");
  session.file.SetEntry(4, "Lost", "1", "2");
  session.Open([](frmNonStandardScancodes& dialog) {
    EXPECT_EQ(dialog.cmbNonStandardScancodes.Items(), (Items{"Zulu", "Alpha"}));
    EXPECT_EQ(dialog.cmbNonStandardScancodes.Text(), "Zulu");
  });
}

TEST(NonStandardScancodes, TheFormIsTranslatedAtLoad) {
  DialogSession session;
  session.Open([](frmNonStandardScancodes& dialog) {
    EXPECT_EQ(dialog.Caption(), "text 10815");
    EXPECT_EQ(dialog.labTitle.Caption(), "text 10816");
    EXPECT_EQ(dialog.cmdOK.Caption(), "text 100");
    EXPECT_EQ(dialog.cmdCancel.Caption(), "text 101");
    EXPECT_EQ(dialog.cmdHelp.Caption(), "text 103");
  });
}

TEST(NonStandardScancodes, AMissingFileLeavesTheListEmpty) {
  DialogSession session;
  session.Open([](frmNonStandardScancodes& dialog) {
    EXPECT_EQ(dialog.cmbNonStandardScancodes.ListCount(), 0);
    EXPECT_EQ(dialog.cmbNonStandardScancodes.Text(), "");
  });
}

TEST(NonStandardScancodes, OkWithAnEmptyListStoresAnEmptyGroup) {
  DialogSession session;
  session.Open([](frmNonStandardScancodes& dialog) { Hand(dialog).Click(dialog.cmdOK); });
  EXPECT_EQ(session.text, "[old][" + M + B + "]");
  EXPECT_EQ(session.codes, "FF FF");
}

TEST(NonStandardScancodes, OkStoresTheChosenSequenceUnderItsName) {
  DialogSession session;
  session.file.SetEntry(1, "One", "1", "2");
  session.file.SetEntry(2, "Zoom [in]", "E0:1F", "E0:F0:1F");
  session.Take(1);
  EXPECT_EQ(session.text, "[old][Zoom (in)" + M + B + "]");
  EXPECT_EQ(session.codes, "FF E0 1F E0 F0 1F FF");
}

TEST(NonStandardScancodes, ANameThatOccursTwiceStoresItsFirstEntry) {
  DialogSession session;
  session.file.SetEntry(1, "Same", "1", "2");
  session.file.SetEntry(2, "Same", "3", "4");
  session.Take(1);
  EXPECT_EQ(session.codes, "FF 01 02 FF");
}

TEST(NonStandardScancodes, WithBreakOnlyTheMakeCodesAreNotStored) {
  DialogSession session;
  session.file.SetEntry(1, "One", "E0:1F", "E0:F0:1F");
  session.Take(0, [](StandInConfigurationDialog& dialog) { dialog.optCodeType[2].Value(true); });
  EXPECT_EQ(session.text, "[old][One" + B + "]");
  EXPECT_EQ(session.codes, "FF E0 F0 1F FF");
}

TEST(NonStandardScancodes, AnEntryWithoutBreakCodesHasNone) {
  DialogSession session;
  session.file.Set(1, "REMARK001", "One");
  session.file.Set(1, "MAKECODE", "1C");
  session.Take(0);
  EXPECT_EQ(session.codes, "FF 1C FF");
}

TEST(NonStandardScancodes, TheValueFFSeparatesSubSequences) {
  DialogSession session;
  session.file.SetEntry(1, "One", "1:FF:2", "3:FF:4");
  session.Take(0);
  EXPECT_EQ(session.codes, "FF 01 02 FF 04 00 03 FF");
}

TEST(NonStandardScancodes, AGroupThatDoesNotFitClosesTheDialogWithoutChanges) {
  DialogSession session;
  session.file.SetEntry(1, "One", "1:2:3", "4");
  session.Take(0, [](StandInConfigurationDialog&) { Module().lngMaxScanCodes = 1; });
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.codes, "FF");
}

TEST(NonStandardScancodes, ACodeThatIsNoByteEndsOkAndLeavesTheDialogOpen) {
  for (const char* const code : {"100", "80000000"}) {
    DialogSession session;
    session.file.SetEntry(1, "One", code, "1");
    session.Open([](frmNonStandardScancodes& dialog) {
      Hand(dialog).Click(dialog.cmdOK);
      EXPECT_TRUE(dialog.IsShown());
    });
    EXPECT_EQ(session.text, "[old]");
    EXPECT_EQ(session.codes, "FF");
  }
}

TEST(NonStandardScancodes, AnEntryThatHasLeftTheFileStoresNothing) {
  DialogSession session;
  session.file.SetEntry(1, "One", "1", "2");
  session.Open([&](frmNonStandardScancodes& dialog) {
    session.file.Remove(1, "REMARK001");
    Hand(dialog).Click(dialog.cmdOK);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.codes, "FF");
}

TEST(NonStandardScancodes, CancelChangesNothing) {
  DialogSession session;
  session.file.SetEntry(1, "One", "1", "2");
  session.Open([](frmNonStandardScancodes& dialog) {
    Hand(dialog).Click(dialog.cmdCancel);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.codes, "FF");
}

TEST(NonStandardScancodes, ReturnIsOkAndEscapeIsCancel) {
  DialogSession session;
  session.file.SetEntry(1, "One", "1", "2");
  session.Open([](frmNonStandardScancodes& dialog) { Hand(dialog).KeyDown(key::Escape, 0); });
  EXPECT_EQ(session.codes, "FF");
  session.Open([](frmNonStandardScancodes& dialog) { Hand(dialog).KeyDown(key::Return, 0); });
  EXPECT_EQ(session.codes, "FF 01 02 FF");
}

TEST(NonStandardScancodes, TheListMovesWithTheArrowsAndTakesNoLetters) {
  DialogSession session;
  session.file.SetEntry(1, "One", "1", "2");
  session.file.SetEntry(2, "Two", "1", "2");
  session.Open([](frmNonStandardScancodes& dialog) {
    Hand hand(dialog);
    hand.Focus(dialog.cmbNonStandardScancodes);
    hand.KeyDown(key::Down, 0);
    EXPECT_EQ(dialog.cmbNonStandardScancodes.Text(), "Two");
    EXPECT_EQ(hand.KeyDown(key::Home, 0), 0);
    EXPECT_EQ(hand.KeyDown('O', 0), 0);
    EXPECT_EQ(hand.KeyPress('o'), 0);
    EXPECT_EQ(dialog.cmbNonStandardScancodes.Text(), "Two");
    hand.KeyDown(key::Up, 0);
    EXPECT_EQ(dialog.cmbNonStandardScancodes.Text(), "One");
  });
}

TEST(NonStandardScancodes, HelpOpensItsTopic) {
  DialogSession session;
  session.Open([&](frmNonStandardScancodes& dialog) { Hand(dialog).Click(dialog.cmdHelp); });
  ASSERT_EQ(session.platform.Help().Shown().size(), 1U);
  EXPECT_EQ(session.platform.Help().Shown()[0].topic, 2604);
}

TEST(NonStandardScancodes, FailingServicesOpenAnEmptyDialog) {
  for (const Fault fault : {Fault::Language, Fault::Settings, Fault::ParameterFiles}) {
    DialogSession session;
    session.file.SetEntry(1, "One", "1", "2");
    session.platform.faults.Turn(fault, true);
    session.Open([&](frmNonStandardScancodes& dialog) {
      EXPECT_EQ(dialog.cmbNonStandardScancodes.ListCount(), 0);
      EXPECT_NO_THROW(Hand(dialog).Click(dialog.cmdHelp));
    });
  }
}

TEST(NonStandardScancodes, AFailingReaderEndsOkAndStoresNothing) {
  DialogSession session;
  session.file.SetEntry(1, "One", "1", "2");
  session.Open([&](frmNonStandardScancodes& dialog) {
    session.platform.faults.Turn(Fault::ParameterFiles, true);
    Hand(dialog).Click(dialog.cmdOK);
    EXPECT_TRUE(dialog.IsShown());
  });
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.codes, "FF");
}

}  // namespace
}  // namespace plexel
