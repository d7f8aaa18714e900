#include <algorithm>
#include <fstream>

#include "files/file_error.h"
#include "files/file_error_of.h"
#include "project/open_document.h"
#include "project/panel_document.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

/// A project that stands in a file, which others change.
class FileOnDisk : public OpenDocument {
 protected:
  FileOnDisk() { document->Save(file); }
  /// Another program puts notes of an element into the file.
  void PutNotes(const std::string& notes, const std::string& id = "F3") {
    Project project = ReadProject(file);
    for (ProjectElement& element : project.elements) {
      if (element.place == id) element.bag.Store("ButtonNotes", notes);
    }
    WriteProject(file, project);
  }
  void Note(const std::string& id, const std::string& text) {
    Change({id.c_str()}, [&] { Element(id).ButtonNotes(text); });
  }
  TemporaryDirectory directory;
  const std::filesystem::path file = directory / "panel.plexel";
};

TEST_F(FileOnDisk, IsTheSameAfterSavingAndAfterOpening) {
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Same);
  EXPECT_EQ(PanelDocument::Open(file, Site())->FileNow().now, PanelDocument::OnDisk::Same);
}

TEST_F(FileOnDisk, IsTheSameWhenItWasWrittenAgainAlike) {
  WriteProject(file, ReadProject(file));
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Same);
}

TEST_F(FileOnDisk, IsOtherWhenAnotherProgramChangedOrBrokeIt) {
  PutNotes("theirs");
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Other);
  std::ofstream(file) << "no project";
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Other);
}

TEST_F(FileOnDisk, IsGoneWhenItWasRemoved) {
  std::filesystem::remove(file);
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Gone);
}

TEST_F(FileOnDisk, IsUnreadableWhereItsNameLeadsNowhereAndTellsWhy) {
  const auto loop = directory / "loop";
  std::filesystem::create_symlink(loop, loop);
  const PanelDocument::FileState state = PanelDocument::Compare({loop, 0});
  EXPECT_EQ(state.now, PanelDocument::OnDisk::Unreadable);
  EXPECT_TRUE(state.reason.starts_with(loop.string() + ": cannot be read: ")) << state.reason;
}

TEST_F(FileOnDisk, TakingTheirsIsOneStepAndThenNothingDiffers) {
  Note("F4", "mine");
  PutNotes("theirs");
  const auto theirs = PanelDocument::Open(file, Site());
  document->FileHolds(*theirs);
  document->Become(StepKind::TakeOver, *theirs);
  EXPECT_EQ(Element("F3").ButtonNotes(), "theirs");
  EXPECT_EQ(Element("F4").ButtonNotes(), "");
  EXPECT_FALSE(document->Modified());
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Same);
  document->Undo();
  EXPECT_EQ(Element("F3").ButtonNotes(), "");
  EXPECT_EQ(Element("F4").ButtonNotes(), "mine");
  EXPECT_TRUE(document->Modified());
}

TEST_F(FileOnDisk, KeepingMineDiffersFromTheirsInEachElement) {
  for (const PanelDocument::Place& place : document->Places()) {
    PutNotes("theirs", place.element->Name());
    document->FileHolds(*PanelDocument::Open(file, Site()));
    EXPECT_TRUE(document->Modified()) << place.element->Name();
    document->Save(file);
  }
}

TEST_F(FileOnDisk, KeepingMineDiffersFromTheirs) {
  PutNotes("theirs");
  document->FileHolds(*PanelDocument::Open(file, Site()));
  EXPECT_TRUE(document->Modified());
  EXPECT_EQ(Element("F3").ButtonNotes(), "");
  Note("F3", "theirs");
  EXPECT_FALSE(document->Modified());
}

TEST_F(FileOnDisk, KeepingMineWhenTheFileIsGoneStaysModifiedUntilItIsSaved) {
  std::filesystem::remove(file);
  document->FileIsLost(file);
  EXPECT_TRUE(document->Modified());
  document->Save(file);
  EXPECT_FALSE(document->Modified());
}

TEST_F(FileOnDisk, AFileThatIsLostButStandsIsKnownAsItIs) {
  document->FileIsLost(file);
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Same);
  PutNotes("theirs");
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Other);
}

