#include "forms/acting.h"
#include "test_form.h"

namespace plexel {
namespace {

/// Ten rows and six columns, one of each fixed; three data rows and two data columns are in view.
struct GridForm : TestForm {
  Grid msgA{*this, "msgA", 10, 6, 1, 1};
  GridForm() {
    msgA.RowHeight(250);
    for (int col = 0; col < msgA.Cols(); ++col) msgA.ColWidth(col, 400);
    msgA.Place(0, 0, 3 * 400 + 100, 4 * 250 + 100);
    msgA.OnEnterCell = [this] { Note("EnterCell"); };
    msgA.OnScroll = [this] { Note("Scroll"); };
  }
  std::vector<int> Cell() const { return {msgA.Row(), msgA.Col()}; }
  std::vector<int> View() const { return {msgA.TopRow(), msgA.LeftCol()}; }
};

using Pair = std::vector<int>;

TEST(Grid, StartsOnItsFirstCellThatIsNotFixed) {
  const GridForm form;
  EXPECT_EQ(form.Cell(), (Pair{1, 1}));
  EXPECT_EQ(form.View(), (Pair{1, 1}));
}

TEST(Grid, NeedsACellThatIsNotFixed) {
  const auto failureOf = [](int rows, int cols, int fixedRows, int fixedCols) {
    return FailureOf(FailureKind::InvalidCall, [=] {
      TestForm form;
      const Grid grid(form, "msgA", rows, cols, fixedRows, fixedCols);
    });
  };
  EXPECT_EQ(failureOf(1, 1, 1, 0), "msgA would have no cell that is not fixed");
  EXPECT_NE(failureOf(1, 1, 0, 1), "");
  EXPECT_NE(failureOf(2, 2, -1, 0), "");
  EXPECT_NE(failureOf(2, 2, 0, -1), "");
  EXPECT_EQ(failureOf(1, 1, 0, 0), "");
}

TEST(Grid, EntersACellOnlyWhenItChanges) {
  GridForm form;
  form.msgA.Row(1);
  EXPECT_TRUE(form.log.empty());
  form.msgA.Row(2);
  form.msgA.Col(3);
  EXPECT_EQ(form.Taken(), (Strings{"EnterCell", "EnterCell"}));
  form.msgA.Current(4, 5);
  EXPECT_EQ(form.Taken(), Strings{"EnterCell"});
}

TEST(Grid, TakesAFixedCellAsCurrentFromTheProgram) {
  GridForm form;
  form.msgA.Current(0, 0);
  form.msgA.Text("Layer");
  EXPECT_EQ(form.msgA.CellAt(0, 0).text, "Layer");
}

TEST(Grid, HasNoCellOutside) {
  GridForm form;
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.msgA.Row(10); }), "msgA has no cell (10, 1)");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.msgA.Col(-1); }), "msgA has no cell (1, -1)");
  EXPECT_NE(FailureOf(FailureKind::Index, [&] { form.msgA.CellAt(0, 6); }), "");
  EXPECT_EQ(form.Cell(), (Pair{1, 1}));
  EXPECT_TRUE(form.log.empty());
}

TEST(Grid, HasNoColumnOutside) {
  GridForm form;
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.msgA.ColWidth(6); }), "msgA has no cell (0, 6)");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.msgA.ColWidth(-1); }), "msgA has no cell (0, -1)");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.msgA.ColWidth(6, 1); }), "msgA has no cell (0, 6)");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.msgA.ScrollIntoView(10, 1); }), "msgA has no cell (10, 1)");
}

TEST(Grid, OfOneRowHasColumnsToo) {
  TestForm form;
  Grid grid(form, "msgB", 1, 2, 0, 0);
  grid.ColWidth(1, 300);
  EXPECT_EQ(grid.ColWidth(1), 300);
}

TEST(Grid, ColoursItsCurrentCell) {
  GridForm form;
  form.msgA.Current(2, 3);
  form.msgA.CellBackColor(65535);
  form.msgA.CellForeColor(255);
  form.msgA.CellCentred(true);
  const GridCell& cell = form.msgA.CellAt(2, 3);
  EXPECT_EQ(cell.backColor, 65535);
  EXPECT_EQ(cell.foreColor, 255);
  EXPECT_TRUE(cell.centred);
  EXPECT_EQ(form.msgA.CellAt(2, 2).backColor, 0xFFFFFF);
}

TEST(Grid, HasNoNegativeColumnWidth) {
  GridForm form;
  EXPECT_EQ(FailureOf(FailureKind::InvalidCall, [&] { form.msgA.ColWidth(1, -1); }),
            "msgA cannot have a column of negative width");
  EXPECT_NE(FailureOf(FailureKind::Index, [&] { form.msgA.ColWidth(6, 1); }), "");
  form.msgA.ColWidth(1, 0);
  EXPECT_EQ(form.msgA.ColWidth(1), 0);
}

TEST(Grid, PlacesItsCurrentCellAsScrolled) {
  GridForm form;
  form.msgA.Current(3, 2);
  EXPECT_FLOAT_EQ(form.msgA.CellLeft(), 800);
  EXPECT_FLOAT_EQ(form.msgA.CellTop(), 750);
  form.msgA.ScrollTo(2, 2);
  EXPECT_FLOAT_EQ(form.msgA.CellLeft(), 400);
  EXPECT_FLOAT_EQ(form.msgA.CellTop(), 500);
  EXPECT_FLOAT_EQ(form.msgA.CellWidth(), 400);
  EXPECT_FLOAT_EQ(form.msgA.CellHeight(), 250);
}

