#include "specialdialogs/frmSpecialIPCKey.h"

#include <gtest/gtest.h>

#include "scancodes/code_type.h"
#include "scancodes/element_codes.h"
#include "services/dialogs.h"
#include "specialdialogs/special_dialog_session.h"

namespace plexel {
namespace {

using Items = std::vector<std::string>;

class Session : public SpecialDialogSession<frmSpecialIPCKey> {
 public:
  explicit Session(bool offerAll = true) : SpecialDialogSession(dialogs::frmSpecialIPCKey) {
    if (!offerAll) return;
    for (int query = 0; query < CapabilityCount; ++query) {
      surroundings.Capabilities().Set("PANEL", static_cast<Capability>(query), 1);
    }
  }
};

TEST(SpecialIPCKey, FunctionsStandInTheListInTheirOrder) {
  Session session;
  session.Open([](frmSpecialIPCKey& dialog) {
    EXPECT_EQ(dialog.cmbSpecialFunction.Items(), (Items{"text 2608", "text 2600", "text 2605", "text 2606", "text 2607",
                                                        "text 2603", "text 2604", "text 2601", "text 2602"}));
    EXPECT_EQ(dialog.cmbSpecialFunction.Text(), "text 2608");
  });
}

TEST(SpecialIPCKey, TheFormIsTranslatedAtLoad) {
  Session session;
  session.Open([](frmSpecialIPCKey& dialog) {
    EXPECT_EQ(dialog.Caption(), "text 2009");
    EXPECT_EQ(dialog.labTitel.Caption(), "text 2013");
    EXPECT_EQ(dialog.cmdOK.Caption(), "text 100");
    EXPECT_EQ(dialog.cmdCancel.Caption(), "text 101");
    EXPECT_EQ(dialog.cmdHelp.Caption(), "text 103");
  });
}

TEST(SpecialIPCKey, OnlyWhatTheTargetSystemHasIsOffered) {
  struct Row {
    Capability query;
    const char* text;
  };
  constexpr Row rows[] = {{Capability::HasSystemReset, "text 2608"},
                          {Capability::HasWarmStart, "text 2600"},
                          {Capability::HasLayer2Key, "text 2605"},
                          {Capability::HasLayer3Key, "text 2606"},
                          {Capability::HasLayer4Key, "text 2607"},
                          {Capability::HasContrastHigher, "text 2603"},
                          {Capability::HasContrastLower, "text 2604"},
                          {Capability::HasBackgroundLightLighter, "text 2601"},
                          {Capability::HasBackgroundLightDarker, "text 2602"}};
  for (const Row& row : rows) {
    Session session(false);
    session.surroundings.Capabilities().Set("PANEL", row.query, 1);
    session.Open([&](frmSpecialIPCKey& dialog) { EXPECT_EQ(dialog.cmbSpecialFunction.Items(), Items{row.text}); });
  }
}

TEST(SpecialIPCKey, DeviceTypeTwoHasNoBackgroundLight) {
  Session session;
  session.element->DeviceType(2);
  session.Open([](frmSpecialIPCKey& dialog) {
    EXPECT_EQ(dialog.cmbSpecialFunction.Items(),
              (Items{"text 2608", "text 2600", "text 2605", "text 2606", "text 2607", "text 2603", "text 2604"}));
  });
  EXPECT_EQ(session.platform.faults.Calls(Fault::Capability), 7);
}

TEST(SpecialIPCKey, AnEmptyListShowsNothingAndOkStoresNothing) {
  Session session(false);
  session.Open([](frmSpecialIPCKey& dialog) {
    EXPECT_EQ(dialog.cmbSpecialFunction.ListCount(), 0);
    EXPECT_EQ(dialog.cmbSpecialFunction.Text(), "");
    Hand(dialog).Click(dialog.cmdOK);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.codes, "FF");
}

TEST(SpecialIPCKey, EachFunctionStoresItsCode) {
  struct Row {
    const char* text;
    const char* codes;
  };
  constexpr Row rows[] = {{"text 2608", "FF FE FF"}, {"text 2601", "FF F9 FF"}, {"text 2602", "FF FB FF"},
                          {"text 2603", "FF F4 FF"}, {"text 2604", "FF F6 FF"}, {"text 2605", "FF F1 FF"},
                          {"text 2606", "FF F2 FF"}, {"text 2607", "FF F3 FF"}, {"text 2600", "FF F5 FF"}};
  for (const Row& row : rows) {
    Session session;
    session.Take(row.text);
    EXPECT_EQ(session.codes, row.codes) << row.text;
    EXPECT_EQ(session.text, "[old][" + std::string(row.text) + M + B + "]");
  }
}

TEST(SpecialIPCKey, TheSelectedCodeTypeHasNoSay) {
  for (const std::size_t option : {1U, 2U}) {
    Session session;
    session.Take("text 2605", [option](StandInConfigurationDialog& dialog) { dialog.optCodeType[option].Value(true); });
    EXPECT_EQ(session.codes, "FF F1 FF");
    EXPECT_EQ(session.text, "[old][text 2605" + M + B + "]");
  }
}

TEST(SpecialIPCKey, BracketsOfTheTextStayAndTheRowMarksAreLeftAlone) {
  Session session;
  session.surroundings.Language().Set(2605, "Layer [2]");
  session.Take("Layer [2]");
  EXPECT_EQ(session.text, "[old][Layer [2]" + M + B + "]");
  EXPECT_EQ(session.mark, "");
}

TEST(SpecialIPCKey, OfTwoEqualTextsTheFirstInTheComparingOrderIsStored) {
  Session session;
  session.surroundings.Language().Set(2608, "same");
  session.surroundings.Language().Set(2602, "same");
  session.Take("same");
  EXPECT_EQ(session.codes, "FF FB FF");
}

TEST(SpecialIPCKey, AFullLayerRefusesSilentlyAndTheDialogCloses) {
  Session session;
  session.Take("text 2605", [](StandInConfigurationDialog&) { Module().lngMaxScanCodes = -1; });
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.codes, "FF");
}

TEST(SpecialIPCKey, AFunctionCountsAsOneByte) {
  Session session;
  session.Take("text 2605", [](StandInConfigurationDialog&) { Module().lngMaxScanCodes = 0; });
  EXPECT_EQ(session.codes, "FF F1 FF");
}

TEST(SpecialIPCKey, CancelAndEscapeStoreNothing) {
  Session session;
  session.Open([](frmSpecialIPCKey& dialog) {
    Hand(dialog).Click(dialog.cmdCancel);
    EXPECT_FALSE(dialog.IsShown());
  });
  session.Open([](frmSpecialIPCKey& dialog) {
    Hand(dialog).KeyDown(key::Escape, 0);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_EQ(session.text, "[old]");
  EXPECT_EQ(session.codes, "FF");
}

TEST(SpecialIPCKey, ReturnInTheListIsOk) {
  Session session;
  session.Open([](frmSpecialIPCKey& dialog) {
    Hand hand(dialog);
    hand.Focus(dialog.cmbSpecialFunction);
    hand.KeyDown(key::Down, 0);
    hand.KeyDown(key::Return, 0);
    EXPECT_FALSE(dialog.IsShown());
  });
  EXPECT_EQ(session.codes, "FF F5 FF");
}

TEST(SpecialIPCKey, TheListTakesNoOtherKeyAndNoCharacter) {
  Session session;
  session.Open([](frmSpecialIPCKey& dialog) {
    Hand hand(dialog);
    hand.Focus(dialog.cmbSpecialFunction);
    for (const std::int16_t code : {key::Home, key::End, key::PageDown, key::Delete, key::F4, key::Space}) {
      EXPECT_EQ(hand.KeyDown(code, 0), 0) << code;
    }
    EXPECT_EQ(hand.KeyPress('x'), 0);
    EXPECT_EQ(hand.KeyPress(8), 0);
    EXPECT_EQ(dialog.cmbSpecialFunction.Text(), "text 2608");
  });
}

TEST(SpecialIPCKey, HelpOpensItsTopic) {
  Session session;
  session.Open([](frmSpecialIPCKey& dialog) { Hand(dialog).Click(dialog.cmdHelp); });
  ASSERT_EQ(session.platform.Help().Shown().size(), 1U);
  EXPECT_EQ(session.platform.Help().Shown()[0].topic, 2601);
}

TEST(SpecialIPCKey, AFailingQueryKeepsTheEntriesAheadOfIt) {
  Session session;
  session.platform.faults.Arm(Fault::Capability, 3);
  session.Open([](frmSpecialIPCKey& dialog) {
    EXPECT_EQ(dialog.cmbSpecialFunction.Items(), (Items{"text 2608", "text 2600"}));
    EXPECT_EQ(dialog.cmbSpecialFunction.Text(), "");
  });
}

TEST(SpecialIPCKey, AddingToAllLayersWorksOnTheCurrentColumnAndKeepsTheRow) {
  Session session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    frmSpecialIPCKey special;
    dialog.msgScanCodes.Current(3, 2);
    dialog.msgScanCodes.Text("[b]");
    int entered = 0;
    dialog.msgScanCodes.OnEnterCell = [&] {
      ++entered;
      EXPECT_FALSE(dialog.msgScanCodes.Enabled());
    };
    special.AddToAllLayers("a[");
    EXPECT_GT(entered, 0);
    const std::string group = "[a[" + M + B + "]";
    EXPECT_EQ(dialog.CellText(1, 2), group);
    EXPECT_EQ(dialog.CellText(2, 2), group);
    EXPECT_EQ(dialog.CellText(3, 2), "[b]" + group);
    EXPECT_EQ(dialog.CellText(4, 2), group);
    EXPECT_EQ(dialog.CellText(3, 1), "");
    EXPECT_EQ(dialog.msgScanCodes.Row(), 3);
    EXPECT_TRUE(dialog.msgScanCodes.Enabled());
  });
}

TEST(SpecialIPCKey, StoringInAllLayersStoresTheGroupFourTimes) {
  Session session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    frmSpecialIPCKey special;
    dialog.msgScanCodes.Current(2, 1);
    int events = 0;
    session.host.onEvent = [&](const HostEvent&) {
      ++events;
      EXPECT_FALSE(dialog.msgScanCodes.Enabled());
    };
    EXPECT_EQ(special.StoreInAllLayers({Sequence({0xF1}), {}}), 0);
    session.host.onEvent = nullptr;
    EXPECT_GT(events, 0);
    EXPECT_EQ(dialog.msgScanCodes.Row(), 2);
    EXPECT_TRUE(dialog.msgScanCodes.Enabled());
  });
  auto info = session.Record();
  for (int layer = 1; layer <= 4; ++layer) EXPECT_EQ(Used(*PressBuffer(info, layer)), "FF F1 FF");
}

