#include "project/panel_document.h"

#include "project/open_document.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using LedsOfADocument = OpenDocument;

TEST_F(LedsOfADocument, AreDefinedInTheLayersInWhichAnElementShowsThem) {
  Element("L1").LEDTypeLayer2(UserLed);
  for (std::int32_t layer = -1; layer <= LayerCount + 1; ++layer) {
    EXPECT_EQ(document->LedIsDefined(UserLed, layer), layer == 2) << layer;
  }
  EXPECT_FALSE(document->LedIsDefined(AlarmLed, 2));
  Element("L2").LEDTypeLayer1(AlarmLed);
  Element("L2").LEDTypeLayer4(AlarmLed);
  for (std::int32_t layer = 0; layer <= LayerCount + 1; ++layer) {
    EXPECT_EQ(document->LedIsDefined(AlarmLed, layer), layer == 1 || layer == 4) << layer;
  }
}

using PlacesOfADocument = OpenDocument;

TEST_F(PlacesOfADocument, AnElementThatIsNotOnThePanelHasNone) {
  EXPECT_EQ(document->PlaceOf(Element("F3")), static_cast<int>(PlaceOf("F3")));
  EXPECT_EQ(document->PlaceOf(*world.component.Create("F3", world.host)), -1);
}

class ElementsOfADocument : public OpenDocument {
 protected:
  TemporaryDirectory directory;
};

TEST_F(ElementsOfADocument, AreWhatThePanelTellsOfTheirPlaces) {
  world.platform.TheScreen().LogicalPixels(144);
  const PanelDocument::Site site = Site();
  for (const char* const name : {"Large", "Small"}) {
    document = PanelDocument::New(name, site);
    for (const bool isOpened : {false, true}) {
      const Panel& panel = document->ThePanel();
      for (const PanelDocument::Place& place : document->Places()) {
        const ctlPlexelBaseElement& element = *place.element;
        const PanelElement& described = *place.part->element;
        EXPECT_EQ(element.Name(), described.id);
        EXPECT_EQ(element.ElementType(), described.type);
        EXPECT_EQ(element.ParentWindow(), site.window);
        EXPECT_EQ(element.DPIFontScaleFactor(), 1.5);
        EXPECT_EQ(element.DeviceType(), panel.deviceType);
        EXPECT_EQ(element.VantaEnabled(), panel.vantaEnabled);
        EXPECT_EQ(element.TargetSystem(), panel.targetSystem);
        EXPECT_EQ(element.OriginalPosX(), place.part->box.left);
        EXPECT_EQ(element.OriginalPosY(), place.part->box.top);
        EXPECT_EQ(element.SizeX(), described.sizeX);
        EXPECT_EQ(element.SizeY(), described.sizeY);
        EXPECT_EQ(element.HardwareNumberButton(), described.hardwareNumberButton);
        EXPECT_EQ(element.HardwareNumberLed(), described.hardwareNumberLed);
        for (std::int32_t index = 0; index < 8; ++index) {
          EXPECT_EQ(element.HardwareNumberKeyAt(index),
                    described.hardwareNumberKeys.at(static_cast<std::size_t>(index)));
        }
      }
      if (isOpened) break;
      document->Save(directory.Path() / "a.plexel");
      document = PanelDocument::Open(directory.Path() / "a.plexel", site);
    }
  }
}

TEST_F(ElementsOfADocument, HaveTheSettingsOfTheUserUnlessTheyKeepTheirOwn) {
  const Project project = document->Content();
  world.surroundings.Settings().Option(3, True);
  for (const bool keep : {false, true}) {
    PanelDocument::Site site = Site();
    site.keepsSettings = keep;
    EXPECT_EQ(PanelDocument::Of(project, "a.plexel", site)->Places().front().element->ShowX(), keep ? False : True);
  }
}

using ZoomOfADocument = OpenDocument;

TEST_F(ZoomOfADocument, GoesFromAQuarterToFourTimes) {
  EXPECT_EQ(document->Zoom(), 100);
  document->Zoom(401);
  EXPECT_EQ(document->Zoom(), 400);
  document->Zoom(24);
  EXPECT_EQ(document->Zoom(), 25);
}

class OtherDocument : public OpenDocument {
 protected:
  Project Carrying() {
    Project project = document->Content();
    project.panelText = ReadPanelText(DataDirectory() / "panels/Large.panel");
    return project;
  }
};

TEST_F(OtherDocument, OfAnotherPanelHasOtherElements) {
  EXPECT_TRUE(document->HasElementsOf(*PanelDocument::New("Large", Site())));
  EXPECT_FALSE(document->HasElementsOf(*PanelDocument::New("Small", Site())));
  Project renamed = Carrying();
  renamed.panel = "Renamed";
  EXPECT_FALSE(document->HasElementsOf(*PanelDocument::Of(renamed, "a.plexel", Site())));
}

TEST_F(OtherDocument, ThatCarriesItsPanelBringsItAlong) {
  const auto other = PanelDocument::Of(Carrying(), "a.plexel", Site());
  document->Become(StepKind::TakeOver, *other);
  EXPECT_EQ(document->CarriedPanel(), Carrying().panelText);
  document->Become(StepKind::TakeOver, *PanelDocument::New("Large", Site()));
  EXPECT_TRUE(document->CarriesPanel()) << "one that carries none takes none away";
}

