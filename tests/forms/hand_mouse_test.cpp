#include "mouse_form.h"

namespace plexel {
namespace {

constexpr auto Invalid = FailureKind::InvalidCall;

TEST(Click, GivesTheFocusAheadOfItsEvent) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.cmdA); }), (Strings{"cmdA GotFocus", "cmdA Click"}));
}

TEST(Click, OnALabelLeavesTheFocus) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.labLink); }), Strings{"labLink Click"});
}

TEST(Click, GivesTheFocusToAControlWithoutTabStop) {
  MouseForm form;
  form.cmdA.TabStop(false);
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.cmdA); }), (Strings{"cmdA GotFocus", "cmdA Click"}));
}

TEST(Click, SetsAnOptionButton) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.opt1); }), (Strings{"opt(1) GotFocus", "opt(1) Click"}));
  EXPECT_TRUE(form.opt1.Value());
}

TEST(Click, OnTheOptionButtonThatIsSetRaisesNoClick) {
  MouseForm form;
  form.opt1.Value(true);
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.opt1); }), Strings{"opt(1) GotFocus"});
}

TEST(Click, OnAComboBoxOnlyGivesTheFocus) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.cmbA); }), Strings{"cmbA GotFocus"});
}

TEST(Click, IsRefusedByADisabledControlAndChangesNothing) {
  MouseForm form;
  form.cmdA.Enabled(false);
  EXPECT_EQ(form.Raised([&] {
    EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Click(form.cmdA); }), "cmdA is disabled");
    EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.DblClick(form.cmdA); }), "cmdA is disabled");
    EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.MouseDown(form.cmdA, 1, 0, 0, 0); }), "cmdA is disabled");
    EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Focus(form.cmdA); }), "cmdA is disabled");
  }),
            Strings{});
}

TEST(Act, OfEveryKindIsRefusedByADisabledControlAndChangesNothing) {
  MouseForm form;
  form.msgA.UserResizing(true);
  for (Control* control : form.Controls()) control->Enabled(false);
  const std::vector<std::pair<Control*, std::function<void()>>> acts = {
      {&form.cmdA, [&] { form.hand.Click(form.cmdA); }},
      {&form.msgA, [&] { form.hand.Click(form.msgA, 2, 2); }},
      {&form.txtA, [&] { form.hand.DblClick(form.txtA); }},
      {&form.msgA, [&] { form.hand.DblClick(form.msgA, 2, 2); }},
      {&form.labLink, [&] { form.hand.MouseDown(form.labLink, 1, 0, 0, 0); }},
      {&form.cmdA, [&] { form.hand.Focus(form.cmdA); }},
      {&form.cmbA, [&] { form.hand.Select(form.cmbA, 0); }},
      {&form.txtA, [&] { form.hand.Type(form.txtA, "x"); }},
      {&form.txtA, [&] { form.hand.Edit(form.txtA, "x", 0); }},
      {&form.msgA, [&] { form.hand.Cell(form.msgA, 2, 2); }},
      {&form.msgA, [&] { form.hand.ResizeColumn(form.msgA, 1, 500); }},
      {&form.msgA, [&] { form.hand.Scroll(form.msgA, 2, 1); }},
      {&form.sstA, [&] { form.hand.Tab(form.sstA, 1); }},
      {&form.sstA, [&] { form.hand.DblClickTab(form.sstA, 1); }},
  };
  for (std::size_t i = 0; i < acts.size(); ++i) {
    const auto& [control, act] = acts[i];
    EXPECT_EQ(form.Raised([&, &act = act, &control = control] {
      EXPECT_EQ(FailureOf(Invalid, act), control->FullName() + " is disabled") << "act " << i;
    }),
              Strings{})
        << "act " << i;
  }
  EXPECT_EQ(form.txtA.Text(), "");
  EXPECT_EQ(form.msgA.ColWidth(1), 960);
  EXPECT_EQ(form.msgA.Row(), 1);
  EXPECT_EQ(form.sstA.Tab(), 0);
}

