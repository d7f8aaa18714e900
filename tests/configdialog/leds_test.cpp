#include <algorithm>

#include "configdialog/dialog_fixture.h"

namespace plexel {

namespace {

class LedPage : public ConfigurationDialog {
 protected:
  static constexpr auto Queries = {
      Capability::HasAlarmLed,    Capability::HasScrollLockLed, Capability::HasPanelLockedLed,
      Capability::HasLayer4Led,   Capability::HasLayer3Led,     Capability::HasLayer2Led,
      Capability::HasLayer1Led,   Capability::HasRunLed,        Capability::HasNumLockLed,
      Capability::HasCapsLockLed, Capability::HasPowerLed,      Capability::HasTemperatureLed,
      Capability::HasHarddiskLed, Capability::HasUserLed};

  void TargetHasAll() {
    for (const Capability query : Queries) surroundings.Capabilities().Set("*", query, 1);
  }
  /// Opens the dialog of a pure LED element.
  void OpenLed(Act act) { OpenFor(Led, std::move(act)); }
};

std::vector<std::string> Numbers(std::initializer_list<int> numbers) {
  std::vector<std::string> texts;
  for (const int number : numbers) texts.push_back(Text(number));
  return texts;
}

TEST_F(LedPage, FourLayersOfferTheTwelveFunctionsInTheOrderOfTheirTexts) {
  TargetHasAll();
  element->VantaEnabled(True);
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    for (const ComboBox& box : dialog.cmbLEDTypes) {
      EXPECT_EQ(box.Items(),
                Numbers({10401, 10403, 10404, 10405, 10406, 10407, 10408, 10409, 10410, 10411, 10412, 10961}));
      EXPECT_TRUE(box.Enabled());
    }
  });
}

TEST_F(LedPage, OneLayerOffersFourFunctionsAndDisablesTheOtherBoxes) {
  TargetHasAll();
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    for (const ComboBox& box : dialog.cmbLEDTypes) {
      EXPECT_EQ(box.Items(), Numbers({10400, 10401, 10402, 10403}));
      EXPECT_EQ(box.Enabled(), box.Index() == 0);
    }
  });
}

TEST_F(LedPage, ADeviceInterfaceFlagOf1CountsAsFalse) {
  TargetHasAll();
  element->VantaEnabled(Boolean::Raw(1));
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_FALSE(dialog.cmbLEDTypes[1].Enabled());
    EXPECT_EQ(dialog.cmbLEDTypes[0].Items(), Numbers({10400, 10401, 10402, 10403}));
  });
}

TEST_F(LedPage, EachQueryOffersItsFunction) {
  struct Case {
    Capability query;
    Boolean fourLayers;
    int text;
  };
  for (const Case& c : std::initializer_list<Case>{{Capability::HasHarddiskLed, True, 10401},
                                                   {Capability::HasPowerLed, True, 10403},
                                                   {Capability::HasCapsLockLed, True, 10404},
                                                   {Capability::HasNumLockLed, True, 10405},
                                                   {Capability::HasLayer1Led, True, 10406},
                                                   {Capability::HasLayer2Led, True, 10407},
                                                   {Capability::HasLayer3Led, True, 10408},
                                                   {Capability::HasLayer4Led, True, 10409},
                                                   {Capability::HasPanelLockedLed, True, 10410},
                                                   {Capability::HasScrollLockLed, True, 10411},
                                                   {Capability::HasAlarmLed, True, 10412},
                                                   {Capability::HasRunLed, True, 10961},
                                                   {Capability::HasUserLed, False, 10400},
                                                   {Capability::HasTemperatureLed, False, 10402},
                                                   {Capability::HasHarddiskLed, False, 10401},
                                                   {Capability::HasPowerLed, False, 10403}}) {
    const std::string target = "only " + std::to_string(c.text) + (c.fourLayers == True ? " four" : " one");
    surroundings.Capabilities().Set(target, c.query, 1);
    element->TargetSystem(target);
    element->VantaEnabled(c.fourLayers);
    OpenLed([&](frmConfigurationDialog& dialog, Hand&) {
      EXPECT_EQ(dialog.cmbLEDTypes[0].Items(), Numbers({c.text})) << target;
    });
  }
}

TEST_F(LedPage, AnAnswerOtherThan1CountsAsNo) {
  surroundings.Capabilities().Set("*", Capability::HasPowerLed, -1);
  surroundings.Capabilities().Set("*", Capability::HasHarddiskLed, 2);
  OpenLed([](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.cmbLEDTypes[0].ListCount(), 0); });
}

