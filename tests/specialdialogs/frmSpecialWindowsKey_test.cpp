#include "specialdialogs/frmSpecialWindowsKey.h"

#include <gtest/gtest.h>

#include "services/dialogs.h"
#include "specialdialogs/special_dialog_session.h"

namespace plexel {
namespace {

class Session : public SpecialDialogSession<frmSpecialWindowsKey> {
 public:
  Session() : SpecialDialogSession(dialogs::frmSpecialWindowsKey) {}
};

TEST(SpecialWindowsKey, AllShortCutsStandInTheListInTheirOrder) {
  Session session;
  session.Open([](frmSpecialWindowsKey& dialog) {
    std::vector<std::string> expected;
    for (int number = 2610; number <= 2626; ++number) expected.push_back("text " + std::to_string(number));
    expected.insert(expected.end(), {"text 10928", "text 10929"});
    EXPECT_EQ(dialog.cmbSpecialFunction.Items(), expected);
    EXPECT_EQ(dialog.cmbSpecialFunction.Text(), "text 2610");
  });
  EXPECT_EQ(session.platform.faults.Calls(Fault::Capability), 0);
}

TEST(SpecialWindowsKey, TheFormIsTranslatedAtLoad) {
  Session session;
  session.Open([](frmSpecialWindowsKey& dialog) {
    EXPECT_EQ(dialog.Caption(), "text 2015");
    EXPECT_EQ(dialog.labTitel.Caption(), "text 2016");
    EXPECT_EQ(dialog.cmdOK.Caption(), "text 100");
    EXPECT_EQ(dialog.cmdCancel.Caption(), "text 101");
    EXPECT_EQ(dialog.cmdHelp.Caption(), "text 103");
  });
}

TEST(SpecialWindowsKey, EachEntryStoresTheSequencesOfItsIndex) {
  struct Row {
    const char* text;
    const char* codes;
  };
  constexpr Row rows[] = {{"text 2610", "FF 14 11 E0 71 E0 F0 71 F0 11 F0 14 FF"},
                          {"text 2611", "FF 11 0D F0 0D F0 11 FF"},
                          {"text 2612", "FF 11 76 F0 76 F0 11 FF"},
                          {"text 2613", "FF E0 1F E0 F0 1F FF"},
                          {"text 2614", "FF E0 27 E0 F0 27 FF"},
                          {"text 2615", "FF 08 F0 08 FF"},
                          {"text 2626", "FF 5F F0 5F FF"},
                          {"text 10928", "FF 14 12 76 F0 76 F0 12 F0 14 FF"},
                          {"text 10929", "FF 11 0C F0 0C F0 11 FF"}};
  for (const Row& row : rows) {
    Session session;
    session.Take(row.text);
    EXPECT_EQ(session.codes, row.codes) << row.text;
    EXPECT_EQ(session.text, "[old][" + std::string(row.text) + M + B + "]");
    EXPECT_EQ(session.mark, "1");
  }
}

TEST(SpecialWindowsKey, WithMakeOnlyTheRowIsUnbalanced) {
  Session session;
  session.Take("text 2610", [](StandInConfigurationDialog& dialog) { dialog.optCodeType[1].Value(true); });
  EXPECT_EQ(session.codes, "FF 14 11 E0 71 FF");
  EXPECT_EQ(session.text, "[old][text 2610" + M + "]");
  EXPECT_EQ(session.mark, "X");
}

TEST(SpecialWindowsKey, WithBreakOnlyTheBreakCodesAreStored) {
  Session session;
  session.Take("text 2611", [](StandInConfigurationDialog& dialog) { dialog.optCodeType[2].Value(true); });
  EXPECT_EQ(session.codes, "FF F0 0D F0 11 FF");
  EXPECT_EQ(session.text, "[old][text 2611" + B + "]");
}

TEST(SpecialWindowsKey, MakeOnPressAndBreakOnReleaseLeaveTheRowBalanced) {
  Session session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    const auto take = [&] {
      session.Show<frmSpecialWindowsKey>(dialogs::frmSpecialWindowsKey,
                                         [](frmSpecialWindowsKey& special) { Hand(special).Click(special.cmdOK); });
    };
    dialog.optCodeType[1].Value(true);
    take();
    EXPECT_EQ(dialog.CellText(1, 0), "X");
    dialog.optCodeType[2].Value(true);
    dialog.msgScanCodes.Current(1, 2);
    take();
    EXPECT_EQ(dialog.CellText(1, 0), "1");
  });
  EXPECT_EQ(Used(session.Record().strLayer1ReleaseScanCode), "FF E0 F0 71 F0 11 F0 14 FF");
}

