#include <gtest/gtest.h>

#include <array>

#include "headless/headless_platform.h"
#include "platform/failure.h"
#include "services/shared_services.h"

namespace plexel {
namespace {

class Ports : public testing::Test {
 protected:
  HeadlessPlatform platform;
};

TEST_F(Ports, AHeldKeyIsDownForBothQuestions) {
  platform.Keys().Hold(0x41);
  EXPECT_EQ(static_cast<std::uint16_t>(platform.Keys().Asynchronous(0x41)), 0x8000);
  EXPECT_EQ(static_cast<std::uint16_t>(platform.Keys().Synchronous(0x41)), 0x8000);
  EXPECT_EQ(platform.Keys().Asynchronous(0x42), 0);
}

TEST_F(Ports, AFreedKeyIsUp) {
  platform.Keys().Hold(0x41);
  platform.Keys().Free(0x41);
  EXPECT_EQ(platform.Keys().Asynchronous(0x41), 0);
}

TEST_F(Ports, KeysOutsideTheKeyboardAreNeverDown) {
  platform.Keys().Hold(256);
  platform.Keys().Hold(-1);
  EXPECT_FALSE(platform.Keys().IsDown(256));
  EXPECT_FALSE(platform.Keys().IsDown(-1));
}

TEST_F(Ports, TheShiftStateGathersTheModifiers) {
  platform.Keys().Hold(0x10);
  EXPECT_EQ(platform.Keys().ShiftState(), 1);
  platform.Keys().Hold(0x11);
  platform.Keys().Hold(0x12);
  EXPECT_EQ(platform.Keys().ShiftState(), 7);
}

TEST_F(Ports, TheKeyStateCanFail) {
  platform.faults.Turn(Fault::Keys, true);
  EXPECT_THROW(platform.Keys().Asynchronous(0x41), Failure);
  EXPECT_THROW(platform.Keys().Synchronous(0x41), Failure);
}

TEST_F(Ports, AHookThatCannotBeInstalledYieldsZero) {
  const HookProcedure procedure = [](std::int32_t, std::int32_t, std::intptr_t) { return 0; };
  platform.faults.Turn(Fault::KeyboardHook, true);
  EXPECT_EQ(platform.Hooks().Install(HookKind::Keyboard, procedure), 0);
  EXPECT_NE(platform.Hooks().Install(HookKind::LowLevelKeyboard, procedure), 0);
  platform.faults.Turn(Fault::LowLevelHook, true);
  EXPECT_EQ(platform.Hooks().Install(HookKind::LowLevelKeyboard, procedure), 0);
}

TEST_F(Ports, AHookThatCannotBeRemovedStays) {
  const HookProcedure procedure = [](std::int32_t, std::int32_t, std::intptr_t) { return 0; };
  const std::int32_t handle = platform.Hooks().Install(HookKind::Keyboard, procedure);
  platform.faults.Turn(Fault::Unhook, true);
  EXPECT_EQ(platform.Hooks().Remove(handle), 0);
  EXPECT_TRUE(platform.Hooks().Installed(HookKind::Keyboard));
}

TEST_F(Ports, TheSampleLayoutHasTheLettersOfAUsKeyboard) {
  std::array<char16_t, 4> text{};
  EXPECT_EQ(platform.Layout().ToUnicode(0x41, 0x1E, text.data(), 4, platform.Layout().Current()), 1);
  EXPECT_EQ(text[0], u'a');
  EXPECT_EQ(platform.Layout().ToUnicode(0x70, 0x3B, text.data(), 4, 1), 0);
}

TEST_F(Ports, AKeysTextStandsOverTheLayout) {
  platform.Layout().KeyText(0x41, -1, u"\u00B4");
  std::array<char16_t, 4> text{};
  std::uint16_t word = 0;
  EXPECT_EQ(platform.Layout().ToUnicode(0x41, 0x1E, text.data(), 4, 1), -1);
  EXPECT_EQ(text[0], u'\u00B4');
  EXPECT_EQ(platform.Layout().ToAscii(0x41, 0x1E, word, 1), -1);
  EXPECT_EQ(word, 0xB4);
}

TEST_F(Ports, AKeysTextIsCutAtTheCallersCapacity) {
  platform.Layout().KeyText(0x41, 3, u"abc");
  std::array<char16_t, 3> text{};
  EXPECT_EQ(platform.Layout().ToUnicode(0x41, 0x1E, text.data(), 2, 1), 3);
  EXPECT_EQ(text, (std::array<char16_t, 3>{u'a', u'b', u'\0'}));
}

TEST_F(Ports, AFailingLayoutStillTypes) {
  platform.faults.Turn(Fault::Layout, true);
  EXPECT_THROW(platform.Layout().Current(), Failure);
  EXPECT_EQ(platform.Layout().Typed(0x41, 0x1E), u'a');
}

TEST_F(Ports, TheRegistryHoldsTheComponentsKeyFromTheStart) {
  std::intptr_t key = 0;
  EXPECT_EQ(platform.UserRegistry().OpenKey(Registry::CurrentUser, PositionKey, 0, 2, key), 0);
  EXPECT_EQ(platform.UserRegistry().SetValue(key, "ConfigDialogTop", 0, 1, "1500", 4), 0);
  EXPECT_EQ(platform.UserRegistry().CloseKey(key), 0);
  ASSERT_NE(platform.UserRegistry().Find("ConfigDialogTop"), nullptr);
  EXPECT_EQ(*platform.UserRegistry().Find("ConfigDialogTop"), "1500");
}

TEST_F(Ports, TheRegistryHasNoOtherKey) {
  std::intptr_t key = 7;
  EXPECT_NE(platform.UserRegistry().OpenKey(Registry::CurrentUser, "SOFTWARE", 0, 2, key), 0);
  EXPECT_NE(platform.UserRegistry().OpenKey(0x80000002U, PositionKey, 0, 2, key), 0);
  EXPECT_EQ(key, 7);
}

TEST_F(Ports, AValueIsStoredAtItsGivenLength) {
  std::intptr_t key = 0;
  platform.UserRegistry().OpenKey(Registry::CurrentUser, PositionKey, 0, 2, key);
  platform.UserRegistry().SetValue(key, "A", 0, 1, "1500", 2);
  EXPECT_EQ(*platform.UserRegistry().Find("A"), "15");
}

TEST_F(Ports, AClosedKeyTakesNoValue) {
  EXPECT_NE(platform.UserRegistry().SetValue(0x100, "A", 0, 1, "1", 1), 0);
  EXPECT_EQ(platform.UserRegistry().Find("A"), nullptr);
}

TEST_F(Ports, AFailingRegistryStoresNothing) {
  platform.faults.Turn(Fault::Registry, true);
  std::intptr_t key = 0;
  EXPECT_NE(platform.UserRegistry().OpenKey(Registry::CurrentUser, PositionKey, 0, 2, key), 0);
  EXPECT_NE(platform.UserRegistry().SetValue(key, "A", 0, 1, "1", 1), 0);
  EXPECT_TRUE(platform.UserRegistry().Stored().empty());
}

TEST_F(Ports, TheScreenAnswersForTheHorizontalPixelsOnly) {
  platform.TheScreen().LogicalPixels(120);
  const std::intptr_t context = platform.TheScreen().CreateInformationContext();
  EXPECT_EQ(platform.TheScreen().DeviceCapability(context, Screen::LogicalPixelsX), 120);
  EXPECT_EQ(platform.TheScreen().DeviceCapability(context, 90), 0);
  platform.TheScreen().DeleteContext(context);
  EXPECT_EQ(platform.TheScreen().OpenContexts(), 0);
}

TEST_F(Ports, TheVersionFillsOnlyARecordOfTheRightSize) {
  platform.Version().PlatformId(1);
  OsVersionRecord record{100, 9};
  platform.Version().Get(record);
  EXPECT_EQ(record.platformId, 9);
  record.size = 148;
  platform.Version().Get(record);
  EXPECT_EQ(record.platformId, 1);
}

TEST_F(Ports, AMessageWithoutAnAnswererIsDismissed) {
  EXPECT_EQ(platform.Messages().Show("?", 19, "t"), MessageAnswer::Cancel);
  EXPECT_EQ(platform.Messages().Show("!", 16, "t"), MessageAnswer::OK);
  EXPECT_EQ(platform.Messages().Shown().size(), 2U);
}

TEST_F(Ports, AMessageIsAnsweredFromOutside) {
  platform.Messages().onShow = [](const std::string&, std::int32_t, const std::string&) { return MessageAnswer::No; };
  EXPECT_EQ(platform.Messages().Show("?", 19, "t"), MessageAnswer::No);
}

TEST_F(Ports, TheRemainingPortsFailWhenTold) {
  for (const Fault fault : {Fault::Screen, Fault::Version, Fault::Help, Fault::Messages, Fault::Events}) {
    platform.faults.Turn(fault, true);
  }
  OsVersionRecord record{148, 0};
  EXPECT_THROW(platform.TheScreen().TwipsPerPixelX(), Failure);
  EXPECT_THROW(platform.Version().Get(record), Failure);
  EXPECT_THROW(platform.Help().Show(0, "f", 15, 1), Failure);
  EXPECT_THROW(platform.Messages().Show("", 0, ""), Failure);
  EXPECT_THROW(platform.Events().DoEvents(), Failure);
}

TEST_F(Ports, EventsAreCounted) {
  platform.Events().DoEvents();
  EXPECT_EQ(platform.Events().Rounds(), 1);
}

TEST_F(Ports, AKeyIsClosedAsOftenAsItWasOpened) {
  std::intptr_t key = 0;
  EXPECT_EQ(platform.UserRegistry().OpenKey(Registry::CurrentUser, PositionKey, 0, 2, key), 0);
  EXPECT_EQ(platform.UserRegistry().CloseKey(key), 0);
  EXPECT_NE(platform.UserRegistry().SetValue(key, "A", 0, 1, "1", 1), 0);
  EXPECT_NE(platform.UserRegistry().CloseKey(key), 0);
  EXPECT_NE(platform.UserRegistry().CloseKey(key + 1), 0);
  EXPECT_EQ(platform.UserRegistry().Find("A"), nullptr);
}

TEST_F(Ports, TheSampleLayoutHasDigitsOnBothBlocks) {
  std::array<char16_t, 1> text{};
  std::uint16_t word = 0;
  for (char16_t digit = 0; digit < 10; ++digit) {
    for (const int first : {0x30, 0x60}) {
      EXPECT_EQ(platform.Layout().ToUnicode(first + digit, 0, text.data(), 1, 1), 1);
      EXPECT_EQ(text[0], u'0' + digit);
      EXPECT_EQ(platform.Layout().ToAscii(first + digit, 0, word, 1), 1);
      EXPECT_EQ(word, u'0' + digit);
    }
  }
  EXPECT_EQ(platform.Layout().ToUnicode(0x30, 0, text.data(), 0, 1), 0);
  EXPECT_EQ(platform.Layout().ToAscii(0x70, 0, word, 1), 0);
  for (const int other : {0x2F, 0x3A, 0x40, 0x5B, 0x5F}) {
    EXPECT_EQ(platform.Layout().ToUnicode(other, 0, text.data(), 1, 1), 0) << other;
  }
}

TEST_F(Ports, TheScreenAnswersInAContextAndToOneQuestion) {
  const std::intptr_t context = platform.TheScreen().CreateInformationContext();
  EXPECT_GT(platform.TheScreen().DeviceCapability(context, Screen::LogicalPixelsX), 0);
  EXPECT_EQ(platform.TheScreen().DeviceCapability(context, Screen::LogicalPixelsX + 1), 0);
  EXPECT_EQ(platform.TheScreen().DeviceCapability(0, Screen::LogicalPixelsX), 0);
  platform.TheScreen().DeleteContext(0);
  platform.TheScreen().DeleteContext(context);
}

}  // namespace
}  // namespace plexel
