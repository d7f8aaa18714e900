#include <gmock/gmock.h>

#include <limits>

#include "files/file_error.h"
#include "project/difference.h"
#include "project/open_document.h"
#include "project/recovery.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Projects into which other programs have put values that no element knows.
class ForeignValuesOf : public OpenDocument {
 protected:
  ForeignValuesOf() {
    document->Save(file);
    PutForeign("F3", "Their key", std::string("=1+1"));
    PutForeign("F3", "Another", std::int16_t{7});
    document = PanelDocument::Open(file, Site());
  }
  /// Another program puts a value into the file.
  void PutForeign(const std::string& id, const std::string& key, BagValue value) {
    Project project = ReadProject(file);
    for (ProjectElement& element : project.elements) {
      if (element.place == id) element.bag.Store(key, value);
    }
    WriteProject(file, project);
  }
  std::optional<BagValue> Foreign(const Project& project, const std::string& id, const std::string& key) {
    for (const ProjectElement& element : project.elements) {
      if (element.place != id) continue;
      const BagValue* const value = element.bag.Find(key);
      return value == nullptr ? std::nullopt : std::optional(*value);
    }
    return std::nullopt;
  }
  std::optional<BagValue> Held(const std::string& id, const std::string& key) {
    return Foreign(document->Content(), id, key);
  }

  TemporaryDirectory directory;
  const std::filesystem::path file = directory / "a.plexel";
};

TEST_F(ForeignValuesOf, AreSavedAsTheyCame) {
  const std::string before = Content(file);
  EXPECT_FALSE(document->Modified());
  document->Save(file);
  EXPECT_EQ(Content(file), before);
  Change({"F3"}, [&] { Element("F3").ButtonNotes("mine"); });
  document->Save(file);
  EXPECT_EQ(Foreign(ReadProject(file), "F3", "Their key"), BagValue(std::string("=1+1")));
}

TEST_F(ForeignValuesOf, AFloatThatIsNoNumberIsNoChange) {
  PutForeign("F4", "x", std::numeric_limits<double>::quiet_NaN());
  document = PanelDocument::Open(file, Site());
  EXPECT_FALSE(document->Modified());
}

TEST(ForeignValue, IsAnotherOneByItsKeyItsTypeOrTheBitsOfItsFloat) {
  const ForeignValue one{"x", 1.5};
  EXPECT_EQ(one, (ForeignValue{"x", 1.5}));
  EXPECT_NE(one, (ForeignValue{"y", 1.5}));
  EXPECT_NE(one, (ForeignValue{"x", 2.5}));
  EXPECT_NE((ForeignValue{"x", 1.0}), (ForeignValue{"x", std::int32_t{1}}));
  EXPECT_NE((ForeignValue{"x", std::int32_t{1}}), (ForeignValue{"x", 1.0}));
  EXPECT_NE((ForeignValue{"x", std::int32_t{1}}), (ForeignValue{"y", std::int32_t{1}}));
  EXPECT_NE((ForeignValue{"x", 0.0}), (ForeignValue{"x", -0.0}));
}

TEST_F(ForeignValuesOf, AreTakenOverAndTakenBackAsAStep) {
  PutForeign("F3", "Their key", std::string("new"));
  PutForeign("F5", "Third", std::int32_t{1});
  const auto theirs = PanelDocument::Open(file, Site());
  document->FileHolds(*theirs);
  EXPECT_TRUE(document->Modified()) << "mine are kept, the file holds others";
  document->Become(StepKind::TakeOver, *theirs);
  EXPECT_FALSE(document->Modified());
  EXPECT_EQ(document->Steps().ToUndo().name, (StepName{StepKind::TakeOver, "", 2}));
  EXPECT_EQ(Held("F3", "Their key"), BagValue(std::string("new")));
  EXPECT_EQ(Held("F5", "Third"), BagValue(std::int32_t{1}));
  document->Undo();
  EXPECT_EQ(Held("F3", "Their key"), BagValue(std::string("=1+1")));
  EXPECT_EQ(Held("F5", "Third"), std::nullopt);
  EXPECT_TRUE(document->Modified());
  document->Redo();
  EXPECT_EQ(Held("F5", "Third"), BagValue(std::int32_t{1}));
  EXPECT_FALSE(document->Modified());
}