TEST_F(LedPage, ListsAreFilledForAnElementWithoutALedToo) {
  TargetHasAll();
  OpenFor(Oval, [](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.cmbLEDTypes[0].ListCount(), 4); });
}

TEST_F(LedPage, EntriesStandInTheOrderOfTheirTextsAndNotOfTesting) {
  TargetHasAll();
  surroundings.Language().Set(10400, "zebra");
  surroundings.Language().Set(10402, "alpha");
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.cmbLEDTypes[0].Items(), (std::vector<std::string>{"alpha", Text(10401), Text(10403), "zebra"}));
  });
}

TEST_F(LedPage, AFunctionOfAnotherElementIsMissingOnThatLayerOnly) {
  TargetHasAll();
  element->VantaEnabled(True);
  host.LedDefined(PowerLed, 2, True);
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    const auto offers = [&](int index) {
      const auto& items = dialog.LedTypeBox(index).Items();
      return std::find(items.begin(), items.end(), Text(10403)) != items.end();
    };
    EXPECT_TRUE(offers(0));
    EXPECT_FALSE(offers(1));
    EXPECT_TRUE(offers(2));
  });
}

TEST_F(LedPage, TheElementsOwnFunctionIsOfferedThoughAnotherElementHoldsIt) {
  TargetHasAll();
  element->VantaEnabled(True);
  element->LEDTypeLayer2(PowerLed);
  host.LedDefined(PowerLed, 2, True);
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    const auto& items = dialog.cmbLEDTypes[1].Items();
    EXPECT_NE(std::find(items.begin(), items.end(), Text(10403)), items.end());
    EXPECT_EQ(dialog.cmbLEDTypes[1].Text(), Text(10403));
  });
}

TEST_F(LedPage, ATargetWithoutFunctionsLeavesTheListsEmptyAndClearingWorks) {
  element->LEDTypeLayer1(PowerLed);
  OpenLed([](frmConfigurationDialog& dialog, Hand& hand) {
    EXPECT_EQ(dialog.cmbLEDTypes[0].ListCount(), 0);
    EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), Text(10403));
    hand.Click(dialog.cmdDeleteLED[0]);
    EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), Text(10413));
  });
}

TEST_F(LedPage, NoFunctionShowsItsTextThoughTheListLacksIt) {
  TargetHasAll();
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), Text(10413));
    EXPECT_EQ(dialog.cmbLEDTypes[0].ListIndex(), -1);
  });
}

TEST_F(LedPage, ADisabledBoxShowsTheStoredFunctionAndItsButtonStillClearsIt) {
  TargetHasAll();
  element->LEDTypeLayer2(AlarmLed);
  OpenLed([](frmConfigurationDialog& dialog, Hand& hand) {
    EXPECT_EQ(dialog.cmbLEDTypes[1].Text(), Text(10412));
    EXPECT_FALSE(dialog.cmbLEDTypes[1].Usable());
    hand.Click(dialog.cmdDeleteLED[1]);
    EXPECT_EQ(dialog.cmbLEDTypes[1].Text(), Text(10413));
  });
}

TEST_F(LedPage, ClearingAndCancelKeepsTheFunction) {
  element->LEDTypeLayer1(PowerLed);
  OpenLed([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.cmdDeleteLED[0]);
    EXPECT_EQ(element->LEDTypeLayer1(), PowerLed);
    hand.Click(dialog.cmdCancel);
  });
  EXPECT_EQ(element->LEDTypeLayer1(), PowerLed);
}

TEST_F(LedPage, ClearingAndOkLeavesNoFunction) {
  element->LEDTypeLayer1(PowerLed);
  OpenLed([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.cmdDeleteLED[0]);
    hand.Click(dialog.cmdOK);
  });
  EXPECT_EQ(element->LEDTypeLayer1(), LedNotEnabled);
}

TEST_F(LedPage, AChosenEntryReachesTheElementOnOk) {
  TargetHasAll();
  element->VantaEnabled(True);
  OpenLed([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Select(dialog.cmbLEDTypes[3], dialog.cmbLEDTypes[3].ListCount() - 1);
    EXPECT_EQ(element->LEDTypeLayer4(), LedNotEnabled);
    hand.Click(dialog.cmdOK);
  });
  EXPECT_EQ(element->LEDTypeLayer4(), RunLed);
}

