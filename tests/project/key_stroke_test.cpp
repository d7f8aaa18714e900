#include "project/key_stroke.h"

#include <gtest/gtest.h>

#include "keyboard/key_table.h"
#include "project/key_code_names.h"
#include "project/search.h"

namespace plexel {
namespace {

/// Kernel codes of keys.
constexpr int KeyA = 30, KeyF13 = 183, Home = 102, Pad7 = 71, Left = 105, KeyDivide = 98;

class Stroke : public ::testing::Test {
 protected:
  void Key(int evdev, bool down) {
    const KeyPosition* const key = FindKeyPosition(evdev);
    ASSERT_NE(key, nullptr) << evdev;
    stroke.Take({key->virtualKeyNumLock, key->scanCode, key->extended, down, 0});
  }
  /// What is told of keys that go down one after the other and come up again.
  std::string Pressed(std::initializer_list<int> keys) {
    for (const int key : keys) Key(key, true);
    EXPECT_FALSE(stroke.IsOver());
    for (const int key : keys) Key(key, false);
    EXPECT_TRUE(stroke.IsOver());
    return KeySearch(stroke.Keys()).Text();
  }
  KeyStroke stroke;
};

TEST_F(Stroke, HasNotBegunWithoutAKey) {
  EXPECT_FALSE(stroke.IsOver());
  Key(KeyA, false);
  EXPECT_FALSE(stroke.IsOver());
  EXPECT_TRUE(stroke.Keys().empty());
}

TEST_F(Stroke, TellsKeysByWhatAPcGets) {
  EXPECT_EQ(Pressed({KeyA}), "a");
  EXPECT_EQ(Pressed({KeyF13}), "F13");
  EXPECT_EQ(stroke.Keys(), std::vector<KeyCode>{0x08});
}

TEST_F(Stroke, GathersAChordUntilAllKeysAreUp) {
  Key(evdev::LeftCtrl, true);
  Key(KeyA, true);
  Key(evdev::LeftCtrl, false);
  EXPECT_FALSE(stroke.IsOver());
  Key(KeyA, false);
  EXPECT_TRUE(stroke.IsOver());
  EXPECT_EQ(stroke.Keys(), (std::vector<KeyCode>{0x14, 0x1C}));
}

TEST_F(Stroke, BeginsAnewBehindTheLastRelease) {
  Pressed({KeyA});
  EXPECT_EQ(Pressed({KeyF13}), "F13");
}

TEST_F(Stroke, ARepeatChangesNothing) {
  Key(KeyA, true);
  EXPECT_EQ(Pressed({KeyA}), "a");
}

TEST_F(Stroke, AKeyThatGoesDownAgainInAChordCountsOnce) {
  Key(evdev::LeftCtrl, true);
  Key(KeyA, true);
  Key(KeyA, false);
  Key(KeyA, true);
  EXPECT_EQ(stroke.Keys(), (std::vector<KeyCode>{0x14, 0x1C}));
}

TEST_F(Stroke, TellsTheCursorBlockFromTheNumberPad) {
  EXPECT_EQ(Pressed({Home}), KeyNameOf(0xE06C));
  EXPECT_EQ(Pressed({Left}), KeyNameOf(0xE06B));
  EXPECT_EQ(Pressed({Pad7}), KeyNameOf(0x6C));
  EXPECT_EQ(Pressed({KeyDivide}), KeyNameOf(0xE04A));
  EXPECT_EQ(Pressed({evdev::LeftShift, Home}), KeyNameOf(0x12) + " + " + KeyNameOf(0xE06C));
}

TEST_F(Stroke, KeysThatChangeWithModifiersAreThoseThatCaptureStores) {
  EXPECT_EQ(Pressed({evdev::Print}), KeyNameOf(0xE07C));
  Pressed({evdev::LeftAlt, evdev::Print});
  EXPECT_EQ(stroke.Keys(), (std::vector<KeyCode>{0x11, 0x84}));
  Pressed({evdev::NumLock});
  EXPECT_EQ(stroke.Keys(), std::vector<KeyCode>{0x77});
  Pressed({evdev::Pause});
  EXPECT_EQ(stroke.Keys(), std::vector<KeyCode>{PauseKey});
  for (const auto& [ctrl, code] : {std::pair{evdev::LeftCtrl, 0x14}, std::pair{evdev::RightCtrl, 0xE014}}) {
    Pressed({ctrl, evdev::Pause});
    EXPECT_EQ(stroke.Keys(), (std::vector<KeyCode>{static_cast<KeyCode>(code), 0xE07E}));
  }
}

TEST_F(Stroke, EveryNamedKeyOfAKeyboardIsHeardAsOneKey) {
  for (const KeyPosition& key : KeyPositions()) {
    KeyStroke alone;
    alone.Take({key.virtualKeyNumLock, key.scanCode, key.extended, true, 0});
    alone.Take({key.virtualKeyNumLock, key.scanCode, key.extended, false, 0});
    EXPECT_TRUE(alone.IsOver());
    EXPECT_LE(alone.Keys().size(), 1U) << key.evdev;
  }
}

TEST_F(Stroke, EitherAltMakesPrintTheOtherKey) {
  constexpr int Print = 99, RightAlt = 100;
  constexpr KeyCode plainPrint = 0xE07C, printWithAlt = 0x84;
  Pressed({Print});
  EXPECT_EQ(stroke.Keys(), std::vector<KeyCode>{plainPrint});
  Pressed({evdev::LeftAlt, Print});
  EXPECT_EQ(stroke.Keys(), (std::vector<KeyCode>{0x11, printWithAlt}));
  Pressed({RightAlt, Print});
  EXPECT_EQ(stroke.Keys(), (std::vector<KeyCode>{0xE011, printWithAlt}));
}

}  // namespace
}  // namespace plexel
