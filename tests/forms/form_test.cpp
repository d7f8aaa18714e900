#include <stdexcept>

#include "platform/platform_in_force.h"
#include "test_form.h"

namespace plexel {
namespace {

struct TwoButtons : TestForm {
  Label labTitle{*this, "labTitle"};
  CommandButton cmdA{*this, "cmdA"}, cmdB{*this, "cmdB"};
  TwoButtons() {
    Watch(cmdA);
    Watch(cmdB);
  }
};

/// A platform whose modal loop notes what it is asked in the form's own log.
struct NotingPlatform {
  explicit NotingPlatform(TestForm& form) : use(platform) {
    platform.Modal().onShown = [&form](Form&, Window* owner) {
      form.Note("Run over " + (owner == nullptr ? "nothing" : owner->WindowName()));
    };
    platform.Modal().onClosed = [&form](Form&) { form.Note("Closed"); };
    platform.Modal().onRun = [](Form& shown) { shown.Unload(); };
  }
  HeadlessPlatform platform;
  PlatformInForce use;
};

TEST(Form, LoadsTakesTheFocusRunsAndUnloadsInThisOrder) {
  TwoButtons form;
  const NotingPlatform noting(form);
  form.ShowModal(nullptr);
  EXPECT_EQ(form.log, (Strings{"Load", "cmdA GotFocus", "Run over nothing", "QueryUnload 1", "Unload", "Closed"}));
  EXPECT_FALSE(form.IsShown());
}

TEST(Form, IsAnEmptyWindowUntilItsDesignTellsOtherwise) {
  const TestForm form;
  EXPECT_EQ(std::vector<float>({form.Left(), form.Top(), form.Width(), form.Height()}),
            (std::vector<float>{0, 0, 4800, 3600}));
  EXPECT_FALSE(form.KeyPreview() || form.IsShown());
  EXPECT_EQ(form.HelpContextID(), 0);
  EXPECT_EQ(form.Focus(), nullptr);
}

TEST(Form, RunsOverItsOwner) {
  TwoButtons form;
  const NotingPlatform noting(form);
  TestForm owner;
  form.ShowModal(&owner);
  EXPECT_EQ(form.log[2], "Run over frmTest");
}

TEST(Form, IsNotShownWhileItLoads) {
  TestForm form;
  form.onLoad = [&] { EXPECT_FALSE(form.IsShown()); };
  WhileShown(form, [&] { EXPECT_TRUE(form.IsShown()); });
}

TEST(Form, ThatCannotBeShownDoesNotLoad) {
  TestForm form;
  NotingPlatform noting(form);
  noting.platform.faults.Turn(Fault::Show, true);
  EXPECT_NE(FailureOf(FailureKind::Platform, [&] { form.ShowModal(nullptr); }), "");
  EXPECT_TRUE(form.log.empty());
  EXPECT_FALSE(form.IsShown());
}

TEST(Form, WithoutAPlatformCannotBeShown) {
  TestForm form;
  EXPECT_NE(FailureOf(FailureKind::ObjectNotSet, [&] { form.ShowModal(nullptr); }), "");
  EXPECT_TRUE(form.log.empty());
}

TEST(Form, WhoseLoadFailsIsNotShownAndCanBeShownAgain) {
  TestForm form;
  const NotingPlatform noting(form);
  form.onLoad = [] { throw Failure(FailureKind::Index, "no such list"); };
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.ShowModal(nullptr); }), "no such list");
  EXPECT_EQ(form.Taken(), (Strings{"Load", "Abandoned"}));
  EXPECT_FALSE(form.IsShown());
  form.onLoad = nullptr;
  form.ShowModal(nullptr);
  EXPECT_EQ(form.log, (Strings{"Load", "Run over nothing", "QueryUnload 1", "Unload", "Closed"}));
}

TEST(Form, IsNotShownAfterItsLoopHasThrown) {
  TestForm form;
  HeadlessPlatform platform;
  const PlatformInForce use(platform);
  platform.Modal().onRun = [](Form&) { throw std::logic_error("broken"); };
  EXPECT_THROW(form.ShowModal(nullptr), std::logic_error);
  EXPECT_FALSE(form.IsShown());
}

TEST(Form, ThatUnloadsWhileItLoadsKeepsNoFocusThatItIsGivenThen) {
  TwoButtons form;
  const NotingPlatform noting(form);
  form.onLoad = [&] {
    form.Unload();
    form.cmdA.SetFocus();
  };
  form.ShowModal(nullptr);
  EXPECT_EQ(form.Focus(), nullptr);
}

