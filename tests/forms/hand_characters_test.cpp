#include "keys_form.h"

namespace plexel {
namespace {

constexpr std::int16_t letterA = 'A';

TEST(KeyPress, EntersTheCharacterOfItsCode) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyPress(0x80), 0x80); }),
            Strings{"txtLine KeyPress 128"});
  EXPECT_EQ(form.txtLine.Text(), "€");
}

TEST(KeyPress, IsPreviewedByTheForm) {
  KeysForm form;
  form.KeyPreview(true);
  form.onKeyPress = [](std::int16_t& keyAscii) { keyAscii = 'b'; };
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyPress('a'), 'b'); }),
            (Strings{"Form KeyPress 97", "txtLine KeyPress 98"}));
  EXPECT_EQ(form.txtLine.Text(), "b");
}

TEST(KeyPress, TakenAwayByAHandlerEntersNothing) {
  KeysForm form;
  form.txtLine.OnKeyPress = [](std::int16_t& keyAscii) { keyAscii = 0; };
  form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyPress('a'), 0); });
  EXPECT_EQ(form.txtLine.Text(), "");
}

TEST(KeyPress, ThatAHandlerMakesNoCharacterOfTheCodePageEntersNothing) {
  for (const std::int16_t code : std::initializer_list<std::int16_t>{-1, -191, 0x100, 0x141, 0x7FFF}) {
    KeysForm form;
    form.txtLine.OnKeyPress = [code](std::int16_t& keyAscii) { keyAscii = code; };
    form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyPress('a'), code); });
    EXPECT_EQ(form.txtLine.Text(), "") << code;
  }
}

TEST(KeyPress, OfACodeThatIsNoneIsRefused) {
  KeysForm form;
  EXPECT_NE(FailureOf(FailureKind::InvalidCall, [&] { form.hand.KeyPress(256); }), "");
  EXPECT_NE(FailureOf(FailureKind::InvalidCall, [&] { form.hand.KeyPress(-1); }), "");
}

TEST(KeyPress, TakesTheLowestAndTheHighestCode) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyPress(0), 0); }), Strings{"txtLine KeyPress 0"});
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_EQ(form.hand.KeyPress(255), 255); }),
            Strings{"txtLine KeyPress 255"});
  EXPECT_EQ(form.txtLine.Text(), "ÿ");
}

TEST(KeyPress, FollowsAKeyDownThatWasTakenAway) {
  KeysForm form;
  form.txtLine.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  form.Raised(form.txtLine, [&] { form.hand.Key(letterA, 0, 'a'); });
  EXPECT_EQ(form.txtLine.Text(), "a");
}

TEST(KeyPress, OfACharacterThatTheCodePageLacksIsAQuestionMarkToHandlersOnly) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine, [&] { form.hand.Key(0xE7, 0, U'Ω'); }),
            (Strings{"txtLine KeyDown 231 0", "txtLine KeyPress 63"}));
  EXPECT_EQ(form.txtLine.Text(), "Ω");
}

TEST(PreviewKey, LeavesACharacterToTheEditor) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtLine, [&] { EXPECT_TRUE(form.hand.PreviewKey(letterA, 0, 'a')); }),
            (Strings{"txtLine KeyDown 65 0", "txtLine KeyPress 97"}));
  EXPECT_EQ(form.txtLine.Text(), "");
}

TEST(PreviewKey, LeavesAKeyWithoutACharacterToTheEditor) {
  KeysForm form;
  form.txtLine.Text("abc");
  form.Raised(form.txtLine, [&] {
    EXPECT_TRUE(form.hand.PreviewKey(key::Delete, 0, 0));
    EXPECT_TRUE(form.hand.PreviewKey(key::Right, 0, 0));
  });
  EXPECT_EQ(form.txtLine.Text(), "abc");
  EXPECT_EQ(form.txtLine.SelStart(), 0);
}

TEST(PreviewKey, TakesAwayWhatAHandlerTakesAway) {
  KeysForm form;
  form.txtLine.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = 0; };
  form.txtLine.OnKeyPress = [](std::int16_t& keyAscii) { keyAscii = 0; };
  form.Raised(form.txtLine, [&] {
    EXPECT_FALSE(form.hand.PreviewKey(key::Delete, 0, 0));
    EXPECT_FALSE(form.hand.PreviewKey(letterA, 0, 'a'));
  });
}

TEST(PreviewKey, EntersACharacterThatAHandlerChanged) {
  KeysForm form;
  form.txtLine.OnKeyPress = [](std::int16_t& keyAscii) { keyAscii = 'b'; };
  form.Raised(form.txtLine, [&] { EXPECT_FALSE(form.hand.PreviewKey(letterA, 0, 'a')); });
  EXPECT_EQ(form.txtLine.Text(), "b");
}

TEST(PreviewKey, CarriesOutAKeyThatAHandlerChanged) {
  KeysForm form;
  form.txtLine.Text("abc");
  form.txtLine.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { keyCode = key::End; };
  form.Raised(form.txtLine, [&] { EXPECT_FALSE(form.hand.PreviewKey(key::Right, 0, 0)); });
  EXPECT_EQ(form.txtLine.SelStart(), 3);
}

TEST(PreviewKey, KeepsTheKeysOfTheForm) {
  KeysForm form;
  EXPECT_EQ(form.Raised(form.txtNotes,
                        [&] {
                          EXPECT_FALSE(form.hand.PreviewKey(key::Escape, 0, key::Escape));
                          EXPECT_TRUE(form.hand.PreviewKey(key::Return, 0, key::Return));
                          EXPECT_FALSE(form.hand.PreviewKey(key::Tab, 0, key::Tab));
                        }),
            (Strings{"cmdCancel Click", "txtNotes KeyDown 13 0", "txtNotes KeyPress 13", "txtNotes LostFocus",
                     "cmdOK GotFocus"}));
}

TEST(PreviewKey, LeavesNothingToTheEditorOnceTheFormHasClosed) {
  KeysForm form;
  form.txtLine.OnKeyPress = [&](std::int16_t&) { form.Unload(); };
  form.Raised(form.txtLine, [&] { EXPECT_FALSE(form.hand.PreviewKey(letterA, 0, 'a')); });
}

TEST(PreviewKey, ActsOnOtherControlsAsEver) {
  KeysForm form;
  form.Raised(form.msgA, [&] { EXPECT_FALSE(form.hand.PreviewKey(key::Down, 0, 0)); });
  EXPECT_EQ(form.msgA.Row(), 2);
}

TEST(PreviewKey, LeavesNothingToAnEditorThatTheKeyTurnedOff) {
  KeysForm form;
  form.txtLine.OnKeyDown = [&](std::int16_t&, std::int16_t) { form.txtLine.Enabled(false); };
  form.Raised(form.txtLine, [&] { EXPECT_FALSE(form.hand.PreviewKey(key::Delete, 0, 0)); });
}

TEST(PreviewKey, LeavesNothingWhereNoControlHasTheFocus) {
  KeysForm form;
  WhileShown(form, [&] {
    form.Focus(nullptr);
    EXPECT_FALSE(form.hand.PreviewKey(key::Delete, 0, 0));
    EXPECT_FALSE(form.hand.PreviewKey(letterA, 0, 'a'));
  });
}

}  // namespace
}  // namespace plexel