TEST(SpecialWindowsKey, SquareBracketsBecomeRound) {
  Session session;
  session.surroundings.Language().Set(2613, "Win [left]");
  session.Take("Win [left]");
  EXPECT_EQ(session.text, "[old][Win (left)" + M + B + "]");
  EXPECT_EQ(session.codes, "FF E0 1F E0 F0 1F FF");
}

TEST(SpecialWindowsKey, TheThirdEntryIsComparedAheadOfTheSecond) {
  Session session;
  session.surroundings.Language().Set(2611, "same");
  session.surroundings.Language().Set(2612, "same");
  session.Take("same");
  EXPECT_EQ(session.codes, "FF 11 76 F0 76 F0 11 FF");
}

TEST(SpecialWindowsKey, OfOtherEqualTextsTheFirstInTheListIsStored) {
  Session session;
  session.surroundings.Language().Set(10928, "same");
  session.surroundings.Language().Set(10929, "same");
  session.Take("same");
  EXPECT_EQ(session.codes, "FF 14 12 76 F0 76 F0 12 F0 14 FF");
}

TEST(SpecialWindowsKey, RoomIsNeededForBothSequencesWhateverIsStored) {
  Session session;
  const auto makeOnly = [](std::int32_t limit) {
    return [limit](StandInConfigurationDialog& dialog) {
      dialog.optCodeType[1].Value(true);
      Module().lngMaxScanCodes = limit;
    };
  };
  session.Take("text 2610", makeOnly(9));
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.codes, "FF");
  EXPECT_EQ(session.mark, "1");
  session.Take("text 2610", makeOnly(10));
  EXPECT_EQ(session.codes, "FF 14 11 E0 71 FF");
}

TEST(SpecialWindowsKey, ATextThatIsNoneStoresNothingAndUpdatesTheRowMarks) {
  Session session;
  session.Take("none", [](StandInConfigurationDialog& dialog) { dialog.msgScanCodes.Text("[old" + M + "]"); });
  EXPECT_EQ(session.text, "[old" + M + "]");
  EXPECT_EQ(session.codes, "FF");
  EXPECT_EQ(session.mark, "X");
}

TEST(SpecialWindowsKey, CancelStoresNothing) {
  Session session;
  session.Open([](frmSpecialWindowsKey& dialog) {
    Hand(dialog).KeyDown(key::Escape, 0);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.mark, "");
}

TEST(SpecialWindowsKey, HelpOpensItsTopic) {
  Session session;
  session.Open([](frmSpecialWindowsKey& dialog) { Hand(dialog).Click(dialog.cmdHelp); });
  ASSERT_EQ(session.platform.Help().Shown().size(), 1U);
  EXPECT_EQ(session.platform.Help().Shown()[0].topic, 2600);
}

TEST(SpecialWindowsKey, AFailingTextKeepsTheEntriesAheadOfIt) {
  Session session;
  session.Open([&](frmSpecialWindowsKey& dialog) {
    const int all = dialog.cmbSpecialFunction.ListCount();
    session.platform.faults.Arm(Fault::Language, 3);
    dialog.FillShortCutList();
    EXPECT_EQ(dialog.cmbSpecialFunction.ListCount(), all + 2);
  });
}

TEST(SpecialWindowsKey, AFailingTextEndsOkAndLeavesTheDialogOpen) {
  Session session;
  session.Open([&](frmSpecialWindowsKey& dialog) {
    session.platform.faults.Turn(Fault::Language, true);
    Hand(dialog).Click(dialog.cmdOK);
    EXPECT_TRUE(dialog.IsShown());
  });
  EXPECT_EQ(session.text, "[old]");
}

}  // namespace
}  // namespace plexel
