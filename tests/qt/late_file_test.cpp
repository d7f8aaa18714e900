#include <QLabel>
#include <QPushButton>
#include <memory>
#include <string_view>
#include <thread>
#include <vector>

#include "editor/notice_bar.h"
#include "editor_fixture.h"
#include "world/file_faults.h"

namespace plexel::testing {
namespace {

/// A project in a folder that answers late.
class Late : public Editor {
 protected:
  Late() { EXPECT_TRUE(window.SaveProject(file)); }
  QFrame& Notice() { return *window.findChild<QFrame*>("notice"); }
  void PutNotes(const std::string& notes) {
    Project project = ReadProject(file);
    for (ProjectElement& element : project.elements) {
      if (element.place == "F3") element.bag.Store("ButtonNotes", notes);
    }
    WriteProject(file, project);
  }
  const std::filesystem::path file = File("a.plexel");
};

TEST_F(Late, ComparingTheFileDoesNotHoldTheWindow) {
  LateFile late(file);
  PutNotes("theirs");
  int asked = 0;
  late.OnOwn([&](const char*) { ++asked; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return late.IsWaitedFor(); }, 20'000));
  // The reading is under way, and the window goes on.
  ChangeNotes("F5", "mine");
  window.View().repaint();
  Press(Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_TRUE(late.IsWaitedFor());
  EXPECT_FALSE(Notice().isVisible());
  EXPECT_EQ(Element("F5").ButtonNotes(), "mine");
  late.LetGo();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 20'000));
  EXPECT_EQ(asked, 0) << "the window's thread has asked the folder";
}

TEST_F(Late, WhatIsFoundOfAProjectThatWasLeftIsNotTold) {
  LateFile late(file);
  PutNotes("theirs");
  ASSERT_TRUE(QTest::qWaitFor([&] { return late.IsWaitedFor(); }, 20'000));
  ASSERT_TRUE(window.NewProject("Small"));
  ASSERT_TRUE(window.SaveProject(File("b.plexel")));
  late.LetGo();
  // What is told of the second file comes behind what was found of the first.
  std::filesystem::remove(File("b.plexel"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 20'000));
  EXPECT_TRUE(Notice().findChild<QLabel*>()->text().contains("b.plexel"));
  EXPECT_TRUE(window.isWindowModified());
}

TEST_F(Late, AWindowThatGoesWaitsForTheReadingAndTellsNothing) {
  auto another = std::make_unique<MainWindow>(component, surroundings, platform, help, File("state 2"));
  ASSERT_TRUE(another->OpenProject(file));
  ASSERT_TRUE(window.NewProject("Small"));
  LateFile late(file);
  PutNotes("theirs");
  ASSERT_TRUE(QTest::qWaitFor([&] { return late.IsWaitedFor(); }, 20'000));
  std::thread letGo([&] { late.LetGo(); });
  another.reset();
  letGo.join();
  EXPECT_FALSE(late.IsWaitedFor());
}

TEST_F(Late, SavingAndOpeningShowThatTheyWait) {
  LateFile late(file);
  std::vector<Qt::CursorShape> shapes;
  late.OnOwn([&](const char* operation) {
    if (std::string_view(operation) != "open") return;
    const QCursor* const cursor = QGuiApplication::overrideCursor();
    shapes.push_back(cursor == nullptr ? Qt::ArrowCursor : cursor->shape());
  });
  ChangeNotes("F5", "mine");
  ASSERT_TRUE(window.SaveProject(file));
  ASSERT_TRUE(window.OpenProject(file));
  EXPECT_GE(shapes.size(), 2U);
  for (const Qt::CursorShape shape : shapes) EXPECT_EQ(shape, Qt::WaitCursor);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Late, AChangeIsNoticedWhereTheSystemTellsOfNone) {
  const NoFileWatching none;
  std::filesystem::create_directory(File("folder"));
  const auto other = File("folder") / "b.plexel";
  ASSERT_TRUE(window.SaveProject(other));
  Project project = ReadProject(other);
  project.elements.front().bag.Store("ButtonNotes", std::string("theirs"));
  QTest::qWait(1000);  // behind the first look, which would find it too
  WriteProject(other, project);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 20'000));
}

}  // namespace
}  // namespace plexel::testing
