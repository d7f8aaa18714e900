#include "forms/hand.h"

#include "test_form.h"

namespace plexel {
namespace {

struct TypingForm : TestForm {
  TextBox txtA{*this, "txtA"}, txtNotes{*this, "txtNotes"};
  CommandButton cmdA{*this, "cmdA"};
  Hand hand{*this};
  TypingForm() { txtNotes.MultiLine(true); }
  /// Text, with the caret as "|", of a box after some keys.
  static std::string Seen(const TextBox& box) {
    std::string text = box.Text();
    return text.insert(static_cast<std::size_t>(box.SelStart()), "|");
  }
  std::string After(TextBox& box, const std::string& text, int caret, std::initializer_list<std::int16_t> keys) {
    box.SetFocus();
    box.Edit(text, caret);
    for (const std::int16_t keyCode : keys) hand.KeyDown(keyCode, 0);
    return Seen(box);
  }
  std::string AfterCharacter(TextBox& box, const std::string& text, int caret, std::int16_t character) {
    box.SetFocus();
    box.Edit(text, caret);
    hand.KeyPress(character);
    return Seen(box);
  }
};

TEST(Character, IsEnteredAtTheCaret) {
  TypingForm form;
  EXPECT_EQ(form.AfterCharacter(form.txtA, "ac", 1, 'b'), "ab|c");
}

TEST(Character, IsNotEnteredIntoAFullBox) {
  TypingForm form;
  form.txtA.MaxLength(3);
  EXPECT_EQ(form.AfterCharacter(form.txtA, "ab", 2, 'c'), "abc|");
  EXPECT_EQ(form.AfterCharacter(form.txtA, "abc", 3, 'd'), "abc|");
  form.txtA.MaxLength(1);
  EXPECT_EQ(form.AfterCharacter(form.txtA, "a", 0, 'b'), "|a");
}

TEST(Character, CountsAsOneWhateverItsBytes) {
  TypingForm form;
  form.txtA.MaxLength(2);
  form.hand.Type(form.txtA, "ä€x");
  EXPECT_EQ(form.txtA.Text(), "ä€");
}

TEST(Character, OfAControlKeyEntersNothing) {
  TypingForm form;
  for (const std::int16_t character : std::initializer_list<std::int16_t>{1, 3, 9, 10, 22, 27, 31}) {
    EXPECT_EQ(form.AfterCharacter(form.txtNotes, "ab", 1, character), "a|b");
  }
}

TEST(Character, IsNotEnteredIntoALockedBox) {
  TypingForm form;
  form.txtA.Locked(true);
  EXPECT_EQ(form.AfterCharacter(form.txtA, "ab", 1, 'x'), "a|b");
  EXPECT_EQ(form.AfterCharacter(form.txtA, "ab", 1, key::Back), "a|b");
}

TEST(Character, RaisesChangeOnce) {
  TypingForm form;
  form.txtA.OnChange = [&] { form.Note(TypingForm::Seen(form.txtA)); };
  form.txtA.SetFocus();
  form.hand.KeyPress('x');
  EXPECT_EQ(form.log, Strings{"x|"});
}

TEST(Backspace, DeletesTheCharacterAheadOfTheCaret) {
  TypingForm form;
  EXPECT_EQ(form.AfterCharacter(form.txtA, "abc", 2, key::Back), "a|c");
  EXPECT_EQ(form.AfterCharacter(form.txtA, "abc", 0, key::Back), "|abc");
}

TEST(Backspace, DeletesAWholeLineBreak) {
  TypingForm form;
  EXPECT_EQ(form.AfterCharacter(form.txtNotes, "a\r\nb", 3, key::Back), "a|b");
  EXPECT_EQ(form.AfterCharacter(form.txtNotes, "\r\n", 2, key::Back), "|");
}

TEST(ReturnCharacter, BreaksTheLine) {
  TypingForm form;
  EXPECT_EQ(form.AfterCharacter(form.txtNotes, "ab", 1, key::Return), "a\r\n|b");
}

TEST(ReturnCharacter, EntersNothingIntoABoxOfOneLine) {
  TypingForm form;
  EXPECT_EQ(form.AfterCharacter(form.txtA, "ab", 1, key::Return), "a|b");
}

TEST(ReturnCharacter, EntersNoHalfLineBreak) {
  TypingForm form;
  form.txtNotes.MaxLength(3);
  EXPECT_EQ(form.AfterCharacter(form.txtNotes, "ab", 2, key::Return), "ab|");
  EXPECT_EQ(form.AfterCharacter(form.txtNotes, "a", 1, key::Return), "a\r\n|");
}

TEST(DeleteKey, DeletesTheCharacterBehindTheCaret) {
  TypingForm form;
  EXPECT_EQ(form.After(form.txtA, "abc", 1, {key::Delete}), "a|c");
  EXPECT_EQ(form.After(form.txtA, "abc", 3, {key::Delete}), "abc|");
}

TEST(DeleteKey, DeletesAWholeLineBreak) {
  TypingForm form;
  EXPECT_EQ(form.After(form.txtNotes, "a\r\nb", 1, {key::Delete}), "a|b");
}

TEST(DeleteKey, LeavesALockedBox) {
  TypingForm form;
  form.txtA.Locked(true);
  EXPECT_EQ(form.After(form.txtA, "abc", 1, {key::Delete}), "a|bc");
}

TEST(DeleteKey, LeavesTheTextOfAFullBoxShorter) {
  TypingForm form;
  form.txtA.MaxLength(3);
  EXPECT_EQ(form.After(form.txtA, "abc", 0, {key::Delete}), "|bc");
}

TEST(DeleteKey, ShortensATextThatIsLongerThanItsLimit) {
  TypingForm form;
  form.txtA.SetFocus();
  form.txtA.Text("abcdefg");
  form.txtA.MaxLength(5);
  form.hand.KeyDown(key::Delete, 0);
  EXPECT_EQ(form.txtA.Text(), "bcdef");
}

TEST(CaretKeys, MoveByCharacters) {
  TypingForm form;
  EXPECT_EQ(form.After(form.txtA, "abc", 1, {key::Right}), "ab|c");
  EXPECT_EQ(form.After(form.txtA, "abc", 1, {key::Left}), "|abc");
  EXPECT_EQ(form.After(form.txtA, "abc", 0, {key::Left}), "|abc");
  EXPECT_EQ(form.After(form.txtA, "abc", 3, {key::Right}), "abc|");
}

TEST(CaretKeys, PassOverALineBreakInOneStep) {
  TypingForm form;
  EXPECT_EQ(form.After(form.txtNotes, "a\r\nb", 1, {key::Right}), "a\r\n|b");
  EXPECT_EQ(form.After(form.txtNotes, "a\r\nb", 3, {key::Left}), "a|\r\nb");
}

TEST(CaretKeys, TakeAReturnWithoutItsLineFeedForACharacter) {
  TypingForm form;
  EXPECT_EQ(form.After(form.txtNotes, "a\rb", 1, {key::Right}), "a\r|b");
  EXPECT_EQ(form.After(form.txtNotes, "a\rb", 2, {key::Left}), "a|\rb");
  EXPECT_EQ(form.After(form.txtNotes, "a\rb", 3, {key::Left}), "a\r|b");
  EXPECT_EQ(form.After(form.txtNotes, "a\rb", 0, {key::End}), "a\rb|");
  EXPECT_EQ(form.After(form.txtNotes, "a\r", 2, {key::Left}), "a|\r");
  EXPECT_EQ(form.After(form.txtNotes, "a\r", 1, {key::Right}), "a\r|");
  EXPECT_EQ(form.After(form.txtNotes, "a\nb", 1, {key::Right}), "a\n|b");
}

TEST(CaretKeys, GoToTheEndsOfTheLine) {
  TypingForm form;
  EXPECT_EQ(form.After(form.txtNotes, "ab\r\ncd\r\nef", 5, {key::Home}), "ab\r\n|cd\r\nef");
  EXPECT_EQ(form.After(form.txtNotes, "ab\r\ncd\r\nef", 5, {key::End}), "ab\r\ncd|\r\nef");
  EXPECT_EQ(form.After(form.txtNotes, "ab\ncd\nef", 4, {key::Home}), "ab\n|cd\nef");
  EXPECT_EQ(form.After(form.txtNotes, "ab\ncd\nef", 4, {key::End}), "ab\ncd|\nef");
  EXPECT_EQ(form.After(form.txtA, "abc", 1, {key::End, key::Home}), "|abc");
}

TEST(Type, StartsAtTheEndOfTheText) {
  TypingForm form;
  form.txtA.Text("ab");
  form.hand.Type(form.txtA, "cd");
  EXPECT_EQ(form.txtA.Text(), "abcd");
  EXPECT_TRUE(form.txtA.HasFocus());
}

TEST(Type, RaisesKeyDownAndKeyPressOfEachCharacter) {
  TypingForm form;
  form.Watch(form.txtA);
  form.hand.Type(form.txtA, "aB1!");
  EXPECT_EQ(form.log, (Strings{"txtA KeyDown 65 0", "txtA KeyPress 97", "txtA KeyDown 66 1", "txtA KeyPress 66",
                               "txtA KeyDown 49 0", "txtA KeyPress 49", "txtA KeyDown 49 1", "txtA KeyPress 33"}));
}

struct TypedKey {
  std::string_view text;
  std::int16_t keyCode, shift;
};

TEST(Type, FindsTheKeyOfEveryCharacter) {
  constexpr TypedKey keys[] = {
      {"a", 'A', 0},       {"A", 'A', 1},  {"z", 'Z', 0},  {"Z", 'Z', 1},  {"0", '0', 0},   {")", '0', 1},
      {"1", '1', 0},       {"!", '1', 1},  {"2", '2', 0},  {"@", '2', 1},  {"3", '3', 0},   {"#", '3', 1},
      {"4", '4', 0},       {"$", '4', 1},  {"5", '5', 0},  {"%", '5', 1},  {"6", '6', 0},   {"^", '6', 1},
      {"7", '7', 0},       {"&", '7', 1},  {"8", '8', 0},  {"*", '8', 1},  {"9", '9', 0},   {"(", '9', 1},
      {" ", 32, 0},        {";", 0xBA, 0}, {":", 0xBA, 1}, {"=", 0xBB, 0}, {"+", 0xBB, 1},  {",", 0xBC, 0},
      {"<", 0xBC, 1},      {"-", 0xBD, 0}, {"_", 0xBD, 1}, {".", 0xBE, 0}, {">", 0xBE, 1},  {"/", 0xBF, 0},
      {"?", 0xBF, 1},      {"`", 0xC0, 0}, {"~", 0xC0, 1}, {"[", 0xDB, 0}, {"{", 0xDB, 1},  {"\\", 0xDC, 0},
      {"|", 0xDC, 1},      {"]", 0xDD, 0}, {"}", 0xDD, 1}, {"'", 0xDE, 0}, {"\"", 0xDE, 1}, {"ä", 0xE7, 0},
      {"\u2039", 0xE7, 0}, {"\b", 8, 0},
  };
  TypingForm form;
  for (const TypedKey& typed : keys) {
    std::vector<std::int16_t> seen;
    form.txtA.OnKeyDown = [&](std::int16_t& keyCode, std::int16_t shift) { seen = {keyCode, shift}; };
    form.hand.Type(form.txtA, typed.text);
    EXPECT_EQ(seen, (std::vector<std::int16_t>{typed.keyCode, typed.shift})) << typed.text;
  }
}

TEST(Type, OfAFullStopDeletesNothing) {
  TypingForm form;
  form.txtA.Text("ab");
  form.hand.Type(form.txtA, ".");
  EXPECT_EQ(form.txtA.Text(), "ab.");
}

TEST(Type, TakesEachKindOfLineBreakAsOneReturn) {
  TypingForm form;
  form.hand.Type(form.txtNotes, "a\r\nb\nc\rd");
  EXPECT_EQ(form.txtNotes.Text(), "a\r\nb\r\nc\r\nd");
}

TEST(Type, IntoALockedBoxRaisesItsEventsOnly) {
  TypingForm form;
  form.Watch(form.txtA);
  form.txtA.Locked(true);
  form.hand.Type(form.txtA, "a");
  EXPECT_EQ(form.log, (Strings{"txtA KeyDown 65 0", "txtA KeyPress 97"}));
  EXPECT_EQ(form.txtA.Text(), "");
}

TEST(Type, IsRefusedByADisabledBox) {
  TypingForm form;
  form.txtA.Enabled(false);
  EXPECT_EQ(FailureOf(FailureKind::InvalidCall, [&] { form.hand.Type(form.txtA, "a"); }), "txtA is disabled");
  EXPECT_EQ(form.txtA.Text(), "");
}

TEST(Type, GoesOnWhereTheFocusIs) {
  TypingForm form;
  form.hand.Type(form.txtA, "a\tb");
  EXPECT_EQ(form.txtA.Text(), "a");
  EXPECT_EQ(form.txtNotes.Text(), "b");
}

TEST(Type, EndsWhenTheFormCloses) {
  TypingForm form;
  form.txtA.OnKeyPress = [&](std::int16_t& keyAscii) {
    if (keyAscii == 'b') form.Unload();
  };
  form.KeyPreview(true);
  WhileShown(form, [&] { form.hand.Type(form.txtA, "abc"); });
  EXPECT_EQ(form.txtA.Text(), "a");
  EXPECT_EQ(form.log.back(), "Unload") << "the form saw more keys";
}

TEST(Type, LeavesTheCaretWhenTheFormClosesAsTheBoxGetsTheFocus) {
  TypingForm form;
  form.onLoad = [&] { form.cmdA.SetFocus(); };
  form.txtA.Text("abc");
  form.txtA.OnGotFocus = [&] { form.Unload(); };
  WhileShown(form, [&] { form.hand.Type(form.txtA, "d"); });
  EXPECT_EQ(TypingForm::Seen(form.txtA), "|abc");
}

TEST(Type, ReleasesEachKey) {
  TypingForm form;
  form.Watch(form.cmdA);
  form.txtA.OnKeyDown = [&](std::int16_t&, std::int16_t) { form.cmdA.SetFocus(); };
  form.hand.Type(form.txtA, "a ");
  EXPECT_EQ(form.log, (Strings{"cmdA KeyDown 32 0", "cmdA KeyPress 32", "cmdA Click"}));
}

}  // namespace
}  // namespace plexel
