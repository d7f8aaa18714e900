#include <QAbstractEventDispatcher>

#include "keyboard/desktop_keyboard.h"
#include "keyboard/named_layout.h"
#include "platform/failure.h"
#include "stage.h"

namespace plexel::testing {
namespace {

/// What a desktop was asked for, and what it answers.
struct DesktopLog {
  WinKeys::KeySet down;
  std::vector<std::uintptr_t> grabs;
  int ungrabs = 0, layoutsRead = 0;
};

/// A desktop whose messages are the events themselves.
class WrittenDesktop : public DesktopKeyboard {
 public:
  explicit WrittenDesktop(DesktopLog& log) : log_(log) {}
  DesktopEvent Read(std::string_view kind, const void* message) const override {
    return kind == "written" ? *static_cast<const DesktopEvent*>(message) : DesktopEvent();
  }
  std::unique_ptr<TableLayout> ReadLayout() const override {
    ++log_.layoutsRead;
    return NamedLayout("us");
  }
  WinKeys::KeySet ReadKeys() const override { return log_.down; }
  bool Grab(std::uintptr_t window) override {
    log_.grabs.push_back(window);
    return true;
  }
  void Ungrab() override { ++log_.ungrabs; }

 private:
  DesktopLog& log_;
};

std::int32_t PassOn(std::int32_t, std::int32_t, std::intptr_t) { return 0; }

struct LogFirst {
  DesktopLog log;
};

class QtCapture : protected LogFirst, public Stage {
 protected:
  QtCapture() : Stage(std::make_unique<WrittenDesktop>(log)) {}
  /// Sends a message of the desktop through the toolkit; true when it went no further.
  static bool Message(DesktopEvent event) {
    qintptr result = 0;
    return QAbstractEventDispatcher::instance()->filterNativeEvent("written", &event, &result);
  }
  static bool Key(int evdev, bool down, std::uint32_t time, std::uint32_t group = 0) {
    return Message(DesktopKey{{evdev, down, time}, false, group});
  }
};

TEST_F(QtCapture, AKeyGoesToTheFormAheadOfTheToolkitWhileAHookIsInstalled) {
  WhileShown([&](FormView&) {
    platform.Hooks().Install(HookKind::Keyboard, PassOn);
    EXPECT_TRUE(Key(45, true, 1));
    EXPECT_EQ(form.keys, (std::vector<std::pair<std::int16_t, std::int16_t>>{{'X', 0}}));
  });
}

TEST_F(QtCapture, AKeyIsLeftToTheToolkitWithoutAHook) {
  WhileShown([&](FormView&) {
    EXPECT_FALSE(Key(45, true, 1));
    EXPECT_TRUE(form.keys.empty());
  });
}

TEST_F(QtCapture, AReleaseAndAPressOfOneTimeAreARepeat) {
  WhileShown([&](FormView&) {
    platform.Hooks().Install(HookKind::Keyboard, PassOn);
    Key(45, true, 1);
    Key(45, false, 2);
    Key(45, true, 2);
    EXPECT_NE(platform.Keys().Asynchronous('X'), 0);
    EXPECT_EQ(form.keys.size(), 2U);
  });
}

TEST_F(QtCapture, TheKeyboardIsTakenWithTheLowLevelHookAndGivenBackWithIt) {
  WhileShown([&](FormView& view) {
    const std::int32_t hook = platform.Hooks().Install(HookKind::LowLevelKeyboard, PassOn);
    EXPECT_EQ(log.grabs, std::vector<std::uintptr_t>{view.Window().winId()});
    const int before = log.ungrabs;
    platform.Hooks().Remove(hook);
    EXPECT_EQ(log.ungrabs, before + 1);
  });
}

TEST_F(QtCapture, AFocusThatLeavesTheFormGivesTheKeyboardBack) {
  WhileShown([&](FormView& view) {
    const int before = log.ungrabs;
    Message(DesktopFocus{view.Window().winId() + 1, false});
    EXPECT_EQ(log.ungrabs, before);
    Message(DesktopFocus{view.Window().winId(), false});
    EXPECT_EQ(log.ungrabs, before + 1);
  });
}

TEST_F(QtCapture, AKeyThatWasReleasedElsewhereIsReleasedWhenTheFocusComes) {
  WhileShown([&](FormView& view) {
    platform.Hooks().Install(HookKind::Keyboard, PassOn);
    Key(45, true, 1);
    ASSERT_NE(platform.Keys().Asynchronous('X'), 0);
    Message(DesktopFocus{view.Window().winId(), true});
    EXPECT_EQ(platform.Keys().Asynchronous('X'), 0);
  });
}

TEST_F(QtCapture, TheLayoutIsReadAnewForAnotherGroupAndForAnotherLayout) {
  EXPECT_EQ(log.layoutsRead, 1);
  Key(45, true, 1, 1);
  EXPECT_EQ(log.layoutsRead, 2);
  Key(45, false, 2, 1);
  EXPECT_EQ(log.layoutsRead, 2);
  Message(DesktopLayout());
  Key(45, true, 3, 1);
  EXPECT_EQ(log.layoutsRead, 3);
}

TEST_F(QtCapture, HasFullCapture) { EXPECT_TRUE(platform.HasFullCapture()); }

}  // namespace
}  // namespace plexel::testing