TEST(Click, IsRefusedByAHiddenControl) {
  MouseForm form;
  form.labLink.Visible(false);
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Click(form.labLink); }), "labLink is hidden");
}

TEST(Click, IsRefusedOnAPageThatIsNotInFront) {
  MouseForm form;
  form.cmdA.OnPage(form.sstA, 1);
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Click(form.cmdA); }), "cmdA is on a page that is not in front");
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Focus(form.cmdA); }), "cmdA is on a page that is not in front");
}

TEST(Click, IsRefusedByAControlWithoutAFace) {
  TestForm form;
  ImageList list(form, "ilsA");
  EXPECT_EQ(FailureOf(Invalid, [&] { Hand(form).Click(list); }), "ilsA has no face");
}

TEST(Click, EndsWhenTheFocusEventClosesTheForm) {
  MouseForm form;
  form.txtA.OnGotFocus = [&] { form.Unload(); };
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.txtA); }), (Strings{"QueryUnload 1", "Unload"}));
}

TEST(Click, LetsTheFailureOfAHandlerPass) {
  MouseForm form;
  form.cmdA.OnClick = [] { throw Failure(FailureKind::Conversion, "no number"); };
  EXPECT_EQ(FailureOf(FailureKind::Conversion, [&] { form.hand.Click(form.cmdA); }), "no number");
}

TEST(Click, OnADataCellMakesItCurrentAheadOfItsEvent) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.msgA, 2, 2); }),
            (Strings{"msgA GotFocus", "msgA EnterCell", "msgA Click"}));
  EXPECT_EQ(form.msgA.Row(), 2);
  EXPECT_EQ(form.msgA.Col(), 2);
}

TEST(Click, OnAFixedCellLeavesTheCurrentCell) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.msgA, 0, 2); }), (Strings{"msgA GotFocus", "msgA Click"}));
  EXPECT_EQ(form.msgA.Row(), 1);
  EXPECT_EQ(form.msgA.Col(), 1);
}

TEST(Click, OutsideTheGridChangesNothing) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] {
    EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.hand.Click(form.msgA, 3, 1); }), "msgA has no cell (3, 1)");
  }),
            Strings{});
}

TEST(Click, OnAGridAsAWholeKeepsItsCell) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Click(form.msgA); }), (Strings{"msgA GotFocus", "msgA Click"}));
}

TEST(DblClick, FollowsItsFirstClick) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.DblClick(form.txtA); }),
            (Strings{"txtA GotFocus", "txtA Click", "txtA DblClick"}));
}

TEST(DblClick, OnACellMakesItCurrentFirst) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.DblClick(form.msgA, 2, 1); }),
            (Strings{"msgA GotFocus", "msgA EnterCell", "msgA Click", "msgA DblClick"}));
}

TEST(DblClick, DoesNotHappenWhenTheFirstClickClosesTheForm) {
  MouseForm form;
  form.cmdA.OnClick = [&] { form.Unload(); };
  EXPECT_EQ(form.Raised([&] { form.hand.DblClick(form.cmdA); }), (Strings{"cmdA GotFocus", "QueryUnload 1", "Unload"}));
}

TEST(DblClick, DoesNotHappenWhenTheFirstClickDisablesTheControl) {
  MouseForm form;
  form.cmdA.OnClick = [&] { form.cmdA.Enabled(false); };
  EXPECT_EQ(form.Raised([&] { form.hand.DblClick(form.cmdA); }), Strings{"cmdA GotFocus"});
}

TEST(MouseDown, TellsButtonShiftAndPlace) {
  MouseForm form;
  std::vector<float> seen;
  form.labLink.OnMouseDown = [&](std::int16_t button, std::int16_t shift, float x, float y) {
    seen = {static_cast<float>(button), static_cast<float>(shift), x, y};
  };
  form.hand.MouseDown(form.labLink, 4, 3, 10.5F, 20);
  EXPECT_EQ(seen, (std::vector<float>{4, 3, 10.5F, 20}));
}

