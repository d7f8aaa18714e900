#include "element/element_access.h"
#include "element/packed_codes.h"
#include "element/property_table.h"
#include "element_fixture.h"

namespace plexel {
namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;

class ElementRecord : public ElementTest {
 protected:
  /// A record that differs from that of a new element in every field.
  static Info Filled() {
    Info info;
    info.enumWizardButtonType = WindowsShortCut;
    info.enumBaseElementType = RectLed;
    info.lngLEDTypeLayer1 = static_cast<enumLedType>(1);
    info.lngLEDTypeLayer2 = static_cast<enumLedType>(2);
    info.lngLEDTypeLayer3 = static_cast<enumLedType>(3);
    info.lngLEDTypeLayer4 = static_cast<enumLedType>(4);
    info.lngLedHardwareNumber = 11;
    info.lngButtonHardwareNumber = 12;
    info.lngKeyHardwareNumber = 20;
    info.lngKeyHardwareNumber1 = 21;
    info.lngKeyHardwareNumber2 = 22;
    info.lngKeyHardwareNumber3 = 23;
    info.lngKeyHardwareNumber4 = 24;
    info.lngKeyHardwareNumber5 = 25;
    info.lngKeyHardwareNumber6 = 26;
    info.lngKeyHardwareNumber7 = 27;
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      PressBuffer(info, layer)->Value[88] = static_cast<std::uint8_t>(layer);
      PressBuffer(info, layer)->NextValue = layer;
      ReleaseBuffer(info, layer)->Value[0] = static_cast<std::uint8_t>(10 + layer);
      ReleaseBuffer(info, layer)->NextValue = 10 + layer;
    }
    info.strLayer1PressString = "p1";
    info.strLayer2PressString = "p2";
    info.strLayer3PressString = "p3";
    info.strLayer4PressString = "p4";
    info.strLayer1ReleaseString = "r1";
    info.strLayer2ReleaseString = "r2";
    info.strLayer3ReleaseString = "r3";
    info.strLayer4ReleaseString = "r4";
    info.strBaseElementNotes = "note";
    return info;
  }
};

TEST_F(ElementRecord, ReadingItBringsEveryPropertyIn) {
  const Info wanted = Filled();
  element->TactisBaseElementScanCodeBuffer(wanted);
  element->ElementType(wanted.enumBaseElementType);
  element->ButtonNotes(wanted.strBaseElementNotes);
  EXPECT_EQ(element->TactisBaseElementScanCodeBuffer(), wanted);
}

TEST_F(ElementRecord, ThePropertiesAreTheMaster) {
  element->TactisBaseElementScanCodeBuffer(Filled());
  element->PressKeyDefLayer1("new");
  element->HardwareNumberKey7(99);
  const Info info = element->TactisBaseElementScanCodeBuffer();
  EXPECT_EQ(info.strLayer1PressString, "new");
  EXPECT_EQ(info.lngKeyHardwareNumber7, 99);
}

TEST_F(ElementRecord, ReadingItAnnouncesNothing) {
  element->TactisBaseElementScanCodeBuffer();
  EXPECT_TRUE(host.Heard().empty());
}

TEST_F(ElementRecord, WritingItPassesOnAllButNotesAndKind) {
  element->TactisBaseElementScanCodeBuffer(Filled());
  EXPECT_EQ(element->WizardOptions(), WindowsShortCut);
  EXPECT_EQ(element->HardwareNumberButton(), 12);
  EXPECT_EQ(element->HardwareNumberLed(), 11);
  for (std::int32_t index = 0; index < 8; ++index) EXPECT_EQ(element->HardwareNumberKeyAt(index), 20 + index);
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    EXPECT_EQ(element->LEDTypeLayer(layer), layer);
    EXPECT_EQ(element->PressKeyDefLayer(layer), "p" + std::to_string(layer));
    EXPECT_EQ(element->ReleaseKeyDefLayer(layer), "r" + std::to_string(layer));
  }
  EXPECT_EQ(element->ButtonNotes(), "");
  EXPECT_EQ(element->ElementType(), 0);
}

TEST_F(ElementRecord, WritingItAnnouncesInItsOrder) {
  element->TactisBaseElementScanCodeBuffer(Filled());
  const Values expected = {"WizardOptions",
                           12,
                           "HardwareNumberKey",
                           "HardwareNumberKey1",
                           "HardwareNumberKey2",
                           "HardwareNumberKey3",
                           "HardwareNumberKey4",
                           "HardwareNumberKey5",
                           "HardwareNumberKey6",
                           "HardwareNumberKey7",
                           11,
                           1,
                           2,
                           3,
                           4,
                           "p1",
                           "p2",
                           "p3",
                           "p4",
                           "r1",
                           "r2",
                           "r3",
                           "r4"};
  EXPECT_EQ(host.Notices(), expected);
}

