#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWindow>

#include "services/module_state.h"
#include "stage.h"

namespace plexel::testing {
namespace {

using QtKeys = Stage;

std::vector<std::int32_t> hooked;

std::int32_t RememberKey(std::int32_t, std::int32_t wParam, std::intptr_t) {
  hooked.push_back(wParam);
  return 0;
}
std::int32_t KeepKey(std::int32_t, std::int32_t, std::intptr_t) { return -1; }

/// A key with its native code, as the platform's window gets it.
void SendNative(QWindow* window, QEvent::Type type, int key, quint32 keycode, const QString& text,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QKeyEvent event(type, key, modifiers, keycode, 0, 0, text);
  QCoreApplication::sendEvent(window, &event);
}

TEST_F(QtKeys, TheFormPreviewsEachKeyWithItsShiftState) {
  WhileShown([&](FormView& view) {
    Press(view, Qt::Key_X);
    Press(view, Qt::Key_F10);
    EXPECT_EQ(form.keys, (std::vector<std::pair<std::int16_t, std::int16_t>>{{'X', 0}, {key::F10, 0}}));
  });
}

TEST_F(QtKeys, AModifierIsInTheShiftStateOfItsOwnKey) {
  WhileShown([&](FormView& view) {
    QTest::keyPress(&FocusOf(view), Qt::Key_Shift);
    QTest::keyPress(&FocusOf(view), Qt::Key_Control);
    QTest::keyRelease(&FocusOf(view), Qt::Key_Control);
    QTest::keyRelease(&FocusOf(view), Qt::Key_Shift);
    EXPECT_EQ(form.keys, (std::vector<std::pair<std::int16_t, std::int16_t>>{
                             {key::Shift, key::ShiftBit}, {key::Control, key::ShiftBit | key::ControlBit}}));
  });
}

TEST_F(QtKeys, TypingInALineChangesModelAndWidget) {
  WhileShown([&](FormView& view) {
    form.line.SetFocus();
    platform.Modal().SyncAll();
    auto& edit = WidgetOf<QLineEdit>(view, form.line);
    QTest::keyClicks(&edit, "ab");
    EXPECT_EQ(form.line.Text(), "ab");
    EXPECT_EQ(form.line.SelStart(), 2);
    EXPECT_EQ(edit.text(), "ab");
    Press(view, Qt::Key_Left);
    EXPECT_EQ(form.line.SelStart(), 1);
    Press(view, Qt::Key_Backspace);
    EXPECT_EQ(form.line.Text(), "b");
    EXPECT_EQ(form.notes, (std::vector<std::string>{"line a", "line ab", "line b"}));
  });
}

TEST_F(QtKeys, ACharacterThatAHandlerDropsIsNotTyped) {
  WhileShown([&](FormView& view) {
    form.line.SetFocus();
    platform.Modal().SyncAll();
    QTest::keyClicks(&WidgetOf<QLineEdit>(view, form.line), "aqb");
    EXPECT_EQ(form.line.Text(), "ab");
    EXPECT_EQ(WidgetOf<QLineEdit>(view, form.line).text(), "ab");
  });
}

TEST_F(QtKeys, ANoteTakesReturnAndEndsAtItsLimit) {
  WhileShown([&](FormView& view) {
    form.strip.Tab(1);
    form.note.SetFocus();
    platform.Modal().SyncAll();
    auto& edit = WidgetOf<QPlainTextEdit>(view, form.note);
    Press(view, Qt::Key_A);
    Press(view, Qt::Key_Return);
    QTest::keyClicks(&edit, "0123456789012345678901234");
    EXPECT_EQ(form.note.TextLength(), 20);
    EXPECT_EQ(edit.toPlainText().toStdString(), form.note.Text());
    EXPECT_EQ(form.note.Text().substr(0, 3), "a\n0");
  });
}

TEST_F(QtKeys, TabFollowsTheTabOrderOfTheModel) {
  WhileShown([&](FormView& view) {
    for (int step = 0; step < 4; ++step) {
      Press(view, Qt::Key_Tab);
      ASSERT_NE(form.Focus(), nullptr);
      EXPECT_EQ(view.Window().focusWidget(), &view.ViewOf(form.Focus())->FocusWidget()) << form.Focus()->FullName();
    }
    EXPECT_NE(form.Focus(), form.TabOrder().front());
  });
}

TEST_F(QtKeys, EveryControlShowsThatItHasTheFocus) {
  WhileShown([&](FormView& view) {
    const auto pictureOf = [&](const Control& control) { return view.ViewOf(&control)->Outer().grab().toImage(); };
    for (std::size_t step = 0; step < form.TabOrder().size(); ++step) {
      const Control* const before = form.Focus();
      const QImage with = pictureOf(*before);
      Press(view, Qt::Key_Tab);
      ASSERT_NE(form.Focus(), before);
      EXPECT_NE(with, pictureOf(*before)) << before->FullName();
    }
  });
}

TEST_F(QtKeys, ControlAndTabOrPageDownTurnThePagesFromAnywhere) {
  WhileShown([&](FormView& view) {
    form.line.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(form.strip.Tab(), 1);
    form.note.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(form.strip.Tab(), 0);
    Press(view, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(form.strip.Tab(), 1);
    EXPECT_TRUE(form.strip.HasFocus());
    EXPECT_EQ(form.note.Text(), "");
  });
}

TEST_F(QtKeys, AltAndTheLetterOfACaptionActOnce) {
  form.ok.Caption("&OK");
  form.options[1]->Caption("Option &1");
  form.title.Caption("&Title");
  form.title.Names(form.line);
  form.strip.TabCaption(1, "&Page 1");
  WhileShown([&](FormView& view) {
    form.note.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_O, Qt::AltModifier);
    Press(view, Qt::Key_1, Qt::AltModifier);
    Press(view, Qt::Key_P, Qt::AltModifier);
    EXPECT_EQ(form.notes, (std::vector<std::string>{"ok", "option 1", "tab 1"}));
    Press(view, Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(form.line.HasFocus());
    EXPECT_EQ(form.line.Text(), "");
  });
}

TEST_F(QtKeys, TheLetterOfACaptionIsDrawnUnderlined) {
  form.title.Names(form.line);
  WhileShown([&](FormView& view) {
    const auto pictureOf = [&](const Control& control) { return view.ViewOf(&control)->Outer().grab().toImage(); };
    const auto underlines = [&](const Control& control, const std::function<void(const char*)>& caption) {
      const auto drawn = [&](const char* text) {
        caption(text);
        platform.Modal().SyncAll();
        return pictureOf(control);
      };
      const QImage plain = drawn("Fine & more"), marked = drawn("&Fine & more"), doubled = drawn("Fine && more");
      EXPECT_NE(plain, marked) << control.FullName();
      EXPECT_EQ(plain, doubled) << control.FullName();
    };
    underlines(form.ok, [&](const char* text) { form.ok.Caption(text); });
    underlines(*form.options[0], [&](const char* text) { form.options[0]->Caption(text); });
    underlines(form.title, [&](const char* text) { form.title.Caption(text); });
    underlines(form.frame, [&](const char* text) { form.frame.Caption(text); });
    underlines(form.strip, [&](const char* text) { form.strip.TabCaption(1, text); });
  });
}

TEST_F(QtKeys, TheArrowsMoveTheCellOfAGridThatIsNotInFront) {
  WhileShown([&](FormView& view) {
    form.strip.Tab(1);
    form.grid.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_Down);
    Press(view, Qt::Key_Right);
    EXPECT_EQ(form.grid.Row(), 2);
    EXPECT_EQ(form.grid.Col(), 2);
    form.strip.Tab(0);
    platform.Modal().SyncAll();
    EXPECT_EQ(&FocusOf(view), &view.ViewOf(&form.grid)->FocusWidget());
  });
}

TEST_F(QtKeys, TabRaisesNoKeyDown) {
  WhileShown([&](FormView& view) {
    form.line.SetFocus();
    platform.Modal().SyncAll();
    form.keys.clear();
    Press(view, Qt::Key_Tab);
    EXPECT_FALSE(form.line.HasFocus());
    Press(view, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(form.line.HasFocus());
    const std::pair<std::int16_t, std::int16_t> shiftAlone(key::Shift, key::ShiftBit);
    EXPECT_EQ(form.keys, std::vector{shiftAlone});
  });
}

TEST_F(QtKeys, EscapePressesTheCancelButton) {
  WhileShown([&](FormView& view) {
    Press(view, Qt::Key_Escape);
    EXPECT_FALSE(form.IsShown());
    EXPECT_EQ(form.notes, std::vector<std::string>{"close"});
  });
}

TEST_F(QtKeys, EscapeWithoutACancelButtonLeavesTheDialogOpen) {
  form.cancel.Cancel(false);
  WhileShown([&](FormView& view) {
    Press(view, Qt::Key_Escape);
    EXPECT_TRUE(form.IsShown());
    EXPECT_TRUE(view.Window().isVisible());
  });
}

TEST_F(QtKeys, TheMarkOfTheDefaultButtonGoesWithTheButtonThatReturnPresses) {
  form.ok.Default(true);
  WhileShown([&](FormView& view) {
    const auto markedWith = [&](Control& focus) {
      focus.SetFocus();
      platform.Modal().SyncAll();
      return WidgetOf<QPushButton>(view, form.ok).isDefault();
    };
    EXPECT_TRUE(markedWith(form.line));
    EXPECT_FALSE(markedWith(form.cancel));
    EXPECT_TRUE(markedWith(form.ok));
  });
}

TEST_F(QtKeys, ReturnPressesTheDefaultButton) {
  form.ok.Default(true);
  WhileShown([&](FormView& view) {
    form.line.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_Return);
    EXPECT_EQ(form.notes, std::vector<std::string>{"ok"});
  });
}

TEST_F(QtKeys, SpaceReleasedOnAButtonPressesIt) {
  WhileShown([&](FormView& view) {
    form.ok.SetFocus();
    platform.Modal().SyncAll();
    QTest::keyPress(&view.ViewOf(&form.ok)->Outer(), Qt::Key_Space);
    EXPECT_TRUE(form.notes.empty());
    QTest::keyRelease(&view.ViewOf(&form.ok)->Outer(), Qt::Key_Space);
    EXPECT_EQ(form.notes, std::vector<std::string>{"ok"});
  });
}

TEST_F(QtKeys, AHookSeesKeysAheadOfTheForm) {
  hooked.clear();
  const std::int32_t hook = platform.Hooks().Install(HookKind::Keyboard, RememberKey);
  WhileShown([&](FormView& view) {
    form.line.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_A);
    EXPECT_EQ(hooked, (std::vector<std::int32_t>{'A', 'A'}));
    EXPECT_EQ(form.keys.size(), 1U);
  });
  EXPECT_EQ(platform.Hooks().Remove(hook), 1);
}

TEST_F(QtKeys, AKeyThatTheLowLevelHookKeepsReachesNobody) {
  hooked.clear();
  const std::int32_t low = platform.Hooks().Install(HookKind::LowLevelKeyboard, KeepKey);
  const std::int32_t hook = platform.Hooks().Install(HookKind::Keyboard, RememberKey);
  WhileShown([&](FormView& view) {
    Press(view, Qt::Key_Escape);
    EXPECT_TRUE(hooked.empty());
    EXPECT_TRUE(form.keys.empty());
    EXPECT_TRUE(form.IsShown());
  });
  EXPECT_EQ(platform.Hooks().Remove(hook), 1);
  EXPECT_EQ(platform.Hooks().Remove(low), 1);
}

TEST_F(QtKeys, ANativeCodeNamesTheKeyWhateverItsCharacter) {
  WhileShown([&](FormView& view) {
    constexpr quint32 KeycodeOfA = 38;
    SendNative(view.Window().windowHandle(), QEvent::KeyPress, Qt::Key_Q, KeycodeOfA, "q");
    SendNative(view.Window().windowHandle(), QEvent::KeyRelease, Qt::Key_Q, KeycodeOfA, "q");
    ASSERT_EQ(form.keys.size(), 1U);
    EXPECT_EQ(form.keys[0].first, platform.Layout().VirtualKeyOf(30));
  });
}

TEST_F(QtKeys, TheStateOfAKeyFollowsItsEvents) {
  WhileShown([&](FormView& view) {
    EXPECT_EQ(platform.Keys().Asynchronous(key::Control), 0);
    QTest::keyPress(&FocusOf(view), Qt::Key_Control);
    EXPECT_LT(platform.Keys().Asynchronous(key::Control), 0);
    constexpr std::int32_t LeftControl = 0xA2, RightControl = 0xA3;
    EXPECT_LT(platform.Keys().Asynchronous(LeftControl), 0);
    EXPECT_EQ(platform.Keys().Asynchronous(RightControl), 0);
    QTest::keyRelease(&FocusOf(view), Qt::Key_Control);
    EXPECT_EQ(platform.Keys().Asynchronous(key::Control), 0);
  });
}

TEST_F(QtKeys, AReleaseThatWasLostIsMadeUpFor) {
  hooked.clear();
  WhileShown([&](FormView& view) {
    QTest::keyPress(&FocusOf(view), Qt::Key_Control);
    platform.Keys().ReleaseLost({}, [&](const KeyEvent& event, bool) { view.TakeKey(event, 0); });
    EXPECT_EQ(platform.Keys().Asynchronous(key::Control), 0);
  });
}

TEST_F(QtKeys, F1OpensTheTopicOfTheControlElseOfTheForm) {
  form.HelpContextID(7);
  form.ok.HelpContextID(8);
  Module().HelpFile = "help.chm";
  WhileShown([&](FormView& view) {
    form.ok.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_F1);
    form.line.SetFocus();
    platform.Modal().SyncAll();
    Press(view, Qt::Key_F1);
    ASSERT_EQ(help.Shown().size(), 2U);
    EXPECT_EQ(help.Shown()[0].topic, 8);
    EXPECT_EQ(help.Shown()[1].topic, 7);
    EXPECT_EQ(help.Shown()[1].file, "help.chm");
  });
  Module().HelpFile.clear();
}

TEST_F(QtKeys, F1WithoutAHelpFileOpensNothing) {
  form.HelpContextID(7);
  WhileShown([&](FormView& view) {
    Press(view, Qt::Key_F1);
    EXPECT_TRUE(help.Shown().empty());
  });
}

}  // namespace
}  // namespace plexel::testing