TEST_F(OtherDocument, WithAnotherPictureOfThePanelTouchesEveryElement) {
  Project project = Carrying();
  project.panelText.replace(project.panelText.find("Title="), 6, "Title=Other ");
  project.panelText.replace(project.panelText.find("DeviceType=1"), 12, "DeviceType=3");
  std::vector<std::size_t> touched;
  document->Listen([&touched](std::span<const std::size_t> places) { touched.assign(places.begin(), places.end()); });
  document->Become(StepKind::TakeOver, *PanelDocument::Of(project, "a.plexel", Site()));
  std::vector<std::size_t> all;
  while (all.size() < document->Places().size()) all.push_back(all.size());
  EXPECT_EQ(touched, all);
  EXPECT_TRUE(document->ThePanel().title.starts_with("Other ")) << document->ThePanel().title;
  for (const PanelDocument::Place& place : document->Places()) EXPECT_EQ(place.element->DeviceType(), 3);
  touched.clear();
  document->Undo();
  EXPECT_EQ(touched, all);
  for (const PanelDocument::Place& place : document->Places()) EXPECT_EQ(place.element->DeviceType(), 1);
}

TEST_F(OtherDocument, ThatDiffersInCarryingItsPanelAloneIsOneStep) {
  const auto other = PanelDocument::Of(Carrying(), "a.plexel", Site());
  EXPECT_FALSE(document->Modified());
  document->Become(StepKind::Import, *other);
  EXPECT_TRUE(document->CarriesPanel());
  EXPECT_TRUE(document->Modified());
  document->Undo();
  EXPECT_FALSE(document->CarriesPanel());
  EXPECT_FALSE(document->Modified());
  document->Redo();
  EXPECT_TRUE(document->CarriesPanel());
  EXPECT_TRUE(document->Modified());
}

TEST_F(OtherDocument, ThatTheFileHoldsWithoutAPanelIsNotToldApartByIt) {
  document->CarriesPanel(true);
  EXPECT_TRUE(document->Modified());
  const TemporaryDirectory directory;
  const auto theirs = PanelDocument::New("Large", Site());
  theirs->Save(directory.Path() / "a.plexel");
  document->FileHolds(*theirs);
  EXPECT_EQ(document->File(), theirs->File());
  EXPECT_TRUE(document->CarriesPanel());
  EXPECT_FALSE(document->Modified());
}

TEST_F(OtherDocument, AnElementThatOutlivesItIsEndedAndDetached) {
  const std::shared_ptr<ctlPlexelBaseElement> element = document->Places().at(PlaceOf("F3")).element;
  ASSERT_NE(element->ElementType(), enumTactisBaseElementType{});
  document.reset();
  EXPECT_EQ(element->ElementType(), enumTactisBaseElementType{});
  world.host.Forget();
  element->ButtonNotes("nobody hears of it");
  EXPECT_TRUE(world.host.Heard().empty());
}

TEST_F(ElementsOfADocument, AreSavedAtRestHoweverTheyAreShown) {
  document->Zoom(300);
  document->SurfaceAt(PlaceOf("F3"));
  Element("F3").FocusVisible(True);
  ASSERT_EQ(Element("F3").ZoomFactor(), 300);
  const Project saved = document->Content();
  const FlatBag& bag = saved.elements.at(PlaceOf("F3")).bag;
  EXPECT_EQ(*bag.Find("ZoomFactor"), BagValue(std::int16_t{100}));
  EXPECT_EQ(*bag.Find("FocusVisible"), BagValue(False));
}

TEST_F(OtherDocument, WhatSelectingAndZoomingChangeIsAtRestWhateverTheFileTells) {
  Project project = document->Content();
  FlatBag& bag = project.elements.at(PlaceOf("F3")).bag;
  bag.Store("FocusVisible", True);
  bag.Store("ZoomFactor", std::int16_t{300});
  const auto other = PanelDocument::Of(project, "a.plexel", Site());
  const auto& element = *other->Places().at(PlaceOf("F3")).element;
  EXPECT_EQ(element.FocusVisible(), False);
  EXPECT_EQ(element.ZoomFactor(), 100);
}

TEST_F(OtherDocument, CodesOfABufferThatThereIsNotArePassedOver) {
  SavedCodes codes{0, InitialCodes()};
  codes.codes.Value[1] = 0x1C;
  codes.codes.NextValue = 1;
  Project project = document->Content();
  for (const std::int32_t buffer : {-1, 8, 7}) {
    codes.buffer = buffer;
    project.elements.at(PlaceOf("F3")).codes.push_back(codes);
  }
  const auto other = PanelDocument::Of(project, "a.plexel", Site());
  udtTactisBaseElement_ScanCodeInfo expected = Element("F3").TactisBaseElementScanCodeBuffer();
  *ReleaseBuffer(expected, LayerCount) = codes.codes;
  EXPECT_EQ(other->Places()[PlaceOf("F3")].element->TactisBaseElementScanCodeBuffer(), expected);
}

}  // namespace
}  // namespace plexel