TEST_F(LedPage, OneFunctionOnSeveralLayersIsAccepted) {
  TargetHasAll();
  element->VantaEnabled(True);
  OpenLed([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Select(dialog.cmbLEDTypes[0], 0);
    hand.Select(dialog.cmbLEDTypes[1], 0);
    hand.Click(dialog.cmdOK);
  });
  EXPECT_EQ(element->LEDTypeLayer1(), HarddiskLed);
  EXPECT_EQ(element->LEDTypeLayer2(), HarddiskLed);
}

TEST_F(LedPage, ATypedLetterChangesNothing) {
  TargetHasAll();
  OpenLed([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Focus(dialog.cmbLEDTypes[0]);
    EXPECT_EQ(hand.KeyDown('T', 0), 0);
    EXPECT_EQ(hand.KeyPress('T'), 0);
    EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), Text(10413));
  });
}

TEST_F(LedPage, UpAndDownMoveThroughTheList) {
  TargetHasAll();
  OpenLed([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Focus(dialog.cmbLEDTypes[0]);
    EXPECT_EQ(hand.KeyDown(key::Down, 0), key::Down);
    EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), Text(10400));
    hand.KeyDown(key::Down, 0);
    EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), Text(10401));
    EXPECT_EQ(hand.KeyDown(key::Up, 0), key::Up);
    EXPECT_EQ(dialog.cmbLEDTypes[0].Text(), Text(10400));
  });
}

TEST_F(LedPage, ReturnStaysAKeyOfTheList) {
  OpenLed([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Focus(dialog.cmbLEDTypes[0]);
    EXPECT_EQ(hand.KeyDown(key::Return, 0), key::Return);
  });
}

TEST_F(LedPage, OtherKeysOfTheListAreTakenAway) {
  frmConfigurationDialog dialog;
  for (const std::int16_t code : {key::Left, key::Right, key::Delete, key::Home, key::F4, std::int16_t{65}}) {
    std::int16_t keyCode = code;
    dialog.cmbLEDTypes_KeyDown(0, keyCode, 0);
    EXPECT_EQ(keyCode, 0) << code;
  }
}

TEST_F(LedPage, TheFormSeesAKeyAheadOfTheList) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  OpenFor(RectLed, [](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Tab(dialog.sstScanCode, 1);
    hand.Focus(dialog.cmbLEDTypes[0]);
    EXPECT_EQ(hand.KeyDown(key::Delete, 0), 0);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).text, "");
  });
}

TEST_F(LedPage, TextOfAnEntryIsEmptyForNoFunctionAndAbove14) {
  frmConfigurationDialog dialog;
  std::string text;
  dialog.LedTypeToListText(RunLed, text);
  EXPECT_EQ(text, Text(10961));
  dialog.LedTypeToListText(HarddiskLed, text);
  EXPECT_EQ(text, Text(10401));
  dialog.LedTypeToListText(LedNotEnabled, text);
  EXPECT_EQ(text, "");
  text = "before";
  dialog.LedTypeToListText(static_cast<enumLedType>(15), text);
  EXPECT_EQ(text, "");
}

TEST_F(LedPage, AnyLedIsDefinedWhenOneBoxShowsAFunction) {
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_FALSE(dialog.AnyLEDDefined());
    dialog.cmbLEDTypes[3].Text("unknown");
    EXPECT_FALSE(dialog.AnyLEDDefined());
    dialog.cmbLEDTypes[0].Text(Text(10400));
    EXPECT_TRUE(dialog.AnyLEDDefined());
  });
}

TEST_F(LedPage, AContainerWithoutTheMemberLeavesTheListsEmptyAndLoadingGoesOn) {
  TargetHasAll();
  host.TakeMemberAway();
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.cmbLEDTypes[0].ListCount(), 0);
    EXPECT_EQ(dialog.Caption(), Text(2006));
  });
}

TEST_F(LedPage, AFailingCapabilityServiceEndsTheFillingWithWhatItOffered) {
  TargetHasAll();
  platform.faults.Arm(Fault::Capability, 3);
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.cmbLEDTypes[0].Items(), Numbers({10400, 10402}));
    EXPECT_EQ(dialog.Caption(), Text(2006));
  });
}

TEST_F(LedPage, ClearingABoxThatIsNotThereEndsQuietly) {
  OpenLed([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_NO_THROW(dialog.cmdDeleteLED_Click(4));
    EXPECT_NO_THROW(dialog.cmdDeleteLED_Click(-1));
  });
}

}  // namespace

}  // namespace plexel
