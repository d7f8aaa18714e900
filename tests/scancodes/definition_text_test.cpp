#include "scancodes/definition_text.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "scancodes/scancode_session.h"

namespace plexel {
namespace {

const std::string one = "[Ctrl Left+a" + M + B + "]", two = "[ASCII:65" + M + "]";

TEST(DefinitionText, RemovingTheFirstOfTwoGroupsLeavesTheSecond) {
  EXPECT_EQ(RemoveFirstDefinitionText(one + two), two);
}

TEST(DefinitionText, RemovingTheFirstOfOneGroupLeavesNothing) { EXPECT_EQ(RemoveFirstDefinitionText(one), ""); }

TEST(DefinitionText, RemovingTheFirstNeedsAClosingBracket) {
  EXPECT_EQ(RemoveFirstDefinitionText("[abc"), "");
  EXPECT_EQ(RemoveFirstDefinitionText(""), "");
}

TEST(DefinitionText, RemovingTheFirstKeepsAllBehindTheFirstClosingBracket) {
  EXPECT_EQ(RemoveFirstDefinitionText("ä]ö]ü"), "ö]ü");
}

TEST(DefinitionText, RemovingTheLastOfTwoGroupsLeavesTheFirst) { EXPECT_EQ(RemoveLastDefinitionText(one + two), one); }

TEST(DefinitionText, RemovingTheLastNeedsAnOpeningBracket) {
  EXPECT_EQ(RemoveLastDefinitionText("abc]"), "");
  EXPECT_EQ(RemoveLastDefinitionText(""), "");
}

TEST(DefinitionText, RemovingTheLastKeepsAllAheadOfTheLastOpeningBracket) {
  EXPECT_EQ(RemoveLastDefinitionText("ä[ö[ü"), "ä[ö");
}

TEST(DefinitionText, StrippingDropsEveryBracketAndMark) {
  EXPECT_EQ(StripDefinitionMarks(one + two), "Ctrl Left+aASCII:65");
  EXPECT_EQ(StripDefinitionMarks(""), "");
  EXPECT_EQ(StripDefinitionMarks(M + B + "[" + M + M + "]"), "");
}

TEST(DefinitionText, StrippingKeepsOtherCharactersOfTheSameBytes) {
  EXPECT_EQ(StripDefinitionMarks("\u2038\u203B" + M), "\u2038\u203B");
}

TEST(DefinitionText, RoundBracketsReplaceEverySquareOne) { EXPECT_EQ(RoundBrackets("[a] [b]"), "(a) (b)"); }

TEST(DefinitionText, AGroupCarriesTheMarksOfItsCodeType) {
  EXPECT_EQ(DefinitionGroup("a", 0), "[a" + M + B + "]");
  EXPECT_EQ(DefinitionGroup("a", 1), "[a" + M + "]");
  EXPECT_EQ(DefinitionGroup("a", 2), "[a" + B + "]");
}

TEST(DefinitionText, AnAppendedTextFollowsTheCellInRoundBracketsWithTheSelectedMarks) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    dialog.msgScanCodes.Current(2, 1);
    dialog.msgScanCodes.Text(one);
    AppendSpecialDefinition("Alt [left]");
    EXPECT_EQ(dialog.CellText(2, 1), one + "[Alt (left)" + M + B + "]");
    dialog.optCodeType[1].Value(true);
    int asked = 0;
    dialog.onCodeTypeAsked = [&] {
      ++asked;
      EXPECT_FALSE(dialog.msgScanCodes.Enabled());
    };
    AppendSpecialDefinition("b");
    EXPECT_GT(asked, 0);
    dialog.optCodeType[2].Value(true);
    AppendSpecialDefinition("c");
    EXPECT_EQ(dialog.CellText(2, 1), one + "[Alt (left)" + M + B + "][b" + M + "][c" + B + "]");
    EXPECT_TRUE(dialog.msgScanCodes.Enabled());
  });
}

TEST(DefinitionText, AppendingWithoutADialogEndsQuietly) {
  ScanCodeSession session;
  EXPECT_NO_THROW(AppendSpecialDefinition("a"));
}

