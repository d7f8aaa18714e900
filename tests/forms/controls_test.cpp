#include <set>

#include "test_form.h"

namespace plexel {
namespace {

struct ButtonsForm : TestForm {
  CommandButton cmdA{*this, "cmdA"}, cmdB{*this, "cmdB"};
  OptionButton optA{*this, "optA", 0}, optB{*this, "optA", 1};
  Frame fraOther{*this, "fraOther"};
  OptionButton optElsewhere{*this, "optElsewhere"};
  ButtonsForm() {
    optElsewhere.Inside(fraOther);
    for (Control* control : Controls()) Watch(*control);
  }
};

TEST(CommandButton, TakesTheDefaultRoleFromTheOthers) {
  ButtonsForm form;
  form.cmdA.Default(true);
  form.cmdB.Default(true);
  EXPECT_FALSE(form.cmdA.Default());
  EXPECT_EQ(form.DefaultButton(), &form.cmdB);
}

TEST(CommandButton, GivesUpNoRoleThatItLacks) {
  ButtonsForm form;
  form.cmdA.Cancel(true);
  form.cmdB.Cancel(false);
  EXPECT_TRUE(form.cmdA.Cancel());
  form.cmdA.Cancel(false);
  EXPECT_EQ(form.CancelButton(), nullptr);
}

TEST(CommandButton, CanHoldBothRoles) {
  ButtonsForm form;
  form.cmdA.Default(true);
  form.cmdA.Cancel(true);
  form.cmdA.Default(false);
  EXPECT_FALSE(form.cmdA.Default());
  EXPECT_TRUE(form.cmdA.Cancel());
}

TEST(OptionButton, SetRaisesClickOnce) {
  ButtonsForm form;
  form.optA.Value(true);
  form.optA.Value(true);
  EXPECT_EQ(form.log, Strings{"optA(0) Click"});
}

TEST(OptionButton, SetClearsTheOthersOfItsContainerSilently) {
  ButtonsForm form;
  form.optA.Value(true);
  form.optElsewhere.Value(true);
  form.Taken();
  form.optB.Value(true);
  EXPECT_FALSE(form.optA.Value());
  EXPECT_TRUE(form.optElsewhere.Value());
  EXPECT_EQ(form.log, Strings{"optA(1) Click"});
}

TEST(OptionButton, ClearedRaisesNothing) {
  ButtonsForm form;
  form.optA.Value(true);
  form.Taken();
  form.optA.Value(false);
  EXPECT_FALSE(form.optA.Value());
  EXPECT_TRUE(form.log.empty());
}

TEST(OptionButton, IsSetWhenItsClickIsHandled) {
  ButtonsForm form;
  bool setThen = false, otherThen = true;
  form.optB.Value(true);
  form.optA.OnClick = [&] {
    setThen = form.optA.Value();
    otherThen = form.optB.Value();
  };
  form.optA.Value(true);
  EXPECT_TRUE(setThen);
  EXPECT_FALSE(otherThen);
}

TEST(ComboBox, ShowsATextThatIsNoEntry) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.AddItem("one");
  box.Text("two");
  EXPECT_EQ(box.Text(), "two");
  EXPECT_EQ(box.ListIndex(), -1);
}

TEST(ComboBox, FindsTheFirstEqualEntryOfAText) {
  TestForm form;
  ComboBox box(form, "cmbA");
  for (const char* text : {"one", "two", "two"}) box.AddItem(text);
  form.Watch(box);
  box.Text("two");
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_TRUE(form.log.empty());
}

TEST(ComboBox, RaisesClickWhenAnEntryIsPickedAgain) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.AddItem("one");
  form.Watch(box);
  box.ListIndex(0);
  box.ListIndex(0);
  EXPECT_EQ(box.Text(), "one");
  EXPECT_EQ(form.log, (Strings{"cmbA Click", "cmbA Click"}));
}

TEST(ComboBox, WithNoEntryPickedIsEmpty) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.AddItem("one");
  box.ListIndex(0);
  box.ListIndex(-1);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(box.ListIndex(), -1);
}

TEST(ComboBox, HasNoEntryOutsideItsList) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.AddItem("one");
  box.ListIndex(0);
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { box.ListIndex(1); }), "cmbA has no entry 1");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { box.ListIndex(-2); }), "cmbA has no entry -2");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { box.List(1); }), "cmbA has no entry 1");
  EXPECT_EQ(box.ListIndex(), 0);
}

TEST(ComboBox, UnsortedKeepsTheOrderOfAdding) {
  TestForm form;
  ComboBox box(form, "cmbA");
  for (const char* text : {"b", "a"}) box.AddItem(text);
  EXPECT_EQ(box.Items(), (Strings{"b", "a"}));
}