TEST_F(ElementRecord, WritingItLeavesTheCurrentElementAndTheTick) {
  element->ElementType(Rect);
  element->ShowDefined(True);
  Module().ctlCurrentElement = nullptr;
  element->TactisBaseElementScanCodeBuffer(Filled());
  EXPECT_EQ(Module().ctlCurrentElement, nullptr);
  EXPECT_FALSE(Shown().linOK1.Visible);
}

TEST_F(ElementRecord, DefiningPassesOnTheNotesButNotTheFurtherKeyNumbersAndTheKind) {
  element->SetTactisBaseElementDefinition(Filled());
  EXPECT_EQ(element->ButtonNotes(), "note");
  EXPECT_EQ(element->HardwareNumberKey(), 20);
  for (std::int32_t index = 1; index < 8; ++index) EXPECT_EQ(element->HardwareNumberKeyAt(index), -1);
  EXPECT_EQ(element->ElementType(), 0);
  EXPECT_EQ(element->HardwareNumberLed(), 11);
  EXPECT_EQ(element->LEDTypeLayer4(), 4);
}

TEST_F(ElementRecord, DefiningAnnouncesInItsOrder) {
  element->SetTactisBaseElementDefinition(Filled());
  const Values expected = {
      "WizardOptions", 12, "HardwareNumberKey", 11, 1, 2, 3, 4, "p1", "p2", "p3", "p4", "r1", "r2", "r3", "r4",
      "ButtonNotes"};
  EXPECT_EQ(host.Notices(), expected);
}

TEST_F(ElementRecord, DefiningMakesTheElementCurrent) {
  element->SetTactisBaseElementDefinition(Filled());
  EXPECT_EQ(Module().ctlCurrentElement, element);
}

TEST_F(ElementRecord, BothStoreTheCodeSequences) {
  const Info wanted = Filled();
  element->TactisBaseElementScanCodeBuffer(wanted);
  EXPECT_EQ(element->TactisBaseElementScanCodeBuffer().strLayer4PressScanCode, wanted.strLayer4PressScanCode);
  const auto other = component.Create("B", host);
  other->SetTactisBaseElementDefinition(wanted);
  EXPECT_EQ(other->TactisBaseElementScanCodeBuffer().strLayer1ReleaseScanCode, wanted.strLayer1ReleaseScanCode);
}

TEST_F(ElementRecord, ARecordThatIsReadAndChangedLeavesTheElement) {
  Info info = element->TactisBaseElementScanCodeBuffer();
  info.strLayer1PressString = "changed";
  info.strLayer1PressScanCode.Value[0] = 1;
  EXPECT_EQ(element->PressKeyDefLayer1(), "");
  EXPECT_EQ(element->TactisBaseElementScanCodeBuffer().strLayer1PressScanCode.Value[0], 0xFF);
}

TEST_F(ElementRecord, AFailingContainerEndsWritingItQuietlyWithTheSequencesStored) {
  host.onEvent = [](const HostEvent& event) {
    if (event.arguments[0] == HostEvent::Value("HardwareNumberKey")) throw Failure(FailureKind::Handler, "container");
  };
  EXPECT_NO_THROW(element->TactisBaseElementScanCodeBuffer(Filled()));
  EXPECT_EQ(element->HardwareNumberKey(), 20);
  EXPECT_EQ(element->HardwareNumberKey1(), -1);
  EXPECT_EQ(element->TactisBaseElementScanCodeBuffer().strLayer1PressScanCode.NextValue, 1);
}

TEST_F(ElementRecord, ItsBytesAloneAreTakenOverAsTheWholeRecordIs) {
  element->TactisBaseElementScanCodeBuffer(Filled());
  Info other = element->TactisBaseElementScanCodeBuffer();
  PressBuffer(other, 2)->Value[7] = 0x1C;
  ReleaseBuffer(other, 3)->NextValue = 5;
  host.Forget();
  element->TactisBaseElementScanCodeBuffer(other);
  const Values told = host.Notices();
  element->TactisBaseElementScanCodeBuffer(Filled());
  host.Forget();
  std::vector<std::uint8_t> packed;
  PackCodes(other, packed);
  ElementAccess::Codes(*element, packed);
  EXPECT_EQ(element->TactisBaseElementScanCodeBuffer(), other);
  EXPECT_EQ(ElementAccess::Codes(*element), packed);
  EXPECT_FALSE(told.empty());
  EXPECT_EQ(host.Notices(), told);
}

}  // namespace
}  // namespace plexel