TEST(Grid, PlacesACellScrolledAwayBehindTheFixedOnes) {
  GridForm form;
  form.msgA.ScrollTo(3, 3);
  EXPECT_FLOAT_EQ(form.msgA.CellLeft(), 400 - 800);
  EXPECT_FLOAT_EQ(form.msgA.CellTop(), 250 - 500);
}

TEST(Grid, DoesNotScrollItsFixedCells) {
  GridForm form;
  form.msgA.Current(0, 0);
  form.msgA.ScrollTo(3, 3);
  EXPECT_FLOAT_EQ(form.msgA.CellLeft(), 0);
  EXPECT_FLOAT_EQ(form.msgA.CellTop(), 0);
}

TEST(Grid, ScrollsNoFurtherThanItsLastCellNeeds) {
  GridForm form;
  form.msgA.ScrollTo(99, 99);
  EXPECT_EQ(form.View(), (Pair{7, 4}));
  form.msgA.ScrollTo(-5, 0);
  EXPECT_EQ(form.View(), (Pair{1, 1}));
}

TEST(Grid, RaisesScrollOnlyWhenTheViewChanges) {
  GridForm form;
  form.msgA.ScrollTo(1, 1);
  EXPECT_TRUE(form.log.empty());
  form.msgA.ScrollTo(2, 1);
  form.msgA.ScrollTo(99, 1);
  form.msgA.ScrollTo(98, 1);
  EXPECT_EQ(form.log, (Strings{"Scroll", "Scroll"}));
}

TEST(Grid, ScrollsAsLittleAsBringsACellIntoView) {
  GridForm form;
  form.msgA.ScrollIntoView(3, 2);
  EXPECT_EQ(form.View(), (Pair{1, 1}));
  form.msgA.ScrollIntoView(4, 3);
  EXPECT_EQ(form.View(), (Pair{2, 2}));
  form.msgA.ScrollIntoView(9, 5);
  EXPECT_EQ(form.View(), (Pair{7, 4}));
  form.msgA.ScrollIntoView(6, 3);
  EXPECT_EQ(form.View(), (Pair{6, 3}));
  form.msgA.ScrollIntoView(0, 0);
  EXPECT_EQ(form.View(), (Pair{6, 3}));
  form.msgA.ScrollIntoView(1, 1);
  EXPECT_EQ(form.View(), (Pair{1, 1}));
}

TEST(Grid, WhoseColumnsFillItToTheEdgeShowsAllOfThem) {
  GridForm form;
  form.msgA.Width(3 * 400);
  form.msgA.ScrollIntoView(1, 3);
  EXPECT_EQ(form.View(), (Pair{1, 2}));
}

TEST(Grid, ScrollsToAColumnWiderThanItself) {
  GridForm form;
  form.msgA.ColWidth(3, 9000);
  form.msgA.ScrollIntoView(1, 3);
  EXPECT_EQ(form.View(), (Pair{1, 3}));
}

TEST(Grid, WithoutRoomShowsOneRow) {
  GridForm form;
  form.msgA.Height(0);
  EXPECT_EQ(form.msgA.RowsInView(), 1);
  form.msgA.Height(4 * 250);
  EXPECT_EQ(form.msgA.RowsInView(), 3);
}

TEST(Grid, WhoseRowsHaveNoHeightHasThemAllInView) {
  GridForm form;
  form.msgA.RowHeight(0);
  EXPECT_EQ(form.msgA.RowsInView(), form.msgA.Rows() - form.msgA.FixedRows());
  form.msgA.RowHeight(1);
  EXPECT_EQ(form.msgA.RowsInView(), 4 * 250 + 100 - 1);
}

TEST(Grid, WithRoomForAllDoesNotScroll) {
  GridForm form;
  form.msgA.Place(0, 0, 9000, 9000);
  form.msgA.ScrollTo(5, 5);
  EXPECT_EQ(form.View(), (Pair{1, 1}));
}

TEST(Grid, CountsItsRefreshes) {
  GridForm form;
  form.msgA.Redraw(false);
  EXPECT_FALSE(form.msgA.Redraw());
  form.msgA.Refresh();
  EXPECT_EQ(form.msgA.Refreshes(), 1);
}

TEST(Grid, HasNoCellAheadOfTheFirstAndBehindTheLast) {
  GridForm form;
  for (const auto& [row, col] : {std::pair{-1, 1}, {10, 1}, {1, -1}, {1, 6}}) {
    EXPECT_NE(FailureOf(FailureKind::Index, [&, row = row, col = col] { form.msgA.CellAt(row, col); }), "")
        << row << ' ' << col;
  }
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.msgA.CellAt(0, 0); }), "");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.msgA.CellAt(9, 5); }), "");
}

TEST(Grid, TellsTheColoursOfTheCurrentCellAlone) {
  GridForm form;
  form.msgA.CellBackColor(0xFFFF);
  form.msgA.CellForeColor(0xFF);
  EXPECT_EQ(form.msgA.CellBackColor(), 0xFFFF);
  EXPECT_EQ(form.msgA.CellForeColor(), 0xFF);
  form.msgA.Row(2);
  EXPECT_NE(form.msgA.CellBackColor(), 0xFFFF);
}

TEST(Grid, IsNotScrolledByAHandlerThatClosedTheForm) {
  GridForm form;
  WhileShown(form, [&] {
    form.msgA.OnEnterCell = [&] { form.Unload(); };
    MoveTo(form.msgA, 9, 5);
  });
  EXPECT_EQ(form.View(), (Pair{1, 1}));
}

}  // namespace
}  // namespace plexel