TEST(Form, ThatAnythingIsThrownThroughIsAbandonedWithoutItsQuestions) {
  TestForm outer, inner;
  HeadlessPlatform platform;
  const PlatformInForce use(platform);
  platform.Modal().onRun = [&](Form& form) {
    if (&form == &inner) throw 7;
    inner.ShowModal(&outer);
  };
  EXPECT_THROW(outer.ShowModal(nullptr), int);
  EXPECT_EQ(inner.log, (Strings{"Load", "Abandoned"}));
  EXPECT_EQ(outer.log, (Strings{"Load", "Abandoned"}));
  EXPECT_FALSE(outer.IsShown());
  EXPECT_TRUE(platform.Modal().Shown().empty());
}

TEST(Form, WhoseQuestionThrowsAnythingStaysAndCanBeClosedAgain) {
  TestForm form;
  WhileShown(form, [&] {
    form.onQueryUnload = [] { throw 7; };
    EXPECT_THROW(form.Unload(), int);
    EXPECT_TRUE(form.IsShown());
    form.onQueryUnload = nullptr;
    form.Unload();
    EXPECT_FALSE(form.IsShown());
  });
}

TEST(Form, ThatIsShownCannotBeShownOnceMore) {
  TestForm form;
  WhileShown(form, [&] {
    EXPECT_EQ(FailureOf(FailureKind::InvalidCall, [&] { form.ShowModal(nullptr); }), "frmTest is shown already");
    EXPECT_TRUE(form.IsShown());
  });
}

TEST(Form, ThatIsLoadingCannotBeShownOnceMore) {
  TestForm form;
  std::string failure;
  form.onLoad = [&] { failure = FailureOf(FailureKind::InvalidCall, [&] { form.ShowModal(nullptr); }); };
  WhileShown(form, [] {});
  EXPECT_EQ(failure, "frmTest is shown already");
}

TEST(Form, ThatUnloadsWhileItLoadsIsNeverShown) {
  TwoButtons form;
  const NotingPlatform noting(form);
  form.onLoad = [&] { form.Unload(); };
  form.ShowModal(nullptr);
  EXPECT_EQ(form.log, (Strings{"Load", "QueryUnload 1", "Unload"}));
  EXPECT_FALSE(form.IsShown());
}

TEST(Form, UnloadedTwiceHearsOfItOnce) {
  TestForm form;
  WhileShown(form, [&] {
    form.Taken();
    form.Unload(UnloadMode::CloseBox);
    form.Unload();
  });
  EXPECT_EQ(form.log, (Strings{"QueryUnload 0", "Unload"}));
}

TEST(Form, UnloadingFromItsOwnUnloadEventsHearsOfItOnce) {
  TestForm form;
  form.onQueryUnload = form.onUnload = [&] { form.Unload(); };
  WhileShown(form, [] {});
  EXPECT_EQ(form.log, (Strings{"Load", "QueryUnload 1", "Unload"}));
}

TEST(Form, ThatIsNotLoadedDoesNotUnload) {
  TestForm form;
  form.Unload();
  EXPECT_TRUE(form.log.empty());
}

TEST(Form, IsShownUntilItsUnloadEventHasEnded) {
  TestForm form;
  form.onUnload = [&] { EXPECT_TRUE(form.IsShown()); };
  WhileShown(form, [] {});
}

TEST(Form, WhoseUnloadFailsStaysAndCanUnloadLater) {
  TestForm form;
  form.onQueryUnload = [] { throw Failure(FailureKind::Overflow, "too much"); };
  WhileShown(form, [&] {
    EXPECT_EQ(FailureOf(FailureKind::Overflow, [&] { form.Unload(); }), "too much");
    EXPECT_TRUE(form.IsShown());
    form.onQueryUnload = nullptr;
    form.Unload();
    EXPECT_FALSE(form.IsShown());
  });
}

TEST(Form, KeepsTheFocusThatLoadingGave) {
  TwoButtons form;
  form.onLoad = [&] { form.cmdB.SetFocus(); };
  WhileShown(form, [&] { EXPECT_TRUE(form.cmdB.HasFocus()); });
  EXPECT_EQ(form.log[1], "cmdB GotFocus");
}

TEST(Form, ThatHasClosedHasNeitherAFocusNorAButtonHeldDown) {
  TwoButtons form;
  WhileShown(form, [&] { form.Armed(&form.cmdA); });
  EXPECT_EQ(form.Focus(), nullptr);
  EXPECT_EQ(form.Armed(), nullptr);
}

TEST(Form, OpensWithTheFocusOnAControlThatCanTakeIt) {
  TwoButtons form;
  form.cmdB.SetFocus();
  form.cmdB.Enabled(false);
  WhileShown(form, [&] { EXPECT_TRUE(form.cmdA.HasFocus()); });
}

TEST(Form, WithoutAControlForItKeepsTheFocusItself) {
  TwoButtons form;
  form.cmdA.Enabled(false);
  form.cmdB.TabStop(false);
  WhileShown(form, [&] { EXPECT_EQ(form.Focus(), nullptr); });
}