TEST(MouseDown, OnAGridLeavesTheCurrentCell) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] {
    form.hand.MouseDown(form.msgA, 1, 0, 2000, 600);
    form.hand.MouseDown(form.msgA, 2, 0, 2000, 600);
  }),
            (Strings{"msgA GotFocus", "msgA MouseDown 1", "msgA MouseDown 2"}));
  EXPECT_EQ(form.msgA.Row(), 1);
}

TEST(MouseDown, OfTheRightButtonGivesTheFocusToGridsAndTextBoxesOnly) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] {
    form.hand.MouseDown(form.cmdA, 2, 0, 0, 0);
    form.hand.MouseDown(form.txtA, 2, 0, 0, 0);
    form.hand.MouseDown(form.msgA, 2, 0, 0, 0);
  }),
            (Strings{"cmdA MouseDown 2", "txtA GotFocus", "txtA MouseDown 2", "txtA LostFocus", "msgA GotFocus",
                     "msgA MouseDown 2"}));
}

TEST(Select, PicksTheEntryWithTheFocus) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Select(form.cmbA, 1); }), (Strings{"cmbA GotFocus", "cmbA Click"}));
  EXPECT_EQ(form.cmbA.Text(), "two");
}

TEST(Select, RefusesAnEntryThatIsNotThere) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] {
    EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.hand.Select(form.cmbA, 2); }), "cmbA has no entry 2");
    EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.hand.Select(form.cmbA, -1); }), "cmbA has no entry -1");
  }),
            Strings{});
}

TEST(Select, IsRefusedByADisabledBox) {
  MouseForm form;
  form.cmbA.Enabled(false);
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Select(form.cmbA, 0); }), "cmbA is disabled");
}

TEST(Edit, TakesOverTextAndCaret) {
  MouseForm form;
  int caretThen = -1;
  form.txtA.OnChange = [&] { caretThen = form.txtA.SelStart(); };
  form.hand.Edit(form.txtA, "abc", 2);
  EXPECT_EQ(form.txtA.Text(), "abc");
  EXPECT_EQ(caretThen, 2);
}

TEST(Edit, OfTheCaretAloneRaisesNoChange) {
  MouseForm form;
  form.txtA.Text("abc");
  EXPECT_EQ(form.Raised([&] { form.hand.Edit(form.txtA, "abc", 3); }), Strings{"txtA GotFocus"});
  EXPECT_EQ(form.txtA.SelStart(), 3);
}

TEST(Edit, OfALockedBoxMovesOnlyItsCaret) {
  MouseForm form;
  form.txtA.Text("abc");
  form.txtA.Locked(true);
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Edit(form.txtA, "ab", 2); }), "txtA is locked");
  form.hand.Edit(form.txtA, "abc", 1);
  EXPECT_EQ(form.txtA.Text(), "abc");
  EXPECT_EQ(form.txtA.SelStart(), 1);
}

TEST(Cell, BecomesCurrentWithTheFocusAndInView) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Cell(form.msgA, 2, 2); }),
            (Strings{"msgA GotFocus", "msgA EnterCell", "msgA Scroll"}));
  EXPECT_EQ(form.msgA.TopRow(), 2);
}

TEST(Cell, ThatIsFixedOrOutsideCannotBecomeCurrent) {
  MouseForm form;
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.hand.Cell(form.msgA, 0, 1); }), "msgA has a fixed cell there");
  EXPECT_NE(FailureOf(FailureKind::Index, [&] { form.hand.Cell(form.msgA, 1, 0); }), "");
  EXPECT_NE(FailureOf(FailureKind::Index, [&] { form.hand.Cell(form.msgA, 1, 3); }), "");
  EXPECT_EQ(form.Focus(), nullptr);
}

