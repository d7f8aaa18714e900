#include "keyboard/hook_table.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

namespace plexel {
namespace {

struct Call {
  std::int32_t code, wParam;
  std::uint32_t word;
};

std::vector<Call> keyboardCalls;
std::vector<LowLevelKey> lowLevelKeys;
std::vector<std::int32_t> lowLevelMessages;
std::int32_t lowLevelResult = 0;

std::int32_t Keyboard(std::int32_t code, std::int32_t wParam, std::intptr_t lParam) {
  keyboardCalls.push_back({code, wParam, static_cast<std::uint32_t>(lParam)});
  return 0;
}

std::int32_t LowLevel(std::int32_t, std::int32_t wParam, std::intptr_t lParam) {
  lowLevelKeys.push_back(*reinterpret_cast<const LowLevelKey*>(lParam));
  lowLevelMessages.push_back(wParam);
  return lowLevelResult;
}

class HookTableTest : public testing::Test {
 protected:
  void SetUp() override {
    keyboardCalls.clear();
    lowLevelKeys.clear();
    lowLevelMessages.clear();
    lowLevelResult = 0;
  }
  static KeyEvent Key(std::int32_t virtualKey, std::int32_t scanCode, bool extended, bool down) {
    return {virtualKey, scanCode, extended, down, 77};
  }
  HookTable hooks;
};

TEST_F(HookTableTest, AKeyWithoutHooksGoesItsWay) { EXPECT_FALSE(hooks.Deliver(Key(0x41, 0x1E, false, true), false)); }

TEST_F(HookTableTest, TheFlagWordOfAPressHoldsRepeatAndScanCode) {
  hooks.Install(HookKind::Keyboard, Keyboard);
  hooks.Deliver(Key(0x41, 0x1E, false, true), false);
  ASSERT_EQ(keyboardCalls.size(), 1U);
  EXPECT_EQ(keyboardCalls[0].code, 0);
  EXPECT_EQ(keyboardCalls[0].wParam, 0x41);
  EXPECT_EQ(keyboardCalls[0].word, 0x001E0001U);
}

TEST_F(HookTableTest, ARepeatedPressSaysThatTheKeyWasDown) {
  hooks.Install(HookKind::Keyboard, Keyboard);
  hooks.Deliver(Key(0x41, 0x1E, false, true), false);
  hooks.Deliver(Key(0x41, 0x1E, false, true), false);
  EXPECT_EQ(keyboardCalls[1].word, 0x401E0001U);
}

TEST_F(HookTableTest, APressAfterTheReleaseIsAFirstOne) {
  hooks.Install(HookKind::Keyboard, Keyboard);
  hooks.Deliver(Key(0x41, 0x1E, false, true), false);
  hooks.Deliver(Key(0x41, 0x1E, false, false), false);
  hooks.Deliver(Key(0x41, 0x1E, false, true), false);
  EXPECT_EQ(keyboardCalls[2].word, 0x001E0001U);
}

TEST_F(HookTableTest, TheFlagWordOfAReleaseHoldsBothHighBits) {
  hooks.Install(HookKind::Keyboard, Keyboard);
  hooks.Deliver(Key(0x11, 0x1D, true, false), false);
  EXPECT_EQ(keyboardCalls[0].word, 0xC11D0001U);
}

TEST_F(HookTableTest, TheFlagWordTellsThatAltIsDown) {
  hooks.Install(HookKind::Keyboard, Keyboard);
  hooks.Deliver(Key(0x41, 0x1E, false, true), true);
  EXPECT_EQ(keyboardCalls[0].word, 0x201E0001U);
}

TEST_F(HookTableTest, TheLowLevelRecordTellsKeyAndFlags) {
  hooks.Install(HookKind::LowLevelKeyboard, LowLevel);
  hooks.Deliver(Key(0x2E, 0x53, true, false), true);
  ASSERT_EQ(lowLevelKeys.size(), 1U);
  EXPECT_EQ(lowLevelKeys[0].virtualKey, 0x2E);
  EXPECT_EQ(lowLevelKeys[0].scanCode, 0x53);
  EXPECT_EQ(lowLevelKeys[0].flags, 0xA1);
  EXPECT_EQ(lowLevelKeys[0].time, 77);
}

TEST_F(HookTableTest, TheLowLevelMessageFollowsDirectionAndAlt) {
  hooks.Install(HookKind::LowLevelKeyboard, LowLevel);
  for (const bool alt : {false, true}) {
    hooks.Deliver(Key(0x41, 0x1E, false, true), alt);
    hooks.Deliver(Key(0x41, 0x1E, false, false), alt);
  }
  EXPECT_EQ(lowLevelMessages, (std::vector<std::int32_t>{0x100, 0x101, 0x104, 0x105}));
}

TEST_F(HookTableTest, AKeyThatTheLowLevelHookKeepsReachesNobody) {
  hooks.Install(HookKind::LowLevelKeyboard, LowLevel);
  hooks.Install(HookKind::Keyboard, Keyboard);
  lowLevelResult = -1;
  EXPECT_TRUE(hooks.Deliver(Key(0x5B, 0x5B, true, true), false));
  EXPECT_TRUE(keyboardCalls.empty());
}

TEST_F(HookTableTest, AKeyThatTheLowLevelHookKeptWasNeverDown) {
  hooks.Install(HookKind::LowLevelKeyboard, LowLevel);
  hooks.Install(HookKind::Keyboard, Keyboard);
  lowLevelResult = -1;
  hooks.Deliver(Key(0x41, 0x1E, false, true), false);
  lowLevelResult = 0;
  hooks.Deliver(Key(0x41, 0x1E, false, true), false);
  EXPECT_EQ(keyboardCalls[0].word, 0x001E0001U);
}

TEST_F(HookTableTest, AKeyThatTheLowLevelHookPassesReachesTheKeyboardHook) {
  hooks.Install(HookKind::LowLevelKeyboard, LowLevel);
  hooks.Install(HookKind::Keyboard, Keyboard);
  EXPECT_FALSE(hooks.Deliver(Key(0x41, 0x1E, false, true), false));
  EXPECT_EQ(keyboardCalls.size(), 1U);
}

TEST_F(HookTableTest, ARemovedHookIsNotCalled) {
  const std::int32_t handle = hooks.Install(HookKind::Keyboard, Keyboard);
  EXPECT_NE(hooks.Remove(handle), 0);
  hooks.Deliver(Key(0x41, 0x1E, false, true), false);
  EXPECT_TRUE(keyboardCalls.empty());
  EXPECT_FALSE(hooks.Installed(HookKind::Keyboard));
}

TEST_F(HookTableTest, AHookIsRemovedOnce) {
  const std::int32_t handle = hooks.Install(HookKind::Keyboard, Keyboard);
  hooks.Remove(handle);
  EXPECT_EQ(hooks.Remove(handle), 0);
}

TEST_F(HookTableTest, HandlesAreNeverZeroAndNeverTheSame) {
  const std::int32_t first = hooks.Install(HookKind::Keyboard, Keyboard);
  const std::int32_t second = hooks.Install(HookKind::Keyboard, Keyboard);
  EXPECT_NE(first, 0);
  EXPECT_NE(first, second);
}

TEST_F(HookTableTest, EachChangeIsTold) {
  std::vector<std::pair<HookKind, bool>> changes;
  hooks.onChange = [&changes](HookKind kind, bool installed) { changes.emplace_back(kind, installed); };
  const std::int32_t handle = hooks.Install(HookKind::LowLevelKeyboard, LowLevel);
  hooks.Remove(handle);
  hooks.Remove(handle);
  EXPECT_EQ(changes, (std::vector<std::pair<HookKind, bool>>{{HookKind::LowLevelKeyboard, true},
                                                             {HookKind::LowLevelKeyboard, false}}));
}

TEST_F(HookTableTest, CallingTheNextHookYieldsZeroAndIsCounted) {
  EXPECT_EQ(hooks.CallNext(2, -1, 0, 0), 0);
  EXPECT_EQ(hooks.NextCalls(), 1);
}

}  // namespace
}  // namespace plexel
