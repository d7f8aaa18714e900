#include <gmock/gmock.h>

#include <QListWidget>
#include <filesystem>
#include <string>
#include <vector>

#include "closed_boxes.h"
#include "editor/log_panel.h"
#include "editor/texts.h"
#include "editor_fixture.h"
#include "files/project_file.h"
#include "files/system_files.h"
#include "world/allocation_faults.h"

namespace plexel::testing {
namespace {

using ::testing::AnyOf;
using ::testing::HasSubstr;

/// The editor with each request for memory of an act failing once.
class EachRequestForMemoryFails : public Editor {
 protected:
  EachRequestForMemoryFails() {
    window.NewProject("Small");
    std::filesystem::create_directory(folder);
  }
  std::vector<std::string> FilesInFolder() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    return names;
  }

  const std::filesystem::path folder = File("folder");
  ClosedBoxes boxes;
};

TEST_F(EachRequestForMemoryFails, SavingLeavesTheOldOrTheNewFileAndTheProjectAsItWas) {
  const auto file = folder / "a.plexel";
  ASSERT_TRUE(window.SaveProject(file));
  auto* const events = window.Log().findChild<QListWidget*>();
  int refused = 0, saved = 0;
  for (int number = 1;; ++number) {
    const std::string notes = "turn " + std::to_string(number);
    const std::string before = ReadWholeFile(file, ProjectLimit);
    ChangeNotes("F2", notes);
    boxes.told.clear();
    events->clear();
    bool done = false, failed = false;
    {
      const AllocationFault fault(number);
      done = window.SaveProject(file);
      failed = fault.HasFailed();
    }
    const ::testing::ScopedTrace trace(__FILE__, __LINE__, notes);
    EXPECT_EQ(ReadWholeFile(file, ProjectLimit), done ? FormatProject(window.Document()->Content()) : before);
    EXPECT_TRUE(done || !boxes.told.empty());
    for (const std::string& reason : boxes.told) {
      EXPECT_THAT(reason, AnyOf(Say(Text::MemoryShort).toStdString(), HasSubstr("Cannot allocate memory")));
    }
    EXPECT_TRUE(failed || (boxes.told.empty() && events->count() == 0));
    EXPECT_EQ(window.Document()->Modified(), !done);
    EXPECT_EQ(Element("F2").ButtonNotes(), notes);
    EXPECT_EQ(FilesInFolder(), std::vector<std::string>{"a.plexel"});
    if (!failed || HasFailure()) break;
    ++(done ? saved : refused);
  }
  EXPECT_GE(refused, 100);
  EXPECT_GE(saved, 10);
}

}  // namespace
}  // namespace plexel::testing