TEST(ResizeColumn, NeedsTheGridsLeave) {
  MouseForm form;
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.ResizeColumn(form.msgA, 1, 500); }), "msgA has columns of fixed width");
  EXPECT_EQ(form.msgA.ColWidth(1), 960);
  form.msgA.UserResizing(true);
  form.hand.ResizeColumn(form.msgA, 1, 500);
  EXPECT_EQ(form.msgA.ColWidth(1), 500);
}

TEST(Scroll, RaisesTheGridsEvent) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Scroll(form.msgA, 2, 1); }), Strings{"msgA Scroll"});
}

TEST(TabClick, BringsThePageToTheFrontAheadOfItsEvent) {
  MouseForm form;
  int front = -1;
  form.sstA.OnClick = [&] { front = form.sstA.Tab(); };
  form.hand.Tab(form.sstA, 2);
  EXPECT_EQ(front, 2);
}

TEST(TabClick, OnThePageInFrontRaisesClickToo) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Tab(form.sstA, 0); }), (Strings{"sstA GotFocus", "sstA Click"}));
}

TEST(TabClick, TwiceRaisesBothEvents) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.DblClickTab(form.sstA, 1); }),
            (Strings{"sstA GotFocus", "sstA Click", "sstA DblClick"}));
  EXPECT_EQ(form.sstA.Tab(), 1);
}

TEST(TabClick, IsRefusedByAPageThatIsOff) {
  MouseForm form;
  form.sstA.TabEnabled(1, false);
  EXPECT_EQ(form.Raised([&] {
    EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Tab(form.sstA, 1); }), "sstA has page 1 off");
    EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.hand.Tab(form.sstA, 3); }), "sstA has no page 3");
  }),
            Strings{});
  EXPECT_EQ(form.sstA.Tab(), 0);
}

TEST(HandMouse, WhatAClickTurnsOffIsNotClickedTwice) {
  MouseForm form;
  form.msgA.OnClick = [&] { form.msgA.Enabled(false); };
  form.sstA.OnClick = [&] { form.sstA.Enabled(false); };
  EXPECT_EQ(form.Raised([&] { form.hand.DblClick(form.msgA, 1, 1); }), Strings{"msgA GotFocus"});
  EXPECT_EQ(form.Raised([&] { form.hand.DblClickTab(form.sstA, 1); }), Strings{"sstA GotFocus"});
}

TEST(HandMouse, AFormThatClosesAsTheFocusComesTakesNoMore) {
  MouseForm form;
  form.sstA.OnGotFocus = [&] { form.Unload(); };
  form.sstA.OnClick = [&] { ADD_FAILURE() << "a click on a form that has closed"; };
  WhileShown(form, [&] {
    form.hand.Tab(form.sstA, 2);
    EXPECT_EQ(form.sstA.Tab(), 0);
  });
  form.msgA.OnGotFocus = [&] { form.Unload(); };
  WhileShown(form, [&] {
    form.hand.Click(form.msgA, 2, 2);
    EXPECT_EQ(form.msgA.Row(), 1);
  });
  form.txtA.OnGotFocus = [&] { form.Unload(); };
  WhileShown(form, [&] {
    form.hand.Type(form.txtA, "text");
    EXPECT_EQ(form.txtA.Text(), "");
  });
}

TEST(HandMouse, AFormThatAClickClosesIsNotClickedTwice) {
  MouseForm form;
  for (Control* const control : {static_cast<Control*>(&form.msgA), static_cast<Control*>(&form.sstA)}) {
    control->OnClick = [&] { form.Unload(); };
    control->OnDblClick = [] { ADD_FAILURE() << "a double click on a form that has closed"; };
  }
  WhileShown(form, [&] { form.hand.DblClick(form.msgA, 1, 1); });
  WhileShown(form, [&] { form.hand.DblClickTab(form.sstA, 1); });
  EXPECT_FALSE(form.IsShown());
}

}  // namespace
}  // namespace plexel
