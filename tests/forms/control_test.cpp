#include <stdexcept>

#include "test_form.h"

namespace plexel {
namespace {

struct ContainersForm : TestForm {
  TabStrip sstPages{*this, "sstPages", 2};
  Frame fraBox{*this, "fraBox"};
  CommandButton cmdInside{*this, "cmdInside"};
  ContainersForm() {
    fraBox.OnPage(sstPages, 1);
    cmdInside.Inside(fraBox);
    sstPages.Tab(1);
  }
};

TEST(Control, OfItsOwnIsNamedWithoutAnIndex) {
  TestForm form;
  const CommandButton button(form, "cmdOK");
  EXPECT_EQ(button.FullName(), "cmdOK");
}

TEST(Control, OfAControlArrayIsNamedWithItsIndex) {
  TestForm form;
  const OptionButton option(form, "optKeyType", 2);
  EXPECT_EQ(option.FullName(), "optKeyType(2)");
  EXPECT_EQ(option.Name(), "optKeyType");
}

TEST(Control, IsFoundByItsFullName) {
  TestForm form;
  OptionButton first(form, "optKeyType", 0), second(form, "optKeyType", 1);
  EXPECT_EQ(form.Find("optKeyType(1)"), &second);
  EXPECT_EQ(form.Find("optKeyType"), nullptr);
  EXPECT_EQ(form.Find("optKeyType(1) "), nullptr);
}

TEST(Control, OfANameThatTheFormHasAlreadyIsADefect) {
  TestForm form;
  const CommandButton button(form, "cmdOK", 1);
  try {
    const CommandButton second(form, "cmdOK", 1);
    ADD_FAILURE() << "a second one was made";
  } catch (const std::logic_error& error) {
    EXPECT_STREQ(error.what(), "frmTest has two controls named cmdOK(1)");
  }
}

TEST(Control, TakesItsTabIndexFromTheOrderOfMaking) {
  TestForm form;
  const Label first(form, "labA");
  const TextBox second(form, "txtB");
  EXPECT_EQ(first.TabIndex(), 0);
  EXPECT_EQ(second.TabIndex(), 1);
}

TEST(Control, IsUsableOnAPageInFront) {
  ContainersForm form;
  EXPECT_TRUE(form.cmdInside.Usable());
  EXPECT_TRUE(form.cmdInside.Shown());
}

TEST(Control, IsNotShownOnAPageBehind) {
  ContainersForm form;
  form.sstPages.Tab(0);
  EXPECT_FALSE(form.cmdInside.Shown());
  EXPECT_EQ(form.cmdInside.Hindrance(), "is on a page that is not in front");
}

TEST(Control, IsShownButNotUsableOnAPageThatIsOff) {
  ContainersForm form;
  form.sstPages.TabEnabled(1, false);
  EXPECT_TRUE(form.cmdInside.Shown());
  EXPECT_EQ(form.cmdInside.Hindrance(), "is on a page that is off");
}

TEST(Control, IsNotShownInAHiddenContainer) {
  ContainersForm form;
  form.sstPages.Visible(false);
  EXPECT_FALSE(form.cmdInside.Shown());
  EXPECT_EQ(form.cmdInside.Hindrance(), "is hidden");
}

TEST(Control, IsShownButNotUsableInADisabledContainer) {
  ContainersForm form;
  form.fraBox.Enabled(false);
  EXPECT_TRUE(form.cmdInside.Shown());
  EXPECT_EQ(form.cmdInside.Hindrance(), "is disabled");
}

TEST(Control, GoesOnNoPageThatTheStripLacks) {
  ContainersForm form;
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.cmdInside.OnPage(form.sstPages, 2); }), "sstPages has no page 2");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { form.cmdInside.OnPage(form.sstPages, -1); }),
            "sstPages has no page -1");
  EXPECT_EQ(form.cmdInside.Container(), &form.fraBox);
}

