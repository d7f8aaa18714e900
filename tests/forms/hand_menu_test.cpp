#include "mouse_form.h"

namespace plexel {
namespace {

constexpr auto Invalid = FailureKind::InvalidCall;

TEST(MenuChoice, ClosesTheMenuAheadOfItsEvent) {
  MouseForm form;
  form.OpenPopup(&form.mnuPopup);
  bool openThen = true;
  form.mnuCopy.OnClick = [&] { openThen = form.OpenPopup() != nullptr; };
  form.hand.Menu(form.mnuCopy);
  EXPECT_FALSE(openThen);
}

TEST(MenuChoice, CanBeMadeByAClickOnTheEntry) {
  MouseForm form;
  form.OpenPopup(&form.mnuPopup);
  form.hand.Click(form.mnuCopy);
  EXPECT_EQ(form.log, Strings{"MNU_COPY Click"});
}

TEST(MenuChoice, NeedsAnOpenMenu) {
  MouseForm form;
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Menu(form.mnuCopy); }), "no popup menu is open");
}

TEST(MenuChoice, IsRefusedByADisabledEntryASeparatorAndAStranger) {
  MouseForm form;
  form.OpenPopup(&form.mnuPopup);
  form.mnuCopy.Enabled(false);
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Menu(form.mnuCopy); }), "MNU_COPY is disabled");
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Menu(form.mnuDummy); }), "MNU_DUMMY is a separator");
  EXPECT_EQ(FailureOf(Invalid, [&] { form.hand.Menu(form.mnuOther); }), "MNU_OTHER is no entry of MNU_POPUP");
  EXPECT_EQ(form.OpenPopup(), &form.mnuPopup);
  EXPECT_TRUE(form.log.empty());
}

TEST(OpenMenu, IsClosedByEveryOtherAct) {
  MouseForm form;
  form.msgA.UserResizing(true);
  const std::vector<std::function<void()>> acts = {
      [&] { form.hand.Click(form.cmdA); },        [&] { form.hand.Click(form.msgA, 1, 1); },
      [&] { form.hand.DblClick(form.txtA); },     [&] { form.hand.MouseDown(form.labLink, 1, 0, 0, 0); },
      [&] { form.hand.Focus(form.cmdA); },        [&] { form.hand.Select(form.cmbA, 0); },
      [&] { form.hand.Type(form.txtA, "x"); },    [&] { form.hand.Edit(form.txtA, "x", 0); },
      [&] { form.hand.Cell(form.msgA, 1, 1); },   [&] { form.hand.ResizeColumn(form.msgA, 1, 500); },
      [&] { form.hand.Scroll(form.msgA, 1, 1); }, [&] { form.hand.Tab(form.sstA, 0); },
      [&] { form.hand.DismissMenu(); },           [&] { form.hand.Move(0, 0); },
      [&] { form.hand.KeyDown(key::Up, 0); },     [&] { form.hand.Close(); },
  };
  for (std::size_t i = 0; i < acts.size(); ++i) {
    form.OpenPopup(&form.mnuPopup);
    acts[i]();
    EXPECT_EQ(form.OpenPopup(), nullptr) << "act " << i;
  }
}

TEST(OpenMenu, TakesNothingOfWhatIsTypedIntoABox) {
  MouseForm form;
  form.mnuCopy.Caption("&Copy");
  form.OpenPopup(&form.mnuPopup);
  form.hand.Type(form.txtA, "cy");
  EXPECT_EQ(form.txtA.Text(), "cy");
}

TEST(OpenMenu, StaysWhenAnActIsRefused) {
  MouseForm form;
  form.OpenPopup(&form.mnuPopup);
  form.cmdA.Enabled(false);
  EXPECT_NE(FailureOf(Invalid, [&] { form.hand.Click(form.cmdA); }), "");
  EXPECT_EQ(form.OpenPopup(), &form.mnuPopup);
}

TEST(OpenMenu, StaysWhileTheKeyThatOpenedItGoesUp) {
  MouseForm form;
  form.OpenPopup(&form.mnuPopup);
  form.hand.KeyUp(key::F10, key::ShiftBit);
  EXPECT_EQ(form.OpenPopup(), &form.mnuPopup);
}

TEST(DismissMenu, TellsWhetherOneWasOpen) {
  MouseForm form;
  EXPECT_FALSE(form.hand.DismissMenu());
  form.OpenPopup(&form.mnuPopup);
  EXPECT_TRUE(form.hand.DismissMenu());
}

TEST(Move, PlacesTheForm) {
  MouseForm form;
  form.hand.Move(150, 300.5F);
  EXPECT_FLOAT_EQ(form.Left(), 150);
  EXPECT_FLOAT_EQ(form.Top(), 300.5F);
}

TEST(CloseBox, UnloadsWithItsOwnReason) {
  MouseForm form;
  EXPECT_EQ(form.Raised([&] { form.hand.Close(); }), (Strings{"QueryUnload 0", "Unload"}));
}

TEST(MenuChoice, IsMadeByTheLetterOfTheEntryWithoutCtrl) {
  struct MenuForm : TestForm {
    MenuItem mnuPopup{*this, "MNU_POPUP"}, mnuCopy{*this, "MNU_COPY"};
    Hand hand{*this};
  } form;
  int picked = 0;
  form.mnuCopy.Caption("&Copy");
  form.mnuCopy.OnClick = [&] { ++picked; };
  form.mnuPopup.Add(form.mnuCopy);
  WhileShown(form, [&] {
    form.OpenPopup(&form.mnuPopup);
    form.hand.KeyDown('C', key::ControlBit);
    EXPECT_EQ(form.OpenPopup(), nullptr);
    EXPECT_EQ(picked, 0);
    form.OpenPopup(&form.mnuPopup);
    EXPECT_EQ(form.hand.KeyDown('C', 0), 'C');
    EXPECT_EQ(form.OpenPopup(), nullptr);
    EXPECT_EQ(picked, 1);
  });
}

}  // namespace
}  // namespace plexel
