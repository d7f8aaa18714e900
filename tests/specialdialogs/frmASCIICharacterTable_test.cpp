#include "specialdialogs/frmASCIICharacterTable.h"

#include <gtest/gtest.h>

#include "forms/hand.h"
#include "scancodes/scancode_session.h"
#include "services/dialogs.h"

namespace plexel {
namespace {

class Session : public ScanCodeSession {
 public:
  Session() {
    FormDirectory::Instance().Add(dialogs::frmASCIICharacterTable,
                                  [] { return std::make_unique<frmASCIICharacterTable>(); });
  }
  void Open(const std::function<void(frmASCIICharacterTable&, Hand&)>& act) {
    Show<frmASCIICharacterTable>(dialogs::frmASCIICharacterTable, [&](frmASCIICharacterTable& table) {
      Hand hand(table);
      act(table, hand);
    });
  }
};

/// Clicks on the cell of a code.
void ClickCode(frmASCIICharacterTable& table, Hand& hand, int code) {
  hand.Click(table.msgASCIICodes, (code - 1) / 15, (code - 1) % 15);
}

TEST(AsciiCharacterTable, CaptionsAreFetchedOneByOne) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand&) {
    EXPECT_EQ(table.Caption(), "text 2800");
    EXPECT_EQ(table.labASCIITableTitle.Caption(), "text 2801");
    EXPECT_EQ(table.cmdOK.Caption(), "text 100");
    EXPECT_EQ(table.cmdCancel.Caption(), "text 101");
    EXPECT_EQ(table.cmdHelp.Caption(), "text 103");
  });
}

TEST(AsciiCharacterTable, CellsHoldTheCharactersOfTheCodePageRowByRow) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand&) {
    const Grid& grid = table.msgASCIICodes;
    EXPECT_EQ(grid.CellAt(0, 0).text, "\x01");
    EXPECT_EQ(grid.CellAt(4, 4).text, "A");
    EXPECT_EQ(grid.CellAt(8, 7).text, "\u20AC");
    EXPECT_EQ(grid.CellAt(16, 14).text, "\u00FF");
    EXPECT_EQ(grid.Rows() * grid.Cols(), 255);
    EXPECT_EQ(grid.FixedRows() + grid.FixedCols(), 0);
    for (int col = 0; col < grid.Cols(); ++col) EXPECT_EQ(grid.ColWidth(col), 300);
    EXPECT_TRUE(grid.CellAt(3, 3).centred);
  });
}

TEST(AsciiCharacterTable, ColoursChangeBehind33AndBehind128) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand&) {
    const auto colour = [&](int code) {
      return table.msgASCIICodes.CellAt((code - 1) / 15, (code - 1) % 15).foreColor;
    };
    EXPECT_EQ(colour(1), 255);
    EXPECT_EQ(colour(33), 255);
    EXPECT_EQ(colour(34), 0);
    EXPECT_EQ(colour(128), 0);
    EXPECT_EQ(colour(129), 16711680);
    EXPECT_EQ(colour(255), 16711680);
  });
}

TEST(AsciiCharacterTable, ItOpensWithoutAChoice) {
  Session session;
  Module().intAsciiResult = 77;
  session.Open([](frmASCIICharacterTable& table, Hand&) {
    EXPECT_FALSE(table.txtBigCharacter.Visible());
    EXPECT_EQ(table.stbStatus.SimpleText(), "");
    EXPECT_EQ(Module().intAsciiResult, 77);
  });
}

TEST(AsciiCharacterTable, AClickChoosesTheCodeOfTheCell) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    ClickCode(table, hand, 65);
    EXPECT_EQ(Module().intAsciiResult, 65);
    EXPECT_EQ(table.stbStatus.SimpleText(), "Code:0x41 (65d)");
    ClickCode(table, hand, 1);
    EXPECT_EQ(table.stbStatus.SimpleText(), "Code:0x1 (1d)");
    ClickCode(table, hand, 255);
    EXPECT_EQ(Module().intAsciiResult, 255);
    EXPECT_EQ(table.stbStatus.SimpleText(), "Code:0xFF (255d)");
    EXPECT_TRUE(table.msgASCIICodes.HasFocus());
  });
}

TEST(AsciiCharacterTable, ShowingTheBigCharacterBringsTheFocusToTheGrid) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand&) {
    table.cmdOK.SetFocus();
    table.ShowBigCharacter();
    EXPECT_TRUE(table.msgASCIICodes.HasFocus());
  });
}

TEST(AsciiCharacterTable, TheBigCharacterLiesCentredOverItsCell) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    ClickCode(table, hand, 200);
    const Grid& grid = table.msgASCIICodes;
    const TextBox& box = table.txtBigCharacter;
    EXPECT_TRUE(box.Visible());
    EXPECT_EQ(box.Text(), "\u00C8");
    EXPECT_EQ(box.ForeColor(), 16711680);
    EXPECT_EQ(box.Width(), 600);
    EXPECT_EQ(box.Height(), 2 * grid.CellHeight());
    EXPECT_EQ(box.Left() + box.Width() / 2, grid.Left() + grid.CellLeft() + grid.CellWidth() / 2);
    EXPECT_EQ(box.Top() + box.Height() / 2, grid.Top() + grid.CellTop() + grid.CellHeight() / 2);
  });
}

