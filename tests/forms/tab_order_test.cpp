#include "test_form.h"

namespace plexel {
namespace {

struct OrderForm : TestForm {
  Label labA{*this, "labA"};
  CommandButton cmdA{*this, "cmdA"};
  OptionButton opt0{*this, "opt", 0}, opt1{*this, "opt", 1};
  TextBox txtA{*this, "txtA"};
  Frame fraA{*this, "fraA"};
  OptionButton optInside{*this, "optInside"};
  OrderForm() { optInside.Inside(fraA); }
  Strings Order() const { return FullNamesOf(TabOrder()); }
};

TEST(TabOrder, HoldsOneOptionButtonOfEachContainer) {
  const OrderForm form;
  EXPECT_EQ(form.Order(), (Strings{"cmdA", "opt(0)", "txtA", "optInside"}));
}

TEST(TabOrder, HoldsTheOptionButtonThatIsSet) {
  OrderForm form;
  form.opt1.Value(true);
  EXPECT_EQ(form.Order(), (Strings{"cmdA", "opt(1)", "txtA", "optInside"}));
}

TEST(TabOrder, HoldsTheFirstUsableOptionButtonWhenTheOneThatIsSetIsNot) {
  OrderForm form;
  form.opt1.Value(true);
  form.opt1.Enabled(false);
  EXPECT_EQ(form.Order(), (Strings{"cmdA", "opt(0)", "txtA", "optInside"}));
}

TEST(TabOrder, FollowsTheTabIndexThenTheOrderOfMaking) {
  OrderForm form;
  form.txtA.TabIndex(0);
  form.cmdA.TabIndex(0);
  form.optInside.TabIndex(1);
  EXPECT_EQ(form.Order(), (Strings{"cmdA", "txtA", "optInside", "opt(0)"}));
}

TEST(TabOrder, LeavesOutWhatHasNoTabStopOrIsNotUsable) {
  OrderForm form;
  form.cmdA.TabStop(false);
  form.txtA.Visible(false);
  form.fraA.Enabled(false);
  EXPECT_EQ(form.Order(), Strings{"opt(0)"});
}

TEST(TabOrder, LeavesOutPagesBehind) {
  TestForm form;
  TabStrip strip(form, "sstA", 2);
  TextBox front(form, "txtFront"), behind(form, "txtBehind");
  front.OnPage(strip, 0);
  behind.OnPage(strip, 1);
  EXPECT_EQ(FullNamesOf(form.TabOrder()), (Strings{"sstA", "txtFront"}));
}

TEST(TabNeighbour, WrapsAround) {
  OrderForm form;
  form.optInside.SetFocus();
  EXPECT_EQ(form.TabNeighbour(true), &form.cmdA);
  form.cmdA.SetFocus();
  EXPECT_EQ(form.TabNeighbour(false), &form.optInside);
}

TEST(TabNeighbour, OfTheFormItselfIsTheFirstOrTheLast) {
  const OrderForm form;
  EXPECT_EQ(form.TabNeighbour(true), &form.cmdA);
  EXPECT_EQ(form.TabNeighbour(false), &form.optInside);
}

TEST(TabNeighbour, OfAnOptionButtonThatIsNotSetIsOutsideItsContainer) {
  OrderForm form;
  form.opt1.Value(true);
  form.opt0.SetFocus();
  EXPECT_EQ(form.TabNeighbour(true), &form.txtA);
  EXPECT_EQ(form.TabNeighbour(false), &form.cmdA);
}

TEST(TabNeighbour, OfAControlWithoutTabStopStartsFromItsOwnPlace) {
  OrderForm form;
  form.txtA.TabStop(false);
  form.txtA.SetFocus();
  EXPECT_EQ(form.TabNeighbour(true), &form.optInside);
  EXPECT_EQ(form.TabNeighbour(false), &form.opt0);
}

TEST(TabNeighbour, OfAControlThatBecameDisabledStartsFromItsOwnPlace) {
  OrderForm form;
  form.txtA.SetFocus();
  form.txtA.Enabled(false);
  EXPECT_EQ(form.TabNeighbour(true), &form.optInside);
}

TEST(TabNeighbour, OfTheOnlyControlIsNone) {
  TestForm form;
  CommandButton button(form, "cmdA");
  button.SetFocus();
  EXPECT_EQ(form.TabNeighbour(true), nullptr);
  EXPECT_EQ(form.TabNeighbour(false), nullptr);
}

TEST(TabNeighbour, OfAFormWithoutControlsIsNone) {
  const TestForm form;
  EXPECT_EQ(form.TabNeighbour(true), nullptr);
}

TEST(TabOrder, HoldsOneOptionButtonOfEachPage) {
  struct PagesForm : TestForm {
    TabStrip sstA{*this, "sstA", 2};
    OptionButton opt0{*this, "opt", 0}, opt1{*this, "opt", 1}, opt2{*this, "opt", 2};
  } form;
  form.opt0.OnPage(form.sstA, 0);
  form.opt1.OnPage(form.sstA, 0);
  form.opt2.OnPage(form.sstA, 1);
  EXPECT_EQ(form.opt0.Group(), (std::vector<OptionButton*>{&form.opt0, &form.opt1}));
  EXPECT_EQ(form.opt2.Group(), std::vector<OptionButton*>{&form.opt2});
  form.sstA.Tab(1);
  form.opt0.Value(true);
  form.opt2.Value(true);
  EXPECT_TRUE(form.opt0.Value()) << "the other page has a group of its own";
}

TEST(TabOrder, AnOptionButtonOfAPageThatIsNotInFrontStandsForNoOther) {
  struct PagesForm : TestForm {
    TabStrip sstA{*this, "sstA", 2};
    OptionButton opt0{*this, "opt", 0}, opt1{*this, "opt", 1};
  } form;
  form.sstA.TabStop(false);
  form.opt0.OnPage(form.sstA, 0);
  form.opt1.OnPage(form.sstA, 1);
  form.Focus(&form.opt0);
  form.sstA.Tab(1);
  ASSERT_EQ(form.Focus(), &form.opt0);
  EXPECT_EQ(form.TabNeighbour(true), &form.opt1);
}

}  // namespace
}  // namespace plexel