TEST_F(ForeignValuesOf, ThatWereTakenOverAreInTheFileOnceItIsSaved) {
  PutForeign("F5", "Third", std::int32_t{1});
  document->Become(StepKind::TakeOver, *PanelDocument::Open(file, Site()));
  EXPECT_TRUE(document->Modified());
  document->Save(directory / "b.plexel");
  EXPECT_FALSE(document->Modified());
  EXPECT_EQ(Foreign(ReadProject(directory / "b.plexel"), "F5", "Third"), BagValue(std::int32_t{1}));
}

TEST_F(ForeignValuesOf, EachElementAreTakenOver) {
  for (const PanelDocument::Place& place : document->Places())
    PutForeign(place.element->Name(), "Of all", std::int16_t{1});
  document->Become(StepKind::TakeOver, *PanelDocument::Open(file, Site()));
  for (const PanelDocument::Place& place : document->Places())
    EXPECT_EQ(Held(place.element->Name(), "Of all"), BagValue(std::int16_t{1})) << place.element->Name();
}

TEST_F(ForeignValuesOf, AreInTheRecoveryFile) {
  RecoveryKeeper keeper(directory / "recovery", [] { return std::int64_t{1}; });
  document->Listen([&](std::span<const std::size_t> places) { keeper.Changed(places); });
  keeper.Watch(document.get());
  PutForeign("F5", "Third", std::int32_t{1});
  document->Become(StepKind::Import, *PanelDocument::Open(file, Site()));
  keeper.Flush();
  const Project kept = ParseRecovery(TextFile(keeper.File())).project;
  EXPECT_THAT(DifferencesOf(kept, document->Content()), IsEmpty());
  EXPECT_EQ(Foreign(kept, "F5", "Third"), BagValue(std::int32_t{1}));
}

TEST_F(ForeignValuesOf, TheNameOfAPanelLeadsToNoOtherFolder) {
  for (const char* const name : {"../panels/Large", "/etc/passwd", ".Large", ""}) {
    EXPECT_THROW(PanelDocument::Of({name, {}}, file, Site()), FileError) << name;
    Project carries = ReadProject(file);
    carries.panel = name;
    carries.panelText = Content(DataDirectory() / "panels/Large.panel");
    const auto opened = PanelDocument::Of(carries, file, Site());
    EXPECT_THROW(opened->InstalledPanelDiffers(DataDirectory() / "panels"), FileError) << name;
  }
}

TEST_F(ForeignValuesOf, AValueThatItsElementCannotReadIsNamed) {
  EXPECT_THAT(document->Unread(), IsEmpty());
  PutForeign("F1", "HardwareNumberButton", std::string("no number"));
  PutForeign("F2", "SizeX", std::int32_t{100'000});
  PutForeign("F4", "HardwareNumberButton", std::string("12"));
  EXPECT_THAT(PanelDocument::Open(file, Site())->Unread(), ElementsAre("F1: HardwareNumberButton", "F2: SizeX"));
}

TEST_F(ForeignValuesOf, APlaceThatThePanelLacksIsAMatterOfTheWholeFile) {
  Project project{"Large", {}};
  project.elements.push_back({"Z9", {}, {}});
  try {
    PanelDocument::Of(project, "a.plexel", Site());
    ADD_FAILURE() << "no failure";
  } catch (const FileError& error) {
    EXPECT_STREQ(error.what(), "a.plexel: the panel \"Large\" has no place \"Z9\"");
  }
}

}  // namespace
}  // namespace plexel