TEST_F(FileOnDisk, WhatComesBackWhereTheFileWasGoneIsNotKnownAnyMore) {
  const auto away = directory / "away.plexel";
  std::filesystem::rename(file, away);
  document->FileIsLost(file);
  std::filesystem::rename(away, file);
  EXPECT_EQ(document->FileNow().now, PanelDocument::OnDisk::Other);
}

TEST_F(FileOnDisk, TheProjectOfAnotherPanelIsRefused) {
  const auto small = PanelDocument::New("Small", Site());
  const auto error = FileErrorOf([&] { document->Become(StepKind::TakeOver, *small); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Reason(), "it is for the panel \"Small\", not for \"Large\"");
  EXPECT_THROW(document->FileHolds(*small), FileError);
  EXPECT_FALSE(document->Modified());
}

TEST_F(FileOnDisk, APanelOfTheSameNameWithOtherElementsIsRefused) {
  document->CarriesPanel(true);
  Project project = document->Content();
  const auto rename = [](std::string& text, const std::string& from, const std::string& to) {
    const std::size_t place = text.find(from);
    ASSERT_NE(place, std::string::npos);
    text.replace(place, from.size(), to);
  };
  rename(project.panelText, "Element=F3\n", "Element=X3\n");
  for (ProjectElement& element : project.elements) {
    if (element.place == "F3") element.place = "X3";
  }
  const auto other = PanelDocument::Of(project, file, Site());
  ASSERT_EQ(other->Places().size(), document->Places().size());
  const auto error = FileErrorOf([&] { document->Become(StepKind::Restore, *other); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Reason(), "its panel \"Large\" has other elements than the one that is open");
  EXPECT_THROW(document->FileHolds(*other), FileError);
  EXPECT_FALSE(document->Steps().CanUndo());
}

/// A panel with the same elements and another picture.
class OtherPicture : public FileOnDisk {
 protected:
  OtherPicture() {
    document->CarriesPanel(true);
    document->Save(file);
    Project project = ReadProject(file);
    const std::size_t place = project.panelText.find("Legend=ESC");
    project.panelText.replace(place, 10, "Legend=QUIT");
    WriteProject(file, project);
    theirs = PanelDocument::Open(file, Site());
  }
  static std::string LegendOf(const PanelDocument& shown) { return shown.ThePanel().Find("R1")->legend; }
  std::unique_ptr<PanelDocument> theirs;
};

TEST_F(OtherPicture, KeepingMineIsAChangeThatIsNotSaved) {
  document->FileHolds(*theirs);
  EXPECT_TRUE(document->Modified());
  document->Save(file);
  EXPECT_FALSE(document->Modified());
  EXPECT_EQ(LegendOf(*PanelDocument::Open(file, Site())), "ESC");
}

TEST_F(OtherPicture, TakingTheirsTakesThePictureAndIsTakenBack) {
  const Project before = document->Content();
  std::size_t told = 0;
  document->Listen([&told](std::span<const std::size_t> places) { told = places.size(); });
  document->FileHolds(*theirs);
  document->Become(StepKind::TakeOver, *theirs);
  EXPECT_EQ(LegendOf(*document), "QUIT");
  EXPECT_EQ(document->Content(), theirs->Content());
  EXPECT_FALSE(document->Modified());
  EXPECT_EQ(told, document->Places().size());
  EXPECT_EQ(document->Steps().ToUndo().name, (StepName{StepKind::TakeOver, "", 0}));
  for (const PanelDocument::Place& place : document->Places()) {
    EXPECT_EQ(place.part, document->ThePanel().Find(place.element->Name()));
  }
  document->Undo();
  EXPECT_EQ(LegendOf(*document), "ESC");
  EXPECT_EQ(document->Content(), before);
  EXPECT_TRUE(document->Modified());
  document->Redo();
  EXPECT_EQ(LegendOf(*document), "QUIT");
  EXPECT_FALSE(document->Modified());
}

TEST_F(OtherPicture, AProjectThatCarriesNoneLeavesThePicture) {
  Project project = theirs->Content();
  project.panelText.clear();
  document->Become(StepKind::TakeOver, *theirs);
  document->Become(StepKind::Import, *PanelDocument::Of(project, file, Site()));
  EXPECT_EQ(LegendOf(*document), "QUIT");
}

TEST_F(OtherPicture, TheInstalledPanelIsUsedInAStep) {
  document->Become(StepKind::TakeOver, *theirs);
  Project project = document->Content();
  project.panelText.clear();
  const auto installed = PanelDocument::Of(project, file, Site());
  installed->CarriesPanel(true);
  EXPECT_TRUE(document->HasElementsOf(*installed));
  document->Become(StepKind::UsePanel, *installed);
  EXPECT_EQ(LegendOf(*document), "ESC");
  EXPECT_TRUE(document->InstalledPanelDiffers(Site().panelDirectory).empty());
  document->Undo();
  EXPECT_EQ(LegendOf(*document), "QUIT");
}

TEST_F(FileOnDisk, ElementsKeepTheOrderOfTheFileAndThoseOfThePanelAloneFollow) {
  Project project = ReadProject(file);
  const std::string first = project.elements.front().place, last = project.elements.back().place;
  std::swap(project.elements.front(), project.elements.back());
  const std::string missing = project.elements[1].place;
  project.elements.erase(project.elements.begin() + 1);
  WriteProject(file, project);
  const auto opened = PanelDocument::Open(file, Site());
  ASSERT_EQ(opened->Places().size(), document->Places().size());
  EXPECT_EQ(opened->Places().front().element->Name(), last);
  EXPECT_EQ(opened->Places()[opened->Places().size() - 2].element->Name(), first);
  EXPECT_EQ(opened->Places().back().element->Name(), missing);
}

TEST_F(FileOnDisk, WhetherItCarriesItsPanelIsAChangeUntilItIsSaved) {
  document->CarriesPanel(true);
  EXPECT_TRUE(document->Modified());
  document->Save(file);
  EXPECT_FALSE(document->Modified());
  document->CarriesPanel(false);
  EXPECT_TRUE(document->Modified());
}

TEST_F(FileOnDisk, AProjectThatCarriesItsPanelOpensWhereThePanelIsNotInstalled) {
  document->CarriesPanel(true);
  document->Save(file);
  PanelDocument::Site elsewhere = Site();
  elsewhere.panelDirectory = "/nowhere";
  const auto opened = PanelDocument::Open(file, elsewhere);
  EXPECT_TRUE(opened->CarriesPanel());
  EXPECT_EQ(opened->Places().size(), document->Places().size());
  EXPECT_EQ(opened->Content(), document->Content());
  EXPECT_TRUE(opened->InstalledPanelDiffers("/nowhere").empty());
}

TEST_F(FileOnDisk, AProjectThatDoesNotCarryItsPanelIsSavedAsItWas) {
  const auto opened = PanelDocument::Open(file, Site());
  EXPECT_FALSE(opened->CarriesPanel());
  EXPECT_EQ(opened->Content(), ReadProject(file));
}

TEST_F(FileOnDisk, AnInstalledPanelThatHasChangedIsToldElementByElement) {
  document->CarriesPanel(true);
  EXPECT_TRUE(document->InstalledPanelDiffers(DataDirectory() / "panels").empty());
  Panel first = document->ThePanel(), second = first;
  const auto part = [&second](const std::string& id) -> PanelPart& {
    for (PanelPart& one : second.parts) {
      if (one.element && one.element->id == id) return one;
    }
    throw std::logic_error("no part " + id);
  };
  using Kind = PanelDifference::Kind;
  second.height += 1;
  part("F1").box.left += 1;
  part("F2").element->type = part("F2").element->type == Rect ? RectLed : Rect;
  part("F3").element->hardwareNumberButton = 99;
  part("F5").element->id = "X";
  const auto differences = DifferencesOf(first, second);
  EXPECT_EQ(differences.front(), (PanelDifference{Kind::Settings, ""}));
  EXPECT_EQ(differences.back(), (PanelDifference{Kind::Added, "X"}));
  for (const PanelDifference& wanted : {PanelDifference{Kind::Place, "F1"}, PanelDifference{Kind::Type, "F2"},
                                        PanelDifference{Kind::Numbers, "F3"}, PanelDifference{Kind::Removed, "F5"}}) {
    EXPECT_NE(std::find(differences.begin(), differences.end(), wanted), differences.end()) << wanted.element;
  }
  EXPECT_EQ(differences.size(), 6U);
  second = first;
  second.parts.front().fillColor ^= 1;
  EXPECT_EQ(DifferencesOf(first, second), (std::vector<PanelDifference>{{Kind::Drawing, ""}}));
}

}  // namespace
}  // namespace plexel
