#include "project/history.h"

#include "project/open_document.h"
#include "services/setting_table.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

class Undo : public OpenDocument {};

TEST_F(Undo, AStepIsNamedByItsKindAndItsOnlyElement) {
  Change({"F3"}, [&] { Element("F3").ButtonNotes("start"); }, StepKind::Notes);
  EXPECT_EQ(document->Steps().ToUndo().name, (StepName{StepKind::Notes, "F3", 1}));
}

TEST_F(Undo, AStepOnSeveralElementsTellsTheirNumber) {
  Change({"F3", "F1", "F2", "F1"}, [&] {
    Element("F1").ButtonNotes("a");
    Element("F3").ButtonNotes("b");
  });
  EXPECT_EQ(document->Steps().ToUndo().name, (StepName{StepKind::Configure, "", 2}));
}

TEST_F(Undo, WhatChangesNothingIsNoStep) {
  Change({"F3"}, [&] { Element("F3").ButtonNotes(""); });
  EXPECT_FALSE(document->Steps().CanUndo());
  EXPECT_FALSE(document->Modified());
}

TEST_F(Undo, BytesThatNoTextTellsComeBackExactly) {
  Change({"F3"}, [&] { PutBytes("F3", {0xFF, 0x1C, 0x00, 0x07, 0xFF}); });
  const auto first = Element("F3").TactisBaseElementScanCodeBuffer();
  Change({"F3"}, [&] { PutBytes("F3", {0x00, 0xE0}); });
  const auto second = Element("F3").TactisBaseElementScanCodeBuffer();
  document->Undo();
  EXPECT_EQ(Element("F3").TactisBaseElementScanCodeBuffer(), first);
  document->Redo();
  EXPECT_EQ(Element("F3").TactisBaseElementScanCodeBuffer(), second);
  document->Undo();
  document->Undo();
  EXPECT_EQ(Element("F3").TactisBaseElementScanCodeBuffer().strLayer2ReleaseScanCode, InitialCodes());
}

TEST_F(Undo, ValuesThatAProjectFileLeavesOutComeBackToo) {
  Change({"F3"}, [&] { Element("F3").SizeX(1); });
  Change({"F3"}, [&] { Element("F3").SizeX(60); });
  document->Undo();
  EXPECT_EQ(Element("F3").SizeX(), 1);
}

TEST_F(Undo, AValueThatHasNoNameComesBack) {
  Change({"F3"}, [&] { Element("F3").LEDTypeLayer2(static_cast<enumLedType>(-77)); });
  Change({"F3"}, [&] { Element("F3").LEDTypeLayer2(AlarmLed); });
  document->Undo();
  EXPECT_EQ(Element("F3").LEDTypeLayer2(), static_cast<enumLedType>(-77));
}

TEST_F(Undo, TheTickFollows) {
  Element("F3").ShowDefined(True);
  Change({"F3"}, [&] { Element("F3").PressKeyDefLayer1("[a]"); });
  document->Undo();
  EXPECT_FALSE(Element("F3").SurfaceObjects().linOK1.Visible);
  document->Redo();
  EXPECT_TRUE(Element("F3").SurfaceObjects().linOK1.Visible);
}

TEST_F(Undo, ZoomAndFocusStayAsTheyAre) {
  Change({"F3"}, [&] { Element("F3").ButtonNotes("a"); });
  document->Zoom(200);
  document->SurfaceAt(PlaceOf("F3"));
  Element("F3").FocusVisible(True);
  document->Undo();
  EXPECT_EQ(Element("F3").ZoomFactor(), 200);
  EXPECT_EQ(Element("F3").FocusVisible(), True);
}

TEST_F(Undo, ZoomAndFocusAndTheSettingsOfTheUserAreNoChangeOfTheProject) {
  const ElementValues before = ValuesOf(Element("F3"));
  Element("F3").ZoomFactor(200);
  Element("F3").FocusVisible(True);
  HeadlessSettings& settings = world.surroundings.Settings();
  settings.Parameter(ParameterFocusColor, "77");
  settings.Parameter(ParameterFocusWidth, "3");
  settings.Parameter(ParameterDefinedColor, "78");
  settings.Parameter(ParameterXSize, "2");
  for (const std::int32_t option : {OptionShowX, OptionShowXPermanent, OptionUseWizard, OptionShowDefined}) {
    settings.Option(option, True);
  }
  document->Refresh();
  EXPECT_EQ(Element("F3").FocusColor(), 77);
  EXPECT_EQ(Element("F3").WizardOn(), True);
  EXPECT_EQ(Element("F3").XElementSize(), XSizeSmall);
  EXPECT_EQ(ValuesOf(Element("F3")), before);
}

