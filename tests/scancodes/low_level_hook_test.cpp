#include <gtest/gtest.h>

#include "platform/platform_in_force.h"
#include "scancodes/keyboard_hook.h"
#include "scancodes/scancode_session.h"
#include "scancodes/toggled_platform.h"

namespace plexel {
namespace {

/// What the low-level hook answers to a key.
std::int32_t LowLevel(std::int32_t virtualKey, std::int32_t flags, std::int32_t message = 0x100,
                      std::int32_t nCode = 0) {
  const LowLevelKey key{virtualKey, 0x3B, flags, 12, 34};
  return LowLevelKeyboardProc(nCode, message, reinterpret_cast<std::intptr_t>(&key));
}

constexpr std::int32_t altFlag = 0x20;

TEST(LowLevelHook, TaskKeysAreSwallowed) {
  ScanCodeSession session;
  EXPECT_EQ(LowLevel(0x1B, altFlag), -1);
  EXPECT_EQ(LowLevel(0x09, altFlag), -1);
  EXPECT_EQ(LowLevel(0x5B, 0), -1);
  EXPECT_EQ(LowLevel(0x5C, 0), -1);
  session.platform.Keys().Hold(0x11);
  EXPECT_EQ(LowLevel(0x1B, 0), -1);
  EXPECT_EQ(session.platform.Hooks().NextCalls(), 0);
}

TEST(LowLevelHook, TheToggleBitOfControlDoesNotCount) {
  ToggledPlatform platform;
  const PlatformInForce use(platform);
  EXPECT_EQ(LowLevel(0x1B, 0), 0);
}

TEST(LowLevelHook, AllFourKeyMessagesAreLookedAt) {
  ScanCodeSession session;
  for (const std::int32_t message : {0x100, 0x101, 0x104, 0x105}) EXPECT_EQ(LowLevel(0x5B, 0, message), -1);
  for (const std::int32_t message : {0x102, 0x103, 0x106, 0}) EXPECT_EQ(LowLevel(0x5B, 0, message), 0);
  EXPECT_EQ(LowLevel(0x5B, 0, 0x100, 1), 0);
  EXPECT_EQ(LowLevel(0x5B, 0, 0x100, -1), 0);
  EXPECT_EQ(session.platform.Hooks().NextCalls(), 6);
}

TEST(LowLevelHook, OtherKeysPassToTheNextHook) {
  ScanCodeSession session;
  session.platform.Keys().Hold(0x11);
  EXPECT_EQ(LowLevel(0x09, 0), 0);
  EXPECT_EQ(LowLevel(0x41, altFlag), 0);
  EXPECT_EQ(LowLevel(0x0D, altFlag), 0);
  session.platform.Keys().Free(0x11);
  EXPECT_EQ(LowLevel(0x1B, ~altFlag), 0);
  EXPECT_EQ(session.platform.Hooks().NextCalls(), 4);
}

TEST(LowLevelHook, TheRecordIsCopiedForKeyMessagesOnly) {
  ScanCodeSession session;
  LowLevel(0x41, 1, 0x200);
  EXPECT_EQ(Module().udtLowLevelKey.virtualKey, 0);
  LowLevel(0x41, 1);
  EXPECT_EQ(Module().udtLowLevelKey.virtualKey, 0x41);
  EXPECT_EQ(Module().udtLowLevelKey.scanCode, 0x3B);
  EXPECT_EQ(Module().udtLowLevelKey.flags, 1);
  EXPECT_EQ(Module().udtLowLevelKey.time, 12);
  EXPECT_EQ(Module().udtLowLevelKey.extraInfo, 34);
}

TEST(LowLevelHook, AFailingKeyStateLetsTheKeyPass) {
  ScanCodeSession session;
  session.platform.faults.Turn(Fault::Keys, true);
  EXPECT_EQ(LowLevel(0x5B, 0), 0);
}

}  // namespace
}  // namespace plexel
