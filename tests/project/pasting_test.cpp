#include "project/pasting.h"

#include <functional>

#include "files/file_error.h"
#include "project/open_document.h"
#include "project/project_import.h"

namespace plexel {
namespace {

using Kind = Misfit::Kind;

/// The large panel: F1 is a key without LED, F5 one with LED, L1 an LED; K1 becomes a key switch.
class Paste : public OpenDocument {
 protected:
  Paste() {
    ctlPlexelBaseElement& source = Element("F5");
    ElementRecord record = source.TactisBaseElementScanCodeBuffer();
    record.strLayer1PressString = "[a]";
    record.strLayer1PressScanCode.Value = {0xFF, 0x1C, 0xF0, 0x1C, 0xFF};
    record.strLayer1PressScanCode.NextValue = 4;
    record.strLayer3ReleaseString = "[b]";
    record.lngLEDTypeLayer2 = AlarmLed;
    record.strBaseElementNotes = "notes";
    record.enumWizardButtonType = TipKey;
    source.SetTactisBaseElementDefinition(record);
  }
  std::vector<std::size_t> Places(std::initializer_list<const char*> ids) {
    std::vector<std::size_t> places;
    for (const char* const id : ids) places.push_back(PlaceOf(id));
    return places;
  }
  std::vector<ElementRecord> Copied(std::initializer_list<const char*> ids) {
    return DefinitionsIn(CopiedText(*document, Places(ids)));
  }
  Pasting Of(std::initializer_list<const char*> from, std::initializer_list<const char*> onto, LayerSet layers = {}) {
    return Pasting(*document, Copied(from), Places(onto), layers);
  }
};

TEST_F(Paste, AnElementTakesTextsBytesLedsNotesAndRoad) {
  Of({"F5"}, {"F6"}).Do(StepKind::Paste);
  const ElementRecord pasted = Element("F6").TactisBaseElementScanCodeBuffer();
  EXPECT_EQ(pasted.strLayer1PressString, "[a]");
  EXPECT_EQ(pasted.strLayer1PressScanCode, Element("F5").TactisBaseElementScanCodeBuffer().strLayer1PressScanCode);
  EXPECT_EQ(pasted.strLayer3ReleaseString, "[b]");
  EXPECT_EQ(pasted.lngLEDTypeLayer2, AlarmLed);
  EXPECT_EQ(pasted.strBaseElementNotes, "notes");
  EXPECT_EQ(pasted.enumWizardButtonType, TipKey);
}

TEST_F(Paste, WhatTheElementIsAndWhereItStandsStays) {
  const ElementRecord before = Element("F6").TactisBaseElementScanCodeBuffer();
  const std::int16_t width = Element("F6").SizeX();
  Of({"F5"}, {"F6"}).Do(StepKind::Paste);
  const ElementRecord pasted = Element("F6").TactisBaseElementScanCodeBuffer();
  EXPECT_EQ(pasted.lngButtonHardwareNumber, before.lngButtonHardwareNumber);
  EXPECT_EQ(pasted.lngLedHardwareNumber, before.lngLedHardwareNumber);
  EXPECT_EQ(pasted.enumBaseElementType, before.enumBaseElementType);
  EXPECT_EQ(Element("F6").SizeX(), width);
}

TEST_F(Paste, ManyElementsAreOneStep) {
  Of({"F5"}, {"F6", "F7", "F8"}).Do(StepKind::Paste);
  EXPECT_EQ(document->Steps().ToUndo().name, (StepName{StepKind::Paste, "", 3}));
  document->Undo();
  for (const char* const id : {"F6", "F7", "F8"}) EXPECT_EQ(Element(id).PressKeyDefLayer1(), "") << id;
}

TEST_F(Paste, SeveralGoToAsManyInTheirOrder) {
  Element("F6").PressKeyDefLayer1("[six]");
  EXPECT_TRUE(Pasting::Fits(2, 2));
  EXPECT_FALSE(Pasting::Fits(2, 3));
  EXPECT_FALSE(Pasting::Fits(1, 0));
  Of({"F5", "F6"}, {"F7", "F8"}).Do(StepKind::Paste);
  EXPECT_EQ(Element("F7").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F8").PressKeyDefLayer1(), "[six]");
}

TEST(LayersToPaste, AreAllWhenEachIsNamed) {
  EXPECT_TRUE(LayerSet().IsAll());
  EXPECT_TRUE(LayerSet({4, 2, 3, 1, 1}).IsAll());
  for (const std::int32_t layer : {1, 2, 3, 4}) {
    EXPECT_FALSE(LayerSet({layer}).IsAll());
    for (const std::int32_t other : {1, 2, 3, 4}) EXPECT_EQ(LayerSet({layer}).Has(other), layer == other);
  }
}

TEST_F(Paste, ALayerAloneLeavesTheOthersAndTheNotes) {
  Of({"F5"}, {"F6"}, {1, 2}).Do(StepKind::Paste);
  EXPECT_EQ(Element("F6").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F6").LEDTypeLayer2(), AlarmLed);
  EXPECT_EQ(Element("F6").ReleaseKeyDefLayer3(), "");
  EXPECT_EQ(Element("F6").ButtonNotes(), "");
}

TEST_F(Paste, AKeyWithoutLedIsToldAndTakesTheKeysAlone) {
  Element("F1").ElementType(Rect);
  Pasting pasting = Of({"F5"}, {"F1"});
  EXPECT_EQ(pasting.Misfits(), (std::vector<Misfit>{{Kind::NoLed, "F1", 2, ""}}));
  pasting.Do(StepKind::Paste);
  EXPECT_EQ(Element("F1").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F1").LEDTypeLayer2(), LedNotEnabled);
}

TEST_F(Paste, AnLedIsToldAndTakesTheFunctionsAlone) {
  Pasting pasting = Of({"F5"}, {"L1"});
  EXPECT_EQ(pasting.Misfits(), (std::vector<Misfit>{{Kind::NoKey, "L1", 1, ""}}));
  pasting.Do(StepKind::Paste);
  EXPECT_EQ(Element("L1").PressKeyDefLayer1(), "");
  EXPECT_EQ(Element("L1").LEDTypeLayer2(), AlarmLed);
}

TEST_F(Paste, AKeySwitchIsToldAndTakesNothing) {
  Element("F6").ElementType(Key);
  Pasting pasting = Of({"F5"}, {"F6"});
  EXPECT_EQ(pasting.Misfits(), (std::vector<Misfit>{{Kind::KeySwitch, "F6", 0, ""}}));
  pasting.Do(StepKind::Paste);
  EXPECT_FALSE(document->Steps().CanUndo());
}

TEST_F(Paste, ALayerThatHasNoRoomInTheElementIsToldAndStaysAsItWas) {
  ElementRecord record = Element("F5").TactisBaseElementScanCodeBuffer();
  record.strLayer4PressString = "[long]";
  for (std::size_t index = 1; index < 30; ++index) record.strLayer4PressScanCode.Value[index] = 0x1C;
  record.strLayer4PressScanCode.NextValue = 30;
  Element("F5").TactisBaseElementScanCodeBuffer(record);
  Element("F6").VantaEnabled(True);
  Pasting pasting = Of({"F5"}, {"F6"});
  EXPECT_EQ(pasting.Misfits(), (std::vector<Misfit>{{Kind::OverLimit, "F6", 4, ""}}));
  pasting.Do(StepKind::Paste);
  EXPECT_EQ(Element("F6").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F6").PressKeyDefLayer4(), "");
}

TEST_F(Paste, AnLedFunctionThatWouldStandTwiceIsToldAndCanBeLeftOut) {
  Pasting pasting = Of({"F5"}, {"F6"});
  EXPECT_EQ(pasting.LedsTwice(), (std::vector<Misfit>{{Kind::LedTwice, "F6", 2, "F5"}}));
  pasting.Do(StepKind::Paste, false);
  EXPECT_EQ(Element("F6").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F6").LEDTypeLayer2(), LedNotEnabled);
}

TEST_F(Paste, OnEachLayerALedFunctionThatWouldStandTwiceIsTold) {
  ASSERT_EQ(PlaceOf("L1"), 0U);
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    Element("L1").LEDTypeLayer(layer, RunLed);
    Element("F7").LEDTypeLayer(layer, RunLed);
    EXPECT_EQ(Of({"F7"}, {"F6"}).LedsTwice(), (std::vector<Misfit>{{Kind::LedTwice, "F6", layer, "L1"}}));
    Element("F7").LEDTypeLayer(layer, LedNotEnabled);
    Element("L1").LEDTypeLayer(layer, LedNotEnabled);
  }
}

TEST_F(Paste, OfAnElementTheFirstLayerThatShowsAFunctionTwiceIsTold) {
  Element("F5").LEDTypeLayer4(RunLed);
  EXPECT_EQ(Of({"F5"}, {"F6"}).LedsTwice(), (std::vector<Misfit>{{Kind::LedTwice, "F6", 2, "F5"}}));
}

TEST_F(Paste, OneDefinitionOnTwoElementsShowsItsLedTwiceAmongThem) {
  const std::vector<ElementRecord> copied = Copied({"F5"});
  Element("F5").LEDTypeLayer2(LedNotEnabled);
  const Pasting pasting(*document, copied, Places({"F6", "F7"}));
  EXPECT_EQ(pasting.LedsTwice().size(), 2U);
}

TEST_F(Paste, PastingOntoItselfIsNeitherTwiceNorAStep) {
  Pasting pasting = Of({"F5"}, {"F5"});
  EXPECT_TRUE(pasting.LedsTwice().empty());
  pasting.Do(StepKind::Paste);
  EXPECT_FALSE(document->Steps().CanUndo());
}

TEST_F(Paste, SwappedElementsHoldWhatTheOtherHeld) {
  Element("F6").PressKeyDefLayer1("[six]");
  Pasting::Swap(*document, PlaceOf("F5"), PlaceOf("F6")).Do(StepKind::Swap);
  EXPECT_EQ(Element("F5").PressKeyDefLayer1(), "[six]");
  EXPECT_EQ(Element("F6").PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Element("F6").LEDTypeLayer2(), AlarmLed);
  EXPECT_EQ(Element("F5").LEDTypeLayer2(), LedNotEnabled);
  EXPECT_EQ(document->Steps().ToUndo().name.kind, StepKind::Swap);
}

TEST_F(Paste, AnEmptyDefinitionClears) {
  const ElementRecord before = Element("F6").TactisBaseElementScanCodeBuffer();
  Of({"F5"}, {"F6"}).Do(StepKind::Paste);
  Pasting(*document, {EmptyDefinition()}, Places({"F6"})).Do(StepKind::Clear);
  EXPECT_EQ(Element("F6").TactisBaseElementScanCodeBuffer(), before);
}

TEST_F(Paste, ALayerGoesOntoAnotherOneWithTextsBytesAndLedAndNothingElseDoes) {
  ElementRecord record = EmptyDefinition();
  record.strLayer2PressString = "[a]";
  record.strLayer2ReleaseString = "[b]";
  record.strLayer2PressScanCode.NextValue = 4;
  record.strLayer2ReleaseScanCode.NextValue = 5;
  record.lngLEDTypeLayer2 = AlarmLed;
  ElementRecord wanted = record;
  wanted.strLayer4PressString = "[a]";
  wanted.strLayer4ReleaseString = "[b]";
  wanted.strLayer4PressScanCode.NextValue = 4;
  wanted.strLayer4ReleaseScanCode.NextValue = 5;
  wanted.lngLEDTypeLayer4 = AlarmLed;
  CopyLayer(record, 2, record, 4);
  EXPECT_EQ(record, wanted);
}

TEST_F(Paste, ACopiedTextNamesItsPanelAndElements) {
  const Project copied = ImportProject("text", CopiedText(*document, Places({"F5", "F3"})));
  EXPECT_EQ(copied.panel, "Large");
  ASSERT_EQ(copied.elements.size(), 2U);
  EXPECT_EQ(copied.elements[0].place, "F5");
  EXPECT_EQ(copied.elements[1].place, "F3");
}

TEST_F(Paste, AForeignTextIsRefusedWithItsPlace) {
  for (const char* const text : {"", "hello", "{}", R"({"format":1,"panel":{"name":"x"},"elements":[{}]})"}) {
    EXPECT_THROW(DefinitionsIn(text), FileError) << text;
  }
  const std::string wrong = R"({"format":1,"panel":{"name":"x"},"elements":[{"place":"a","properties":)"
                            R"({"LedType1":{"string":"red"}}}]})";
  try {
    DefinitionsIn(wrong);
    ADD_FAILURE() << "no failure";
  } catch (const FileError& failure) {
    EXPECT_STREQ(failure.what(), "clipboard: a: \"red\" is no number");
  }
}

TEST_F(Paste, WhatIsSentInAnyWayDoesNotFitAnLed) {
  const auto misfits = [this](const std::function<void(ElementRecord&)>& change) {
    ElementRecord record = EmptyDefinition();
    change(record);
    return Pasting(*document, {record}, Places({"L1"})).Misfits();
  };
  const std::vector<Misfit> none, noKey = {{Kind::NoKey, "L1", 2, ""}};
  EXPECT_EQ(misfits([](ElementRecord&) {}), none);
  EXPECT_EQ(misfits([](ElementRecord& record) { record.strLayer2PressString = "[a]"; }), noKey);
  EXPECT_EQ(misfits([](ElementRecord& record) { record.strLayer2ReleaseString = "[a]"; }), noKey);
  EXPECT_EQ(misfits([](ElementRecord& record) { record.strLayer2PressScanCode.NextValue = 1; }), noKey);
  EXPECT_EQ(misfits([](ElementRecord& record) { record.strLayer2ReleaseScanCode.NextValue = 1; }), noKey);
}

}  // namespace
}  // namespace plexel