TEST(ComboBox, SortsWithoutCaseAndAccentFirst) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.Sorted(true);
  for (const char* text : {"zebra", "Ärger", "apfel", "Straße", "strasse", "Strand", "Zebra", "b"}) box.AddItem(text);
  EXPECT_EQ(box.Items(), (Strings{"apfel", "Ärger", "b", "Strand", "Straße", "strasse", "Zebra", "zebra"}));
}

TEST(Controls, AreEnabledVisibleAndEmptyUntilTheirDesignTellsOtherwise) {
  TestForm form;
  const TextBox text(form, "txtA");
  EXPECT_EQ(std::vector<float>({text.Left(), text.Top(), text.Width(), text.Height()}), std::vector<float>(4, 0));
  EXPECT_TRUE(text.Enabled() && text.Visible() && text.TabStop());
  EXPECT_FALSE(text.Locked() || text.MultiLine());
  EXPECT_EQ(text.HelpContextID(), 0);
  EXPECT_EQ(text.MaxLength(), 0);
  EXPECT_EQ(text.SelStart(), 0);
  EXPECT_EQ(text.BackColor(), 0xFFFFFF);
  EXPECT_EQ(text.ForeColor(), 0);
  EXPECT_EQ(text.FontSize(), 0);
  const ComboBox combo(form, "cmbA");
  EXPECT_FALSE(combo.Sorted());
  EXPECT_EQ(combo.ListIndex(), -1);
  const OptionButton option(form, "optA");
  EXPECT_FALSE(option.Value());
  const CommandButton command(form, "cmdA");
  EXPECT_FALSE(command.ParksFocus());
  const PictureBox picture(form, "imgA");
  EXPECT_FALSE(picture.Stretch());
  const Frame frame(form, "fraA");
  EXPECT_TRUE(frame.Border());
  const TabStrip strip(form, "sstA", 2);
  EXPECT_EQ(strip.Tab(), 0);
  EXPECT_TRUE(strip.TabEnabled(0) && strip.TabEnabled(1));
  const Grid grid(form, "msgA", 2, 2, 1, 1);
  EXPECT_EQ(grid.RowHeight(), 255);
  EXPECT_EQ(grid.Refreshes(), 0);
  EXPECT_TRUE(grid.Redraw());
  EXPECT_FALSE(grid.UserResizing() || grid.ShowsEnd());
  const GridCell& cell = grid.CellAt(1, 1);
  EXPECT_EQ(cell.foreColor, 0);
  EXPECT_EQ(cell.backColor, 0xFFFFFF);
  EXPECT_FALSE(cell.centred);
}

TEST(Controls, OutsideAnArrayHaveTheIndexMinusOne) {
  TestForm form;
  const CommandButton command(form, "cmdA");
  const OptionButton option(form, "optA");
  const ComboBox combo(form, "cmbA");
  const TextBox text(form, "txtA");
  const Label label(form, "labA");
  const PictureBox picture(form, "imgA");
  const Frame frame(form, "fraA");
  const TabStrip strip(form, "sstA", 1);
  for (const Control* control :
       std::initializer_list<const Control*>{&command, &option, &combo, &text, &label, &picture, &frame, &strip}) {
    EXPECT_EQ(control->Index(), -1) << control->FullName();
  }
}

TEST(ComboBox, SortsAnEntryBehindItsLike) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.Sorted(true);
  box.AddItem("m");
  box.ListIndex(0);
  box.AddItem("m");
  EXPECT_EQ(box.ListIndex(), 0);
}

TEST(ComboBox, KeepsItsEntryWhenOneIsSortedAheadOfIt) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.Sorted(true);
  box.AddItem("m");
  box.ListIndex(0);
  box.AddItem("a");
  box.AddItem("z");
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(box.List(box.ListIndex()), "m");
}

TEST(ComboBox, ClearedHasNeitherEntriesNorText) {
  TestForm form;
  ComboBox box(form, "cmbA");
  box.AddItem("one");
  box.ListIndex(0);
  box.Clear();
  EXPECT_EQ(box.ListCount(), 0);
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(box.Text(), "");
}

TEST(ComboBox, TellsEveryChangeOfItsEntriesByAnotherVersion) {
  TestForm form;
  ComboBox box(form, "cmbA");
  std::set<std::uint64_t> versions = {box.ItemsVersion()};
  box.AddItem("one");
  EXPECT_TRUE(versions.insert(box.ItemsVersion()).second);
  box.Clear();
  EXPECT_TRUE(versions.insert(box.ItemsVersion()).second);
  box.AddItem("one");
  EXPECT_TRUE(versions.insert(box.ItemsVersion()).second);
  box.ListIndex(0);
  EXPECT_FALSE(versions.insert(box.ItemsVersion()).second);
}