TEST(Description, OfALabelHasNoTabStop) {
  TestForm form;
  const Label label(form, "labA");
  EXPECT_EQ(NamesIn(label.Describe()), (Strings{"Kind", "Left", "Top", "Width", "Height", "Enabled", "Visible",
                                                "HelpContextID", "ToolTipText", "Caption"}));
}

TEST(Description, OfACommandButtonTellsItsRoles) {
  TestForm form;
  CommandButton button(form, "cmdOK");
  button.Default(true);
  const Description description = button.Describe();
  EXPECT_EQ(NamesIn(description),
            (Strings{"Kind", "Left", "Top", "Width", "Height", "Enabled", "Visible", "TabStop", "TabIndex",
                     "HelpContextID", "ToolTipText", "Caption", "Default", "Cancel", "Picture"}));
  EXPECT_EQ(PropertyOf<std::string>(description, "Kind"), "CommandButton");
  EXPECT_TRUE(PropertyOf<bool>(description, "Default"));
  EXPECT_FALSE(PropertyOf<bool>(description, "Cancel"));
}

TEST(Description, OfATextBoxTellsItsTextAndColours) {
  TestForm form;
  TextBox box(form, "txtA");
  box.Text("abc");
  box.BackColor(65535);
  const Description description = box.Describe();
  EXPECT_EQ(NamesIn(description), (Strings{"Kind", "Left", "Top", "Width", "Height", "Enabled", "Visible", "TabStop",
                                           "TabIndex", "HelpContextID", "ToolTipText", "Text", "MaxLength", "SelStart",
                                           "Locked", "BackColor", "ForeColor"}));
  EXPECT_EQ(PropertyOf<std::string>(description, "Text"), "abc");
  EXPECT_EQ(PropertyOf<std::int32_t>(description, "BackColor"), 65535);
}

TEST(Description, OfAComboBoxTellsItsList) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.AddItem("one");
  box.Text("one");
  const Description description = box.Describe();
  EXPECT_EQ(PropertyOf<Strings>(description, "List"), Strings{"one"});
  EXPECT_EQ(PropertyOf<std::int32_t>(description, "ListIndex"), 0);
  EXPECT_FALSE(PropertyOf<bool>(description, "Sorted"));
}

TEST(Description, OfATabStripTellsItsPages) {
  TestForm form;
  TabStrip strip(form, "sstA", 2);
  strip.TabCaption(1, "Notes");
  strip.TabEnabled(0, false);
  const Description description = strip.Describe();
  EXPECT_EQ(PropertyOf<Strings>(description, "TabCaption"), (Strings{"", "Notes"}));
  EXPECT_EQ(PropertyOf<std::vector<bool>>(description, "TabEnabled"), (std::vector<bool>{false, true}));
  EXPECT_EQ(PropertyOf<std::int32_t>(description, "Tab"), 0);
}

TEST(Description, OfAGridTellsItsCells) {
  TestForm form;
  Grid grid(form, "msgA", 2, 2, 1, 1);
  grid.Text("x");
  grid.ColWidth(1, 300);
  const Description description = grid.Describe();
  EXPECT_EQ(PropertyOf<GridCells>(description, "Cells")[1][1].text, "x");
  EXPECT_EQ(PropertyOf<std::vector<std::int32_t>>(description, "ColWidth"), (std::vector<std::int32_t>{960, 300}));
  EXPECT_EQ(PropertyOf<std::int32_t>(description, "Row"), 1);
}

TEST(Description, OfAMenuEntryHasNoPlace) {
  TestForm form;
  MenuItem entry(form, "MNU_A");
  entry.Caption("Copy");
  EXPECT_EQ(NamesIn(entry.Describe()), (Strings{"Kind", "Enabled", "Visible", "Caption"}));
}

