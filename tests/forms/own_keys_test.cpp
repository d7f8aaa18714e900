#include "forms/hand.h"
#include "test_form.h"

namespace plexel {
namespace {

struct ChoiceForm : TestForm {
  ComboBox cmbA{*this, "cmbA"};
  OptionButton opt0{*this, "opt", 0}, opt1{*this, "opt", 1}, opt2{*this, "opt", 2};
  TabStrip sstA{*this, "sstA", 4};
  Hand hand{*this};
  ChoiceForm() {
    for (int entry = 0; entry < 20; ++entry) cmbA.AddItem(std::to_string(entry));
    for (Control* control : Controls()) control->OnClick = [this, control] { Note(control->FullName()); };
  }
  int AfterKey(int entry, std::int16_t keyCode) {
    cmbA.ListIndex(entry);
    Taken();
    cmbA.SetFocus();
    hand.KeyDown(keyCode, 0);
    return cmbA.ListIndex();
  }
};

TEST(ComboKeys, PickNeighbours) {
  ChoiceForm form;
  EXPECT_EQ(form.AfterKey(3, key::Down), 4);
  EXPECT_EQ(form.log, Strings{"cmbA"});
  EXPECT_EQ(form.AfterKey(3, key::Up), 2);
}

TEST(ComboKeys, DoNothingAtTheEnds) {
  ChoiceForm form;
  EXPECT_EQ(form.AfterKey(19, key::Down), 19);
  EXPECT_EQ(form.AfterKey(19, key::PageDown), 19);
  EXPECT_EQ(form.AfterKey(19, key::End), 19);
  EXPECT_EQ(form.AfterKey(0, key::Up), 0);
  EXPECT_EQ(form.AfterKey(0, key::PageUp), 0);
  EXPECT_EQ(form.AfterKey(0, key::Home), 0);
  EXPECT_TRUE(form.log.empty());
}

TEST(ComboKeys, PassOverAPageAndStopAtTheEnds) {
  ChoiceForm form;
  EXPECT_EQ(form.AfterKey(0, key::PageDown), 8);
  EXPECT_EQ(form.AfterKey(3, key::PageDown), 11);
  EXPECT_EQ(form.AfterKey(15, key::PageDown), 19);
  EXPECT_EQ(form.AfterKey(11, key::PageUp), 3);
  EXPECT_EQ(form.AfterKey(3, key::PageUp), 0);
}

TEST(ComboKeys, GoToTheEnds) {
  ChoiceForm form;
  EXPECT_EQ(form.AfterKey(3, key::Home), 0);
  EXPECT_EQ(form.AfterKey(3, key::End), 19);
}

TEST(ComboKeys, DownwardsPickTheFirstEntryWhenNoneIsPicked) {
  ChoiceForm form;
  EXPECT_EQ(form.AfterKey(-1, key::Down), 0);
  EXPECT_EQ(form.AfterKey(-1, key::PageDown), 0);
}

TEST(ComboKeys, UpwardsPickNothingWhenNoneIsPicked) {
  ChoiceForm form;
  EXPECT_EQ(form.AfterKey(-1, key::Up), -1);
  EXPECT_EQ(form.AfterKey(-1, key::PageUp), -1);
  EXPECT_TRUE(form.log.empty());
}

TEST(ComboKeys, DoNothingInAnEmptyList) {
  ChoiceForm form;
  form.cmbA.Clear();
  form.cmbA.SetFocus();
  for (const std::int16_t keyCode : {key::Down, key::Up, key::Home, key::End, key::PageDown, key::PageUp}) {
    form.hand.KeyDown(keyCode, 0);
  }
  EXPECT_EQ(form.cmbA.ListIndex(), -1);
  EXPECT_TRUE(form.log.empty());
}

TEST(ComboKeys, ThatOpenTheListPickNothing) {
  ChoiceForm form;
  form.cmbA.SetFocus();
  form.hand.KeyDown(key::F4, 0);
  form.hand.KeyDown(key::Down, key::AltBit);
  EXPECT_EQ(form.cmbA.ListIndex(), -1);
}

TEST(ComboKeys, TakenAwayByAHandlerPickNothing) {
  ChoiceForm form;
  form.cmbA.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  EXPECT_EQ(form.AfterKey(3, key::PageDown), 3);
}

TEST(ComboKeys, TypeNothingIntoTheText) {
  ChoiceForm form;
  form.cmbA.SetFocus();
  form.cmbA.Text("own");
  form.hand.Key('A', 0, 'a');
  EXPECT_EQ(form.cmbA.Text(), "own");
}

TEST(OptionKeys, MoveFocusAndChoice) {
  ChoiceForm form;
  form.opt0.Value(true);
  form.opt0.SetFocus();
  form.Taken();
  form.hand.KeyDown(key::Down, 0);
  EXPECT_TRUE(form.opt1.Value());
  EXPECT_TRUE(form.opt1.HasFocus());
  EXPECT_FALSE(form.opt0.Value());
  EXPECT_EQ(form.log, Strings{"opt(1)"});
}

TEST(OptionKeys, WrapAround) {
  ChoiceForm form;
  form.opt0.SetFocus();
  form.hand.KeyDown(key::Left, 0);
  EXPECT_TRUE(form.opt2.Value());
  form.hand.KeyDown(key::Right, 0);
  EXPECT_TRUE(form.opt0.Value());
}

TEST(OptionKeys, SkipWhatIsNotUsable) {
  ChoiceForm form;
  form.opt1.Enabled(false);
  form.opt0.SetFocus();
  form.hand.KeyDown(key::Down, 0);
  EXPECT_TRUE(form.opt2.HasFocus());
  form.hand.KeyDown(key::Up, 0);
  EXPECT_TRUE(form.opt0.HasFocus());
}

TEST(OptionKeys, DoNothingWithoutAnotherChoice) {
  ChoiceForm form;
  form.opt1.Enabled(false);
  form.opt2.Visible(false);
  form.opt0.SetFocus();
  form.hand.KeyDown(key::Down, 0);
  EXPECT_TRUE(form.opt0.HasFocus());
  EXPECT_FALSE(form.opt0.Value());
  EXPECT_TRUE(form.log.empty());
}

TEST(OptionKeys, SetTheChoiceWithSpace) {
  ChoiceForm form;
  form.opt1.SetFocus();
  form.hand.KeyDown(key::Space, 0);
  form.hand.KeyUp(key::Space, 0);
  EXPECT_TRUE(form.opt1.Value());
  EXPECT_EQ(form.log, Strings{"opt(1)"});
}

TEST(TabStripKeys, BringTheNextPageThatIsOnToTheFront) {
  ChoiceForm form;
  form.sstA.TabEnabled(1, false);
  form.sstA.SetFocus();
  form.hand.KeyDown(key::Right, 0);
  EXPECT_EQ(form.sstA.Tab(), 2);
  form.hand.KeyDown(key::Left, 0);
  EXPECT_EQ(form.sstA.Tab(), 0);
  EXPECT_EQ(form.log, (Strings{"sstA", "sstA"}));
}

TEST(TabStripKeys, TurnPageByPage) {
  ChoiceForm form;
  form.sstA.SetFocus();
  std::vector<int> pages;
  for (const std::int16_t keyCode : {key::Right, key::Right, key::Right, key::Left, key::Left, key::Left}) {
    form.hand.KeyDown(keyCode, 0);
    pages.push_back(form.sstA.Tab());
  }
  EXPECT_EQ(pages, (std::vector<int>{1, 2, 3, 2, 1, 0}));
}

TEST(TabStripKeys, OtherThanLeftAndRightTurnNoPage) {
  ChoiceForm form;
  form.sstA.SetFocus();
  form.sstA.Tab(1);
  for (const std::int16_t keyCode : {key::Up, key::Down, key::Home, key::End, key::Space}) {
    form.hand.KeyDown(keyCode, 0);
    EXPECT_EQ(form.sstA.Tab(), 1) << keyCode;
  }
  EXPECT_TRUE(form.log.empty());
}

TEST(TabStripKeys, StayWhereEveryPageOnThatSideIsOff) {
  ChoiceForm form;
  form.sstA.TabEnabled(0, false);
  form.sstA.SetFocus();
  form.sstA.Tab(1);
  form.hand.KeyDown(key::Left, 0);
  EXPECT_EQ(form.sstA.Tab(), 1);
  EXPECT_TRUE(form.log.empty());
}

TEST(TabStripKeys, StopAtTheEnds) {
  ChoiceForm form;
  form.sstA.SetFocus();
  form.hand.KeyDown(key::Left, 0);
  EXPECT_EQ(form.sstA.Tab(), 0);
  form.sstA.Tab(2);
  form.sstA.TabEnabled(3, false);
  form.hand.KeyDown(key::Right, 0);
  EXPECT_EQ(form.sstA.Tab(), 2);
  EXPECT_TRUE(form.log.empty());
}

/// Nine data rows and three data columns, of which three rows and two columns are in view.
struct GridKeysForm : TestForm {
  Grid msgA{*this, "msgA", 10, 4, 1, 1};
  Hand hand{*this};
  GridKeysForm() {
    msgA.RowHeight(250);
    for (int col = 0; col < 4; ++col) msgA.ColWidth(col, 400);
    msgA.Place(0, 0, 1200, 1000);
    msgA.SetFocus();
    msgA.OnEnterCell = [this] { Note("EnterCell"); };
    msgA.OnScroll = [this] { Note("Scroll"); };
  }
  std::vector<int> AfterKey(int row, int col, std::int16_t keyCode, std::int16_t shift = 0) {
    msgA.Current(row, col);
    Taken();
    hand.KeyDown(keyCode, shift);
    return {msgA.Row(), msgA.Col()};
  }
};

using Pair = std::vector<int>;

TEST(GridKeys, MoveTheCurrentCell) {
  GridKeysForm form;
  EXPECT_EQ(form.AfterKey(2, 2, key::Left), (Pair{2, 1}));
  EXPECT_EQ(form.AfterKey(2, 2, key::Right), (Pair{2, 3}));
  EXPECT_EQ(form.AfterKey(2, 2, key::Up), (Pair{1, 2}));
  EXPECT_EQ(form.AfterKey(2, 2, key::Down), (Pair{3, 2}));
}

TEST(GridKeys, StopAtFixedCellsAndEdges) {
  GridKeysForm form;
  EXPECT_EQ(form.AfterKey(1, 1, key::Left), (Pair{1, 1}));
  EXPECT_EQ(form.AfterKey(1, 1, key::Up), (Pair{1, 1}));
  EXPECT_EQ(form.AfterKey(9, 3, key::Right), (Pair{9, 3}));
  EXPECT_EQ(form.AfterKey(9, 3, key::Down), (Pair{9, 3}));
}

TEST(GridKeys, GoToTheEndsOfTheRow) {
  GridKeysForm form;
  EXPECT_EQ(form.AfterKey(2, 2, key::Home), (Pair{2, 1}));
  EXPECT_EQ(form.AfterKey(2, 2, key::End), (Pair{2, 3}));
}

TEST(GridKeys, PassOverTheRowsInView) {
  GridKeysForm form;
  EXPECT_EQ(form.AfterKey(2, 2, key::PageDown), (Pair{5, 2}));
  EXPECT_EQ(form.AfterKey(8, 2, key::PageDown), (Pair{9, 2}));
  EXPECT_EQ(form.AfterKey(5, 2, key::PageUp), (Pair{2, 2}));
  EXPECT_EQ(form.AfterKey(2, 2, key::PageUp), (Pair{1, 2}));
}

TEST(GridKeys, ScrollTheCellIntoView) {
  GridKeysForm form;
  form.AfterKey(3, 1, key::Down);
  EXPECT_EQ(form.log, (Strings{"EnterCell", "Scroll"}));
  EXPECT_EQ(form.msgA.TopRow(), 2);
}

TEST(GridKeys, OfNoDirectionLeaveAFixedCellToo) {
  GridKeysForm form;
  EXPECT_EQ(form.AfterKey(0, 0, 'A'), (Pair{0, 0}));
  EXPECT_EQ(form.AfterKey(0, 0, key::Space), (Pair{0, 0}));
  EXPECT_EQ(form.AfterKey(0, 0, key::Down), (Pair{1, 1}));
}

TEST(GridKeys, WithControlOrAltMoveNothing) {
  GridKeysForm form;
  EXPECT_EQ(form.AfterKey(2, 2, key::Down, key::ControlBit), (Pair{2, 2}));
  EXPECT_EQ(form.AfterKey(2, 2, key::Down, key::AltBit), (Pair{2, 2}));
}

TEST(GridKeys, WithShiftMoveTheCell) {
  GridKeysForm form;
  EXPECT_EQ(form.AfterKey(2, 2, key::Down, key::ShiftBit), (Pair{3, 2}));
}

TEST(GridKeys, ComeAfterTheGridsOwnHandler) {
  GridKeysForm form;
  int rowThen = 0;
  form.msgA.OnKeyDown = [&](std::int16_t&, std::int16_t) { rowThen = form.msgA.Row(); };
  EXPECT_EQ(form.AfterKey(2, 2, key::Down), (Pair{3, 2}));
  EXPECT_EQ(rowThen, 2);
}

TEST(GridKeys, TakenAwayByAHandlerMoveNothing) {
  GridKeysForm form;
  form.msgA.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  EXPECT_EQ(form.AfterKey(2, 2, key::Down), (Pair{2, 2}));
}

TEST(ButtonKeys, ArrowsStayWhereThereIsNothingElse) {
  struct OneButton : TestForm {
    CommandButton cmdA{*this, "cmdA"};
    Hand hand{*this};
  } form;
  WhileShown(form, [&] {
    form.cmdA.SetFocus();
    form.hand.KeyDown(key::Right, 0);
    EXPECT_EQ(form.Focus(), &form.cmdA);
  });
}

TEST(ButtonKeys, AnArrowOfAButtonThatGaveTheFocusAwayDoesNothing) {
  struct ThreeButtons : TestForm {
    CommandButton cmdA{*this, "cmdA"}, cmdB{*this, "cmdB"}, cmdC{*this, "cmdC"};
    Hand hand{*this};
  } form;
  WhileShown(form, [&] {
    form.cmdA.SetFocus();
    form.cmdA.OnKeyDown = [&](std::int16_t&, std::int16_t) { form.cmdC.SetFocus(); };
    form.hand.KeyDown(key::Right, 0);
    EXPECT_EQ(form.Focus(), &form.cmdC);
  });
}

TEST(ButtonKeys, SpaceLetGoElsewherePressesNothing) {
  struct TwoButtons : TestForm {
    CommandButton cmdA{*this, "cmdA"}, cmdB{*this, "cmdB"};
    Hand hand{*this};
  } form;
  WhileShown(form, [&] {
    for (CommandButton* const button : {&form.cmdA, &form.cmdB}) {
      button->OnClick = [] { ADD_FAILURE() << "a button was pressed"; };
    }
    form.cmdA.SetFocus();
    form.hand.KeyDown(key::Space, 0);
    form.cmdB.SetFocus();
    form.hand.KeyUp(key::Space, 0);
  });
}

TEST(OptionKeys, AnArrowOnAPageThatTheKeyTurnedAwayPicksNothing) {
  struct PagesForm : TestForm {
    TabStrip sstA{*this, "sstA", 2};
    OptionButton opt0{*this, "opt", 0}, opt1{*this, "opt", 1};
    Hand hand{*this};
  } form;
  form.opt0.OnPage(form.sstA, 0);
  form.opt1.OnPage(form.sstA, 0);
  WhileShown(form, [&] {
    form.opt0.SetFocus();
    form.opt0.OnKeyDown = [&](std::int16_t&, std::int16_t) { form.sstA.Tab(1); };
    form.hand.KeyDown(key::Down, 0);
    EXPECT_FALSE(form.opt1.Value());
  });
}

TEST(OptionKeys, AnArrowThatClosesTheFormPicksNothing) {
  ChoiceForm form;
  WhileShown(form, [&] {
    form.opt0.SetFocus();
    form.opt1.OnGotFocus = [&] { form.Unload(); };
    form.hand.KeyDown(key::Down, 0);
  });
  EXPECT_FALSE(form.opt1.Value());
}

TEST(ButtonKeys, SpaceOnAButtonThatGaveTheFocusAwayPressesNothing) {
  struct TwoButtons : TestForm {
    CommandButton cmdA{*this, "cmdA"}, cmdB{*this, "cmdB"};
    Hand hand{*this};
  } form;
  WhileShown(form, [&] {
    for (CommandButton* const button : {&form.cmdA, &form.cmdB}) {
      button->OnClick = [] { ADD_FAILURE() << "a button was pressed"; };
    }
    form.cmdA.OnKeyDown = [&](std::int16_t&, std::int16_t) { form.cmdB.SetFocus(); };
    form.cmdA.SetFocus();
    form.hand.KeyDown(key::Space, 0);
    EXPECT_EQ(form.Focus(), &form.cmdB);
    form.hand.KeyUp(key::Space, 0);
  });
}

}  // namespace
}  // namespace plexel