TEST_F(Undo, AStepBehindAnUndoneOneForgetsIt) {
  Change({"F3"}, [&] { Element("F3").ButtonNotes("a"); });
  document->Undo();
  Change({"F3"}, [&] { Element("F3").ButtonNotes("b"); });
  EXPECT_FALSE(document->Steps().CanRedo());
  document->Redo();
  EXPECT_EQ(Element("F3").ButtonNotes(), "b");
}

TEST_F(Undo, StepsGoBackAndForthOneByOne) {
  for (const char* const note : {"a", "b"}) Change({"F3"}, [&] { Element("F3").ButtonNotes(note); });
  document->Undo();
  document->Undo();
  EXPECT_FALSE(document->Steps().CanUndo());
  document->Redo();
  EXPECT_EQ(Element("F3").ButtonNotes(), "a");
  EXPECT_TRUE(document->Steps().CanUndo());
  document->Redo();
  EXPECT_EQ(Element("F3").ButtonNotes(), "b");
  EXPECT_FALSE(document->Steps().CanRedo());
  document->Undo();
  EXPECT_EQ(Element("F3").ButtonNotes(), "a");
}

TEST_F(Undo, NothingHappensWithoutAStep) {
  document->Undo();
  document->Redo();
  EXPECT_FALSE(document->Modified());
}

TEST_F(Undo, InsideAStepNothingIsTakenBack) {
  Change({"F3"}, [&] { Element("F3").ButtonNotes("a"); });
  Change({"F4"}, [&] {
    document->Undo();
    Element("F4").ButtonNotes("b");
  });
  EXPECT_EQ(Element("F3").ButtonNotes(), "a");
  EXPECT_EQ(document->Steps().ToUndo().name.element, "F4");
}

TEST_F(Undo, InsideAStepNothingIsDoneAgain) {
  Change({"F3"}, [&] { Element("F3").ButtonNotes("a"); });
  document->Undo();
  Change({"F4"}, [&] { document->Redo(); });
  EXPECT_EQ(Element("F3").ButtonNotes(), "");
  EXPECT_TRUE(document->Steps().CanRedo());
}

TEST_F(Undo, WhatAFailureLeavesBehindIsAStep) {
  const auto fail = [&] {
    Element("F3").ButtonNotes("half");
    throw std::runtime_error("no more");
  };
  EXPECT_THROW(Change({"F3"}, fail), std::runtime_error);
  ASSERT_TRUE(document->Steps().CanUndo());
  document->Undo();
  EXPECT_EQ(Element("F3").ButtonNotes(), "");
}

TEST_F(Undo, TheListenersHearWhichPlacesChanged) {
  std::vector<std::vector<std::size_t>> heard;
  document->Listen([&](std::span<const std::size_t> places) { heard.emplace_back(places.begin(), places.end()); });
  Change({"F4", "F3"}, [&] {
    Element("F3").ButtonNotes("a");
    Element("F4").ButtonNotes("a");
  });
  document->Undo();
  const std::vector<std::size_t> both = {PlaceOf("F3"), PlaceOf("F4")};
  EXPECT_EQ(heard, (std::vector{both, both}));
}

/// A project that has just been saved.
class Modified : public OpenDocument {
 protected:
  Modified() { document->Save(file); }
  void Note(const std::string& text) {
    Change({"F3"}, [&] { Element("F3").ButtonNotes(text); });
  }
  TemporaryDirectory directory;
  const std::filesystem::path file = directory / "panel.plexel";
};

TEST_F(Modified, AStepThatIsTakenBackIsNoChange) {
  Note("a");
  EXPECT_TRUE(document->Modified());
  document->Undo();
  EXPECT_FALSE(document->Modified());
  document->Redo();
  EXPECT_TRUE(document->Modified());
}

TEST_F(Modified, UndoGoesAcrossASave) {
  Note("a");
  document->Save(file);
  EXPECT_FALSE(document->Modified());
  document->Undo();
  EXPECT_TRUE(document->Modified());
  EXPECT_EQ(Element("F3").ButtonNotes(), "");
  document->Redo();
  EXPECT_FALSE(document->Modified());
}

TEST_F(Modified, WhatIsSetBackByHandIsNoChange) {
  Note("a");
  Note("b");
  Note("");
  EXPECT_FALSE(document->Modified());
}

TEST_F(Modified, AnotherStepThatMakesTheSameIsNoChangeEither) {
  Note("a");
  document->Save(file);
  document->Undo();
  Note("a");
  EXPECT_FALSE(document->Modified());
  Change({"F3"}, [&] { PutBytes("F3", {0xFF, 0x1C, 0xFF}); });
  EXPECT_TRUE(document->Modified());
  document->Undo();
  EXPECT_FALSE(document->Modified());
}

TEST_F(Modified, TheFileHoldsWhatTheTitleTells) {
  Note("a");
  const Project saved = ReadProject(file);
  EXPECT_NE(saved, document->Content());
  document->Undo();
  EXPECT_EQ(saved, document->Content());
}

}  // namespace
}  // namespace plexel