TEST(SpecialIPCKey, ARefusalTakesTheLastGroupFromOneRowMoreThanSucceeded) {
  Session session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    // Each layer holds one group; the first is full.
    Module().lngMaxScanCodes = 3;
    const auto store = [&](int row, const std::vector<int>& codes) {
      dialog.msgScanCodes.Current(row, 1);
      EXPECT_EQ(StoreScanCodes({Sequence(codes), {}}, MakeOnly, 0, 0), 0);
    };
    store(1, {0x21, 0x21, 0x21, 0x21});
    for (int row = 2; row <= 4; ++row) store(row, {0x22});
    frmSpecialIPCKey special;
    EXPECT_EQ(special.StoreInAllLayers({Sequence({0xF1}), {}}), 1);
  });
  // Three rows succeeded, so four lose their last group: the first its old one.
  auto info = session.Record();
  EXPECT_EQ(Used(*PressBuffer(info, 1)), "FF");
  for (int layer = 2; layer <= 4; ++layer) EXPECT_EQ(Used(*PressBuffer(info, layer)), "FF 22 FF");
}

TEST(SpecialIPCKey, ARefusalOfAllRowsTakesAGroupFromTheFirst) {
  Session session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    EXPECT_EQ(StoreScanCodes({Sequence({0x21}), {}}, MakeOnly, 0, 0), 0);
    dialog.msgScanCodes.Current(2, 1);
    EXPECT_EQ(StoreScanCodes({Sequence({0x22}), {}}, MakeOnly, 0, 0), 0);
    Module().lngMaxScanCodes = -1;
    frmSpecialIPCKey special;
    EXPECT_EQ(special.StoreInAllLayers({Sequence({0xF1}), {}}), 1);
    EXPECT_EQ(dialog.msgScanCodes.Row(), 2);
  });
  auto info = session.Record();
  EXPECT_EQ(Used(*PressBuffer(info, 1)), "FF");
  EXPECT_EQ(Used(*PressBuffer(info, 2)), "FF 22 FF");
}

}  // namespace
}  // namespace plexel
