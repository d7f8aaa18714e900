#include "forms/grid_shot.h"

#include "test_form.h"

namespace plexel {
namespace {

/// Six rows and four columns, one of each fixed; two rows behind the fixed one are in view.
struct ShotForm : TestForm {
  Grid grid{*this, "grid", 6, 4, 1, 1};
  ShotForm() {
    grid.RowHeight(250);
    for (int col = 0; col < grid.Cols(); ++col) grid.ColWidth(col, 500 + 100 * col);
    grid.Place(0, 0, 2000, 3 * 250 + 100);
  }
  GridShot Take() const { return GridShot::Of(grid); }
};

TEST(GridShot, OfNoGridShowsNothing) {
  const GridShot shot;
  EXPECT_EQ(shot.Rows() + shot.Cols() + shot.fixedRows + shot.fixedCols, 0);
  EXPECT_EQ(shot.topRow + shot.leftCol + shot.rowsInView + shot.rowHeight, 0);
  EXPECT_TRUE(shot.IsCurrent(0, 0));
  EXPECT_EQ(shot.width, 0);
  EXPECT_EQ(shot.height, 0);
  EXPECT_FALSE(shot.focus || shot.showsEnd);
  EXPECT_TRUE(shot.enabled);
}

TEST(GridShot, HoldsWhatTheGridShows) {
  ShotForm form;
  form.grid.Current(2, 3);
  form.grid.Text("x");
  form.grid.ShowsEnd(true);
  const GridShot shot = form.Take();
  EXPECT_EQ(shot.Rows(), 6);
  EXPECT_EQ(shot.Cols(), 4);
  EXPECT_EQ(shot.At(2, 3).text, "x");
  EXPECT_TRUE(shot.IsCurrent(2, 3));
  EXPECT_TRUE(shot.ShowsEnd(2, 3));
  EXPECT_FALSE(shot.ShowsEnd(2, 2));
  EXPECT_TRUE(shot.IsFixed(0, 2));
  EXPECT_TRUE(shot.IsFixed(2, 0));
  EXPECT_FALSE(shot.IsFixed(1, 1));
  EXPECT_EQ(shot.widths, (std::vector<int>{500, 600, 700, 800}));
}

TEST(GridShot, IsTheSameAsLongAsNothingIsSeenOfAChange) {
  ShotForm form;
  const GridShot before = form.Take();
  EXPECT_EQ(form.Take(), before);
  const std::vector<std::function<void()>> changes = {
      [&] { form.grid.Text("text"); },      [&] { form.grid.CellForeColor(5); }, [&] { form.grid.CellBackColor(5); },
      [&] { form.grid.CellCentred(true); }, [&] { form.grid.ColWidth(1, 333); }, [&] { form.grid.RowHeight(300); },
      [&] { form.grid.Current(2, 1); },     [&] { form.grid.Current(2, 2); },    [&] { form.grid.ScrollTo(2, 1); },
      [&] { form.grid.SetFocus(); },        [&] { form.grid.Enabled(false); },   [&] { form.grid.ShowsEnd(true); },
      [&] { form.grid.Width(1500); },       [&] { form.grid.Height(1500); }};
  GridShot last = before;
  for (std::size_t change = 0; change < changes.size(); ++change) {
    changes[change]();
    EXPECT_FALSE(form.Take() == last) << change;
    last = form.Take();
  }
  form.grid.ToolTipText("unseen");
  form.grid.Refresh();
  EXPECT_EQ(form.Take(), last);
}

TEST(GridShot, CellsLieBesideAndBelowEachOther) {
  const ShotForm form;
  const GridShot shot = form.Take();
  EXPECT_EQ(shot.PlaceOf(0, 0), (GridPlace{0, 0, 500, 250}));
  EXPECT_EQ(shot.PlaceOf(2, 3), (GridPlace{1800, 500, 800, 250}));
}

TEST(GridShot, WhatIsScrolledOutHasNoPlaceAndFixedCellsStay) {
  ShotForm form;
  form.grid.ScrollTo(3, 2);
  const GridShot shot = form.Take();
  EXPECT_TRUE(shot.PlaceOf(2, 2).IsEmpty());
  EXPECT_TRUE(shot.PlaceOf(3, 1).IsEmpty());
  EXPECT_EQ(shot.PlaceOf(3, 2), (GridPlace{500, 250, 700, 250}));
  EXPECT_EQ(shot.PlaceOf(0, 2), (GridPlace{500, 0, 700, 250}));
  EXPECT_EQ(shot.PlaceOf(4, 0), (GridPlace{0, 500, 500, 250}));
}

TEST(GridShot, TheRowBelowTheFixedScrollsOutLikeAnyOther) {
  ShotForm form;
  form.grid.ScrollTo(2, 1);
  const GridShot shot = form.Take();
  EXPECT_TRUE(shot.PlaceOf(1, 1).IsEmpty());
  EXPECT_FALSE(shot.PlaceOf(2, 1).IsEmpty());
}

TEST(GridShot, WidthsThatTheUserMayChangeKeepAnEdgeForTheMouse) {
  ShotForm form;
  form.grid.ColWidth(0, 5000);
  form.grid.ColWidth(1, 0);
  form.grid.ColWidth(2, 9000);
  EXPECT_EQ(form.Take().widths, (std::vector<int>{5000, 0, 9000, 800}));
  form.grid.UserResizing(true);
  const GridShot shot = form.Take();
  // A fixed column takes half of the grid; behind another a piece of the next one is in view.
  EXPECT_EQ(shot.widths, (std::vector<int>{1000, 120, 1000 - 240, 1000 - 240}));
  EXPECT_EQ(shot.WidthWithin(0, 700), 700);
  EXPECT_EQ(shot.WidthWithin(0, 1700), 1000);
  EXPECT_EQ(shot.WidthWithin(1, 9000), 1000 - 240);
  EXPECT_EQ(shot.WidthWithin(3, -5), 120);
  form.grid.Width(100);
  EXPECT_EQ(form.Take().widths, std::vector<int>(4, 120));
}

TEST(GridShot, TellsWhetherAllComesIntoView) {
  ShotForm form;
  EXPECT_TRUE(form.Take().IsTall());
  EXPECT_TRUE(form.Take().IsWide());
  EXPECT_EQ(form.Take().HeightBelow(), 850 - 6 * 250);
  form.grid.Place(0, 0, 2600, 6 * 250);
  EXPECT_FALSE(form.Take().IsTall());
  EXPECT_FALSE(form.Take().IsWide());
  EXPECT_EQ(form.Take().HeightBelow(), 0);
}

TEST(GridShot, APlaceWithoutWidthOrHeightIsEmpty) {
  EXPECT_FALSE((GridPlace{0, 0, 1, 1}).IsEmpty());
  EXPECT_TRUE((GridPlace{5, 5, 0, 1}).IsEmpty());
  EXPECT_TRUE((GridPlace{5, 5, 1, 0}).IsEmpty());
  EXPECT_TRUE((GridPlace{5, 5, 1, -1}).IsEmpty());
}

}  // namespace
}  // namespace plexel