/// The row marks after texts have been put into the first row.
GridCell MarkOf(StandInConfigurationDialog& dialog, const std::string& press, const std::string& release) {
  dialog.msgScanCodes.Current(1, 1);
  dialog.msgScanCodes.Text(press);
  dialog.msgScanCodes.Current(1, 2);
  dialog.msgScanCodes.Text(release);
  UpdateGridRowMarks();
  return dialog.msgScanCodes.CellAt(1, 0);
}

TEST(GridRowMarks, BothMarksInOneCellAreBalanced) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    const GridCell mark = MarkOf(dialog, "[a" + M + B + "]", "");
    EXPECT_EQ(mark.text, "1");
    EXPECT_EQ(mark.foreColor, 0);
  });
}

TEST(GridRowMarks, AMakeMarkWithoutABreakMarkShowsARedX) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    const GridCell mark = MarkOf(dialog, "[a" + M + "]", "");
    EXPECT_EQ(mark.text, "X");
    EXPECT_EQ(mark.foreColor, 255);
  });
}

TEST(GridRowMarks, ABreakMarkInTheReleaseCellTakesTheXAway) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    MarkOf(dialog, "[a" + M + "]", "");
    const GridCell mark = MarkOf(dialog, "[a" + M + "]", "[a" + B + "]");
    EXPECT_EQ(mark.text, "1");
    EXPECT_EQ(mark.foreColor, 0);
  });
}

TEST(GridRowMarks, MoreBreakMarksThanMakeMarksShowAnXToo) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    EXPECT_EQ(MarkOf(dialog, "[a" + M + B + "]", "[a" + B + "]").text, "X");
    EXPECT_EQ(MarkOf(dialog, "[a" + M + "][b" + M + "]", "[a" + B + "][b" + B + "]").text, "1");
  });
}

TEST(GridRowMarks, EveryRowHasItsOwnMarkAndTheCurrentCellStays) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    dialog.msgScanCodes.Current(4, 1);
    dialog.msgScanCodes.Text("[a" + M + "]");
    dialog.msgScanCodes.Current(3, 2);
    UpdateGridRowMarks();
    EXPECT_EQ(dialog.CellText(1, 0) + dialog.CellText(2, 0) + dialog.CellText(3, 0) + dialog.CellText(4, 0), "123X");
    EXPECT_EQ(dialog.CellText(0, 0), "");
    EXPECT_EQ(dialog.msgScanCodes.Row(), 3);
    EXPECT_EQ(dialog.msgScanCodes.Col(), 2);
  });
}

TEST(GridRowMarks, WithoutTheOptionNothingIsMarked) {
  for (const Boolean option : {False, Boolean::Raw(1)}) {
    ScanCodeSession session;
    session.surroundings.Settings().Option(1, option);
    session.InConfigurationDialog(
        [](StandInConfigurationDialog& dialog) { EXPECT_EQ(MarkOf(dialog, "[a" + M + "]", "").text, ""); });
  }
}

TEST(GridRowMarks, AFailingOptionEndsQuietly) {
  ScanCodeSession session;
  session.platform.faults.Turn(Fault::Settings, true);
  session.InConfigurationDialog(
      [](StandInConfigurationDialog& dialog) { EXPECT_EQ(MarkOf(dialog, "[a" + M + "]", "").text, ""); });
}

TEST(GridCellColours, ResettingPaintsTheDataCellsWhiteAndNothingElse) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    Grid& grid = dialog.msgScanCodes;
    for (int row = 0; row < 5; ++row) {
      for (int col = 0; col < 3; ++col) {
        grid.Current(row, col);
        grid.CellBackColor(65535);
      }
    }
    grid.Current(2, 2);
    grid.Visible(false);
    const int refreshes = grid.Refreshes();
    int entered = 0;
    grid.OnEnterCell = [&] {
      ++entered;
      EXPECT_FALSE(grid.Redraw());
    };
    ResetGridCellColours();
    grid.OnEnterCell = nullptr;
    EXPECT_GT(entered, 0);
    for (int row = 0; row < 5; ++row) {
      for (int col = 0; col < 3; ++col) {
        EXPECT_EQ(grid.CellAt(row, col).backColor, row == 0 || col == 0 ? 65535 : 0xFFFFFF) << row << ',' << col;
      }
    }
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_TRUE(grid.Redraw());
    EXPECT_EQ(grid.Refreshes(), refreshes + 1);
    EXPECT_TRUE(grid.Visible());
  });
}

}  // namespace
}  // namespace plexel
