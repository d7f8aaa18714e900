#include "project/key_code_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

#include "keyboard/key_table.h"
#include "keyboard/named_layout.h"
#include "scancodes/key_names.h"
#include "scancodes/key_translation.h"
#include "scancodes/special_functions.h"
#include "world/world.h"

namespace plexel {
namespace {

/// The keys of a PC keyboard of the US layout, as the system itself codes and names them.
class KeyCodeNames : public testing::Test {
 protected:
  KeyCodeNames() {
    world.platform.Layout().Use(*layout);
    for (const KeyPosition& position : KeyPositions()) {
      Add(position.virtualKeyNumLock, position.scanCode, position.extended ? 1 : 0);
    }
    constexpr std::int32_t print = 0x2C, pause = 0x13, alt = 0x12, ctrl = 0x11;
    Add(print, 0, 1);  // the system tells no scan code of Print
    world.platform.Keys().Hold(alt);
    Add(print, 0, 1);
    world.platform.Keys().Free(alt);
    world.platform.Keys().Hold(ctrl);
    Add(pause, 0x45, 0);
    world.platform.Keys().Free(ctrl);
  }

  /// What several keys send has the name of the first that has one.
  void Add(std::int32_t virtualKey, std::int32_t scanCode, std::int32_t extended) {
    KeyCodes codes;
    TranslateScanCode(scanCode, virtualKey, extended, codes);
    udtTactisBaseElement_ScanCodeInfo record;
    AppendPress(codes, record);
    const std::string name = GetKeyName(virtualKey, scanCode, extended, 1);
    const LayerReading reading = ReadLayer(record, 1);
    if (reading.reports.empty() || name == "UnknownKey") return;
    names.emplace(reading.reports.front().code, name);
  }
  static void AppendPress(const KeyCodes& codes, udtTactisBaseElement_ScanCodeInfo& record) {
    auto& buffer = record.strLayer1PressScanCode;
    for (std::int32_t index = 0; index < codes.make.length; ++index) {
      buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] =
          static_cast<std::uint8_t>(codes.make.codes[static_cast<std::size_t>(index)]);
    }
    buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] = buffer.EndMark;
  }

  World world;
  std::unique_ptr<TableLayout> layout = NamedLayout("us");
  std::map<KeyCode, std::string> names;
};

TEST_F(KeyCodeNames, AreThoseOfTheUsLayout) {
  ASSERT_GT(names.size(), 100u);
  for (const auto& [code, name] : names) EXPECT_EQ(KeyNameOf(code), name) << CodeText(code);
}

TEST_F(KeyCodeNames, AreInTheOrderOfTheCodesEachOnce) {
  EXPECT_EQ(std::ranges::adjacent_find(NamedKeys(), std::greater_equal()), NamedKeys().end());
}

TEST_F(KeyCodeNames, NameNoKeyThatTheKeyboardLacks) {
  for (const KeyCode code : NamedKeys()) EXPECT_TRUE(names.contains(code)) << CodeText(code) << ' ' << KeyNameOf(code);
}

TEST_F(KeyCodeNames, SomeAreAsPeopleKnowThem) {
  EXPECT_EQ(KeyNameOf(0x14), "Ctrl Left");
  EXPECT_EQ(KeyNameOf(0xE014), "Ctrl Right");
  EXPECT_EQ(KeyNameOf(0x12), "Shift Left");
  EXPECT_EQ(KeyNameOf(0x59), "Shift Right");
  EXPECT_EQ(KeyNameOf(0xE074), "Cursor Right");
  EXPECT_EQ(KeyNameOf(0x74), "Numpad 6");
  EXPECT_EQ(KeyNameOf(0x83), "F7");
  EXPECT_EQ(KeyNameOf(PauseKey), "Pause");
}

TEST_F(KeyCodeNames, ACodeWithoutAKeyIsItsOwnName) {
  EXPECT_EQ(KeyNameOf(0xE023), "E0 23");
  EXPECT_EQ(KeyNameOf(0x02), "02");
  EXPECT_EQ(KeyNameOf(PauseKey + 1), "E1 14 78");
}

TEST_F(KeyCodeNames, PanelFunctionsHaveTheNamesOfTheirEnumeration) {
  const std::map<KeyCode, std::string> expected = {{0xF1, "Layer2"},
                                                   {0xF2, "Layer3"},
                                                   {0xF3, "Layer4"},
                                                   {0xF4, "ContrastHigher"},
                                                   {0xF5, "WarmStart"},
                                                   {0xF6, "ContrastLower"},
                                                   {0xF9, "BackgroundLightLigther"},
                                                   {0xFB, "BackgroundLightDarker"},
                                                   {0xFE, "SystemReset"}};
  for (KeyCode byte = 0; byte <= 0xFF; ++byte) {
    const auto found = expected.find(byte);
    EXPECT_EQ(PanelFunctionNameOf(byte), found == expected.end() ? "" : found->second);
  }
}

}  // namespace
}  // namespace plexel
