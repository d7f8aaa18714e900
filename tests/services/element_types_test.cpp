#include "services/element_types.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "services/module_state.h"
#include "services/surroundings.h"

namespace plexel {
namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;

TEST(ElementTypes, EnumeratorsHaveTheirValues) {
  EXPECT_EQ(SystemReset, 0);
  EXPECT_EQ(BackgroundLightLigther, 1);
  EXPECT_EQ(BackgroundLightDarker, 2);
  EXPECT_EQ(ContrastHigher, 3);
  EXPECT_EQ(ContrastLower, 4);
  EXPECT_EQ(Layer2, 5);
  EXPECT_EQ(Layer3, 6);
  EXPECT_EQ(Layer4, 7);
  EXPECT_EQ(WarmStart, 8);
  EXPECT_EQ(NoSpecialFunction, 9);
  EXPECT_EQ(Led, 1);
  EXPECT_EQ(Key, 6);
  EXPECT_EQ(NormalKey, 0);
  EXPECT_EQ(ManuallyDefined, 4);
  EXPECT_EQ(HarddiskLed, 0);
  EXPECT_EQ(UserLed, 1);
  EXPECT_EQ(LedNotEnabled, 13);
  EXPECT_EQ(RunLed, 14);
  EXPECT_EQ(XSizeBig, 0);
  EXPECT_EQ(XSizeSmall, 2);
}

TEST(ElementTypes, ABooleanIsTrueOnlyAsMinusOne) {
  EXPECT_TRUE(IsTrue(Boolean::Raw(-1)));
  EXPECT_FALSE(IsTrue(Boolean::Raw(1)));
  EXPECT_FALSE(IsTrue(Boolean::Raw(0)));
}

TEST(ElementTypes, ATrueOfTheLanguageIsTrue) {
  const Boolean yes = true, no = false;
  EXPECT_TRUE(IsTrue(yes));
  EXPECT_EQ(yes.Value(), -1);
  EXPECT_EQ(yes, True);
  EXPECT_EQ(no.Value(), 0);
  EXPECT_EQ(no, False);
  EXPECT_EQ(Boolean(), False);
}

TEST(ElementTypes, NoNumberAndNoPointerBecomesABoolean) {
  static_assert(std::is_convertible_v<bool, Boolean>);
  static_assert(!std::is_constructible_v<Boolean, int>);
  static_assert(!std::is_constructible_v<Boolean, std::int16_t>);
  static_assert(!std::is_constructible_v<Boolean, const char*>);
  static_assert(!std::is_convertible_v<Boolean, int>);
  static_assert(sizeof(Boolean) == 2 && std::is_trivially_copyable_v<Boolean>);
}

TEST(ElementTypes, ARawBooleanKeepsItsBits) {
  EXPECT_EQ(Boolean::Raw(1).Value(), 1);
  EXPECT_EQ(Boolean::Raw(0x7FFF).Value(), 0x7FFF);
  EXPECT_NE(Boolean::Raw(1), True);
  EXPECT_NE(Boolean::Raw(1), False);
}

TEST(ElementTypes, ACellOfTheGridIsItsBuffer) {
  Info info;
  EXPECT_EQ(CellBuffer(info, 1, 1), &info.strLayer1PressScanCode);
  EXPECT_EQ(CellBuffer(info, 1, 2), &info.strLayer1ReleaseScanCode);
  EXPECT_EQ(CellBuffer(info, 4, 1), &info.strLayer4PressScanCode);
  EXPECT_EQ(CellBuffer(info, 4, 2), &info.strLayer4ReleaseScanCode);
}

TEST(ElementTypes, OutsideTheDataCellsThereIsNoBuffer) {
  Info info;
  EXPECT_EQ(CellBuffer(info, 1, 0), nullptr);
  EXPECT_EQ(CellBuffer(info, 1, 3), nullptr);
  EXPECT_EQ(CellBuffer(info, 0, 1), nullptr);
  EXPECT_EQ(CellBuffer(info, 5, 2), nullptr);
}

TEST(ElementTypes, LayersSelectTheirBuffers) {
  Info info;
  EXPECT_EQ(PressBuffer(info, 2), &info.strLayer2PressScanCode);
  EXPECT_EQ(PressBuffer(info, 3), &info.strLayer3PressScanCode);
  EXPECT_EQ(ReleaseBuffer(info, 2), &info.strLayer2ReleaseScanCode);
  EXPECT_EQ(ReleaseBuffer(info, 3), &info.strLayer3ReleaseScanCode);
  EXPECT_EQ(PressBuffer(info, 0), nullptr);
  EXPECT_EQ(ReleaseBuffer(info, 5), nullptr);
}

TEST(ElementTypes, ZeroingClearsAllEightBuffers) {
  Info info;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    PressBuffer(info, layer)->Value.fill(7);
    PressBuffer(info, layer)->NextValue = 3;
    ReleaseBuffer(info, layer)->Value.fill(8);
    ReleaseBuffer(info, layer)->NextValue = 4;
  }
  ZeroAllBuffers(info);
  EXPECT_EQ(info, Info{});
}

TEST(ElementTypes, CapabilitiesHaveTheNamesOfTheService) {
  EXPECT_EQ(CapabilityName(Capability::HasBackgroundLightDarker), "HasBackgroundLightDarker");
  EXPECT_EQ(CapabilityName(Capability::HasRunLed), "HasRunLed");
  EXPECT_EQ(CapabilityName(Capability::HasUserLed), "HasUserLed");
}

TEST(ElementTypes, EveryCapabilityIsFoundByItsName) {
  EXPECT_EQ(CapabilityCount, 23);
  for (const CapabilityRow& row : CapabilityTable) {
    EXPECT_EQ(CapabilityName(row.query), row.name);
    EXPECT_EQ(CapabilityNamed(row.name), row.query) << row.name;
  }
  EXPECT_EQ(CapabilityNamed("HasUserLED"), std::nullopt);
}

TEST(ModuleState, BeginsWithNothing) {
  const ModuleState state;
  for (const std::int32_t number :
       {state.lngDialogLeft, state.lngDialogTop, state.lngOsFamily, state.lngMaxScanCodes, state.lngInputTarget,
        state.lngKeyboardHook, state.lngLowLevelHook, state.lngPressedKeyCount}) {
    EXPECT_EQ(number, 0);
  }
  EXPECT_EQ(state.intAsciiResult, 0);
  EXPECT_EQ(state.lngPressedKeys.size(), 51U);
  const LowLevelKey& key = state.udtLowLevelKey;
  EXPECT_EQ(key.virtualKey | key.scanCode | key.flags | key.time | key.extraInfo, 0);
}

TEST(ModuleState, WithoutACurrentElementAskingForItFails) {
  Module() = ModuleState();
  try {
    CurrentElement();
    ADD_FAILURE() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::ObjectNotSet);
    EXPECT_STREQ(failure.what(), "there is no current element");
  }
}

}  // namespace
}  // namespace plexel