TEST(AsciiCharacterTable, ReturnInTheGridChoosesAndLeavesTheDialogOpen) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    hand.Cell(table.msgASCIICodes, 4, 4);
    hand.Focus(table.msgASCIICodes);
    hand.Key(key::Return, 0, U'\r');
    EXPECT_TRUE(table.IsShown());
    EXPECT_TRUE(table.txtBigCharacter.Visible());
    EXPECT_EQ(Module().intAsciiResult, 65);
  });
}

TEST(AsciiCharacterTable, AnyOtherCharacterInTheGridHidesTheBox) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    ClickCode(table, hand, 65);
    hand.KeyPress('x');
    EXPECT_FALSE(table.txtBigCharacter.Visible());
    EXPECT_EQ(Module().intAsciiResult, 65);
  });
}

TEST(AsciiCharacterTable, AnArrowHidesTheBoxAndKeepsTheChoice) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    ClickCode(table, hand, 65);
    hand.KeyDown(key::Right, 0);
    EXPECT_FALSE(table.txtBigCharacter.Visible());
    EXPECT_EQ(table.stbStatus.SimpleText(), "Code:0x41 (65d)");
    hand.Click(table.cmdOK);
    EXPECT_FALSE(table.IsShown());
  });
  EXPECT_EQ(Module().intAsciiResult, 65);
}

TEST(AsciiCharacterTable, ScrollingHidesTheBox) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    ClickCode(table, hand, 65);
    table.msgASCIICodes.Height(1000);
    hand.Scroll(table.msgASCIICodes, 2, 0);
    EXPECT_FALSE(table.txtBigCharacter.Visible());
  });
}

TEST(AsciiCharacterTable, AllCellsAreInView) {
  frmASCIICharacterTable table;
  EXPECT_GE(table.msgASCIICodes.RowsInView(), 17);
  EXPECT_GE(table.msgASCIICodes.Width(), 15 * 300);
}

TEST(AsciiCharacterTable, TheBoxHandsTheFocusBackToTheForm) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    ClickCode(table, hand, 65);
    hand.Focus(table.txtBigCharacter);
    EXPECT_EQ(table.Focus(), nullptr);
  });
}

TEST(AsciiCharacterTable, ADoubleClickChoosesAndLeavesTheDialogOpen) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    hand.DblClick(table.msgASCIICodes, 4, 4);
    EXPECT_EQ(Module().intAsciiResult, 65);
    EXPECT_TRUE(table.IsShown());
  });
}

TEST(AsciiCharacterTable, OkWithoutAClickHandsBackTheLastChoiceOrZero) {
  Session session;
  const auto ok = [](frmASCIICharacterTable& table, Hand& hand) { hand.Click(table.cmdOK); };
  session.Open(ok);
  EXPECT_EQ(Module().intAsciiResult, 0);
  Module().intAsciiResult = 66;
  session.Open(ok);
  EXPECT_EQ(Module().intAsciiResult, 66);
}

/// The result after a click on code 65 and a way to leave the dialog.
std::uint16_t ResultAfter(const std::function<void(frmASCIICharacterTable&, Hand&)>& leave) {
  Session session;
  session.Open([&](frmASCIICharacterTable& table, Hand& hand) {
    ClickCode(table, hand, 65);
    leave(table, hand);
    EXPECT_FALSE(table.IsShown());
  });
  return Module().intAsciiResult;
}

TEST(AsciiCharacterTable, CancelTakesTheChoiceBack) {
  EXPECT_EQ(ResultAfter([](frmASCIICharacterTable& table, Hand& hand) { hand.Click(table.cmdCancel); }), 65535);
  EXPECT_EQ(ResultAfter([](frmASCIICharacterTable&, Hand& hand) { hand.KeyDown(key::Escape, 0); }), 65535);
}

TEST(AsciiCharacterTable, TheCloseBoxTakesTheChoiceBack) {
  EXPECT_EQ(ResultAfter([](frmASCIICharacterTable&, Hand& hand) { hand.Close(); }), 65535);
}

TEST(AsciiCharacterTable, UnloadingByTheProgramKeepsTheChoice) {
  EXPECT_EQ(ResultAfter([](frmASCIICharacterTable& table, Hand&) { table.Unload(); }), 65);
}

TEST(AsciiCharacterTable, HelpOpensItsTopic) {
  Session session;
  session.Open([](frmASCIICharacterTable& table, Hand& hand) { hand.Click(table.cmdHelp); });
  ASSERT_EQ(session.platform.Help().Shown().size(), 1U);
  EXPECT_EQ(session.platform.Help().Shown()[0].topic, 2602);
}

TEST(AsciiCharacterTable, FailingTextsLeaveTheCellsUsable) {
  Session session;
  session.platform.faults.Turn(Fault::Language, true);
  session.Open([](frmASCIICharacterTable& table, Hand& hand) {
    ClickCode(table, hand, 65);
    EXPECT_EQ(Module().intAsciiResult, 65);
  });
}

}  // namespace
}  // namespace plexel