struct TextForm : TestForm {
  TextBox txtA{*this, "txtA"};
  TextForm() {
    txtA.OnChange = [this] { Note("Change " + txtA.Text()); };
  }
};

TEST(TextBox, RaisesChangeOnlyWhenTheTextChanges) {
  TextForm form;
  form.txtA.Text("a");
  form.txtA.Text("a");
  form.txtA.Text("");
  EXPECT_EQ(form.log, (Strings{"Change a", "Change "}));
}

TEST(TextBox, PutsTheCaretAheadOfAnAssignedText) {
  TextForm form;
  form.txtA.Text("abc");
  form.txtA.SelStart(2);
  form.txtA.Text("abcd");
  EXPECT_EQ(form.txtA.SelStart(), 0);
}

TEST(TextBox, KeepsTheCaretInsideTheText) {
  TextForm form;
  form.txtA.Text("äöü");
  form.txtA.SelStart(99);
  EXPECT_EQ(form.txtA.SelStart(), 3);
  form.txtA.SelStart(-1);
  EXPECT_EQ(form.txtA.SelStart(), 0);
}

TEST(TextBox, CutsATextLongerThanItsMaxLengthInCharacters) {
  TextForm form;
  form.txtA.MaxLength(3);
  form.txtA.Text("äöüß");
  EXPECT_EQ(form.txtA.Text(), "äöü");
  EXPECT_EQ(form.txtA.TextLength(), 3);
  form.txtA.MaxLength(1);
  form.txtA.Text("äö");
  EXPECT_EQ(form.txtA.Text(), "ä");
}

TEST(TextBox, KeepsATextOfExactlyItsMaxLength) {
  TextForm form;
  form.txtA.MaxLength(1000);
  form.txtA.Text(std::string(1000, 'x'));
  EXPECT_EQ(form.txtA.TextLength(), 1000);
}

TEST(TextBox, CutToTheTextThatItHadRaisesNothing) {
  TextForm form;
  form.txtA.MaxLength(2);
  form.txtA.Text("ab");
  form.Taken();
  form.txtA.Text("abc");
  EXPECT_TRUE(form.log.empty());
}

TEST(TabStrip, BringsNoPageToTheFrontThatItLacks) {
  TestForm form;
  TabStrip strip(form, "sstA", 2);
  strip.Tab(1);
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { strip.Tab(2); }), "sstA has no page 2");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { strip.TabCaption(-1); }), "sstA has no page -1");
  EXPECT_EQ(strip.Tab(), 1);
}

TEST(TabStrip, BringsAPageThatIsOffToTheFrontForTheProgram) {
  TestForm form;
  TabStrip strip(form, "sstA", 2);
  form.Watch(strip);
  strip.TabEnabled(1, false);
  strip.Tab(1);
  EXPECT_EQ(strip.Tab(), 1);
  EXPECT_TRUE(form.log.empty());
}

TEST(ImageList, GivesThePictureOfAKey) {
  TestForm form;
  ImageList list(form, "ilsA");
  list.Add("led", "led");
  list.Add("led", "button-led");
  EXPECT_EQ(list.Picture("led"), "button-led");
  EXPECT_EQ(FailureOf(FailureKind::Index, [&] { list.Picture("key"); }), "ilsA has no picture \"key\"");
}

TEST(MenuItem, WithADashIsASeparator) {
  TestForm form;
  MenuItem entry(form, "MNU_DUMMY");
  EXPECT_FALSE(entry.Separator());
  entry.Caption("-");
  EXPECT_TRUE(entry.Separator());
}

TEST(CommandButton, OneThatIsNotTheDefaultCannotTakeItAway) {
  ButtonsForm form;
  form.cmdA.Default(true);
  form.cmdA.Cancel(true);
  form.cmdB.Default(false);
  form.cmdB.Cancel(false);
  EXPECT_TRUE(form.cmdA.Default() && form.cmdA.Cancel());
  form.cmdA.Default(false);
  form.cmdA.Cancel(false);
  EXPECT_FALSE(form.cmdA.Default() || form.cmdA.Cancel());
}

TEST(ComboBox, TellsWhetherItIsSorted) {
  TestForm form;
  ComboBox box(form, "cmbA");
  EXPECT_FALSE(box.Sorted());
  box.Sorted(true);
  EXPECT_TRUE(box.Sorted());
}

}  // namespace
}  // namespace plexel