TEST(Focus, RaisesLostFocusAheadOfGotFocus) {
  TwoButtons form;
  WhileShown(form, [&] {
    form.Taken();
    form.cmdB.SetFocus();
    EXPECT_EQ(form.Taken(), (Strings{"cmdA LostFocus", "cmdB GotFocus"}));
  });
}

TEST(Focus, HasMovedWhenLostFocusIsRaised) {
  TwoButtons form;
  form.cmdA.OnLostFocus = [&] { EXPECT_TRUE(form.cmdB.HasFocus()); };
  WhileShown(form, [&] { form.cmdB.SetFocus(); });
}

TEST(Focus, ThatLostFocusMovesOnIsNotAnnouncedToTheOneBetween) {
  TwoButtons form;
  form.cmdA.OnLostFocus = [&] { form.Focus(nullptr); };
  WhileShown(form, [&] {
    form.Taken();
    form.cmdB.SetFocus();
    EXPECT_EQ(form.Taken(), Strings{"cmdB LostFocus"});
    EXPECT_EQ(form.Focus(), nullptr);
  });
}

TEST(Focus, GivenToItsHolderRaisesNothing) {
  TwoButtons form;
  WhileShown(form, [&] {
    form.Taken();
    form.cmdA.SetFocus();
    EXPECT_TRUE(form.log.empty());
  });
}

TEST(Focus, OfAFormThatIsNotLoadedMovesSilently) {
  TwoButtons form;
  form.cmdB.SetFocus();
  EXPECT_TRUE(form.cmdB.HasFocus());
  EXPECT_TRUE(form.log.empty());
}

TEST(Focus, IsRefusedByADisabledAHiddenAndAnUnfitControl) {
  TwoButtons form;
  form.cmdA.Enabled(false);
  form.cmdB.Visible(false);
  EXPECT_EQ(FailureOf(FailureKind::InvalidCall, [&] { form.cmdA.SetFocus(); }), "cmdA is disabled");
  EXPECT_EQ(FailureOf(FailureKind::InvalidCall, [&] { form.cmdB.SetFocus(); }), "cmdB is hidden");
  EXPECT_EQ(FailureOf(FailureKind::InvalidCall, [&] { form.labTitle.SetFocus(); }), "labTitle takes no focus");
  EXPECT_EQ(form.Focus(), nullptr);
}

TEST(Focus, IsTakenFromTheProgramOnAPageBehind) {
  TestForm form;
  TabStrip strip(form, "sstA", 2);
  TextBox box(form, "txtA");
  box.OnPage(strip, 1);
  box.SetFocus();
  EXPECT_TRUE(box.HasFocus());
}

TEST(Focus, StaysOnAControlThatBecomesDisabled) {
  TwoButtons form;
  WhileShown(form, [&] {
    form.Taken();
    form.cmdA.Enabled(false);
    EXPECT_TRUE(form.cmdA.HasFocus());
    EXPECT_TRUE(form.log.empty());
  });
}

TEST(PopupMenu, IsOpenUntilItIsDismissed) {
  TestForm form;
  MenuItem menu(form, "MNU_POPUP");
  HeadlessPlatform platform;
  const PlatformInForce use(platform);
  std::vector<float> place;
  platform.Modal().onPopup = [&](Form&, MenuItem& shown, bool placed, float x, float y) {
    EXPECT_EQ(&shown, &menu);
    place = {placed ? 1.0F : 0.0F, x, y};
  };
  form.PopupMenu(menu, 30, 45);
  EXPECT_EQ(place, (std::vector<float>{1, 30, 45}));
  EXPECT_EQ(form.OpenPopup(), &menu);
  form.PopupMenu(menu);
  EXPECT_EQ(place, (std::vector<float>{0, 0, 0}));
}

TEST(PopupMenu, EndsWithItsForm) {
  TestForm form;
  MenuItem menu(form, "MNU_POPUP");
  WhileShown(form, [&] { form.OpenPopup(&menu); });
  EXPECT_EQ(form.OpenPopup(), nullptr);
}

TEST(PopupMenu, ThatCannotBeShownIsNotOpen) {
  TestForm form;
  MenuItem menu(form, "MNU_POPUP");
  HeadlessPlatform platform;
  const PlatformInForce use(platform);
  platform.faults.Turn(Fault::Popup, true);
  EXPECT_NE(FailureOf(FailureKind::Platform, [&] { form.PopupMenu(menu); }), "");
  EXPECT_EQ(form.OpenPopup(), nullptr);
  platform.faults.Thrown([] { throw 7; });
  EXPECT_THROW(form.PopupMenu(menu), int);
  EXPECT_EQ(form.OpenPopup(), nullptr);
}

}  // namespace
}  // namespace plexel