TEST(Description, OfAFrameTellsAllThatAControlHasButATabStop) {
  TestForm form;
  const Frame frame(form, "fraA");
  EXPECT_EQ(NamesIn(frame.Describe()), (Strings{"Kind", "Left", "Top", "Width", "Height", "Enabled", "Visible",
                                                "HelpContextID", "ToolTipText", "Caption"}));
}

TEST(Description, OfAShapeIsNeitherEnabledNorHelped) {
  TestForm form;
  const Shape shape(form, "shpA");
  EXPECT_EQ(NamesIn(shape.Describe()), (Strings{"Kind", "Left", "Top", "Width", "Height", "Visible", "BackColor"}));
}

TEST(Description, OfAShapeAndAPictureAndAStatusBarTellsWhatTheyShow) {
  TestForm form;
  Shape shape(form, "shpA");
  PictureBox picture(form, "imgA");
  StatusBar bar(form, "stbA");
  shape.BackColor(255);
  picture.Picture("title");
  picture.Stretch(true);
  bar.SimpleText("ready");
  EXPECT_EQ(PropertyOf<std::int32_t>(shape.Describe(), "BackColor"), 255);
  EXPECT_EQ(PropertyOf<std::string>(picture.Describe(), "Picture"), "title");
  EXPECT_TRUE(PropertyOf<bool>(picture.Describe(), "Stretch"));
  EXPECT_EQ(PropertyOf<std::string>(bar.Describe(), "SimpleText"), "ready");
}

TEST(Description, OfAFormNamesFocusAndControls) {
  TestForm form;
  form.Caption("Test");
  CommandButton first(form, "cmdA", 0), second(form, "cmdA", 1);
  second.SetFocus();
  const Description description = form.Describe();
  EXPECT_EQ(NamesIn(description),
            (Strings{"Name", "Caption", "Left", "Top", "Width", "Height", "KeyPreview", "Focus", "Controls"}));
  EXPECT_EQ(PropertyOf<std::string>(description, "Focus"), "cmdA(1)");
  EXPECT_EQ(PropertyOf<Strings>(description, "Controls"), (Strings{"cmdA(0)", "cmdA(1)"}));
}

TEST(Description, OfAFormWithTheFocusOnItselfNamesNone) {
  const TestForm form;
  EXPECT_EQ(PropertyOf<std::string>(form.Describe(), "Focus"), "");
}

TEST(KindName, IsTheOneOfTheKind) {
  EXPECT_EQ(KindName(ControlKind::CommandButton), "CommandButton");
  EXPECT_EQ(KindName(ControlKind::OptionButton), "OptionButton");
  EXPECT_EQ(KindName(ControlKind::Menu), "Menu");
  EXPECT_EQ(KindName(ControlKind::Shape), "Shape");
}

TEST(TextSlot, AssignsTheCaption) {
  TestForm form;
  Label label(form, "labA");
  label.Caption("@100");
  ASSERT_EQ(label.Texts().size(), 1U);
  EXPECT_EQ(label.Texts()[0].current, "@100");
  label.Texts()[0].assign("OK");
  EXPECT_EQ(label.Caption(), "OK");
}

TEST(TextSlot, OfATabStripStandsForEachPage) {
  TestForm form;
  TabStrip strip(form, "sstA", 3);
  ASSERT_EQ(strip.Texts().size(), 3U);
  strip.Texts()[2].assign("Notes");
  EXPECT_EQ(strip.TabCaption(2), "Notes");
}

TEST(TextSlot, AssignsTheTextOfBoxesAndStatusBars) {
  TestForm form;
  TextBox text(form, "txtA");
  ComboBox combo(form, "cmbA");
  StatusBar bar(form, "stbA");
  for (Control* control : form.Controls()) control->Texts().at(0).assign("new");
  EXPECT_EQ(text.Text(), "new");
  EXPECT_EQ(combo.Text(), "new");
  EXPECT_EQ(bar.SimpleText(), "new");
}

}  // namespace
}  // namespace plexel
