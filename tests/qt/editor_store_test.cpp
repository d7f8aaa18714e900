#include "editor/editor_store.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QMimeData>
#include <QToolBar>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>

#include "editor/recent_menu.h"
#include "editor_fixture.h"

namespace plexel::testing {
namespace {

class EditorStoreTest : public ::testing::Test {
 protected:
  std::filesystem::path Folder() { return folder.path().toStdString(); }
  void Write(const std::string& content) { std::ofstream(Folder() / "editor.ini") << content; }
  QTemporaryDir folder;
};

TEST_F(EditorStoreTest, KeepsTheLastTenFilesTheLatestFirst) {
  {
    EditorStore store(Folder());
    for (int number = 0; number < 14; ++number) store.AddRecent("/a & b/" + QString::number(number) + ", c.plexel");
    store.AddRecent("/a & b/7, c.plexel");
  }
  const QStringList files = EditorStore(Folder()).Recent();
  ASSERT_EQ(files.size(), 10);
  EXPECT_EQ(files.front(), "/a & b/7, c.plexel");
  EXPECT_EQ(files.at(1), "/a & b/13, c.plexel");
  EXPECT_EQ(files.count("/a & b/7, c.plexel"), 1);
}

TEST_F(EditorStoreTest, ForeignValuesArePassedOver) {
  Write(
      "[Window]\nGeometry=nothing of ours\nLayout=@ByteArray(x)\nno line\n[Files]\nRecent=relative /a.plexel "
      "/a.plexel\n"
      "Folder=/there/is/no/such/folder\n");
  EditorStore store(Folder());
  EXPECT_EQ(store.Geometry(), QByteArray());
  EXPECT_EQ(store.Recent(), QStringList("/a.plexel"));
  EXPECT_EQ(store.Folder(), QString());
}

TEST_F(EditorStoreTest, NamesOfFilesComeBackAsTheyWere) {
  const QString name = QString::fromUtf8("/ [a];=%20 \n\u00E4#/ b ");
  const QByteArray packed("\0\x01\n=", 4);
  {
    EditorStore store(Folder());
    store.AddRecent(name);
    store.Folder(QString::fromStdString(Folder().string()));
    store.Geometry(packed);
    store.Labels(true);
  }
  const EditorStore store(Folder());
  EXPECT_EQ(store.Recent(), QStringList(name));
  EXPECT_EQ(store.Folder().toStdString(), Folder().string());
  EXPECT_EQ(store.Geometry(), packed);
  EXPECT_TRUE(store.Labels());
}

TEST_F(EditorStoreTest, WhatAnotherEditorHasKeptStays) {
  EditorStore mine(Folder());
  {
    EditorStore theirs(Folder());
    theirs.Labels(true);
  }
  mine.AddRecent("/a.plexel");
  EXPECT_EQ(mine.Keep(), "");
  EXPECT_TRUE(EditorStore(Folder()).Labels());
  EXPECT_EQ(EditorStore(Folder()).Recent(), QStringList("/a.plexel"));
}

TEST_F(EditorStoreTest, WhatTheFileHoldsAlreadyIsNotWrittenAgain) {
  EditorStore store(Folder());
  store.AddRecent("/a.plexel");
  EXPECT_EQ(store.Keep(), "");
  const auto written = std::filesystem::last_write_time(Folder() / "editor.ini") - std::chrono::hours(1);
  std::filesystem::last_write_time(Folder() / "editor.ini", written);
  store.AddRecent("/a.plexel");
  EXPECT_EQ(store.Keep(), "");
  EXPECT_EQ(std::filesystem::last_write_time(Folder() / "editor.ini"), written);
  store.AddRecent("/b.plexel");
  EXPECT_EQ(store.Keep(), "");
  EXPECT_NE(std::filesystem::last_write_time(Folder() / "editor.ini"), written);
}

TEST_F(EditorStoreTest, ADamagedFileIsAnEmptyOne) {
  Write(std::string("\0\x01\x02[[[=\n@@@\xFF\xFE", 14));
  EditorStore store(Folder());
  EXPECT_EQ(store.Recent(), QStringList());
  store.AddRecent("/b.plexel");
  EXPECT_EQ(store.Recent(), QStringList("/b.plexel"));
}

TEST_F(Editor, ADamagedStoreOpensTheWindowAsAtFirst) {
  const QSize first = window.size();
  std::ofstream(File("editor.ini")) << "[Window]\nGeometry=@ByteArray(junk)\nLayout=@ByteArray(junk)\n";
  MainWindow another(component, surroundings, platform, help, File("state"));
  EXPECT_EQ(another.size(), first);
}

/// The layout of a window that has some of the editor's docks.
QByteArray LayoutOf(std::initializer_list<const char*> docks) {
  QMainWindow window;
  window.addToolBar("tools")->setObjectName("tools");
  for (const char* const name : docks) {
    auto* const dock = new QDockWidget(&window);
    dock->setObjectName(name);
    window.addDockWidget(name == std::string("inspector") ? Qt::RightDockWidgetArea : Qt::BottomDockWidgetArea, dock);
  }
  return window.saveState();
}

TEST_F(Editor, ALayoutThatKnowsFewerDocksIsPassedOver) {
  EditorStore(File("")).Layout(LayoutOf({"inspector", "problems", "events"}));
  MainWindow another(component, surroundings, platform, help, File("state"));
  another.show();
  const auto docks = [&](MainWindow& shown) {
    for (const char* const name : {"events", "overview", "trial"}) shown.findChild<QDockWidget*>(name)->show();
    QStringList names;
    for (const QDockWidget* const dock : shown.tabifiedDockWidgets(shown.findChild<QDockWidget*>("problems"))) {
      names.append(dock->objectName());
    }
    names.sort();
    return names;
  };
  EXPECT_EQ(docks(another), QStringList({"events", "overview", "trial"}));
  EXPECT_EQ(docks(another), docks(window));
}

TEST_F(Editor, TheRecentFilesAreShownPlainAndCleared) {
  ASSERT_TRUE(window.SaveProject(File("a&b.plexel")));
  EditorStore store(File(""));
  RecentMenu menu(store, nullptr);
  ASSERT_GE(menu.actions().size(), 3);
  EXPECT_TRUE(menu.actions().front()->text().startsWith("&1  a&&b.plexel"))
      << menu.actions().front()->text().toStdString();
  QString opened;
  menu.onOpen = [&](const QString& file) { opened = file; };
  menu.actions().front()->trigger();
  EXPECT_EQ(opened.toStdString(), File("a&b.plexel").string());
  menu.actions().back()->trigger();
  EXPECT_EQ(store.Recent(), QStringList());
}

/// Carries a file over the window and lets it fall there.
void Drop(MainWindow& window, const std::filesystem::path& file) {
  QMimeData carried;
  carried.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
  QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &drop);
}

TEST_F(Editor, AFileDroppedOnTheWindowIsOpened) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  ASSERT_TRUE(window.NewProject("Small"));
  Drop(window, File("a.plexel"));
  QTest::qWait(20);
  EXPECT_EQ(window.Document()->File(), File("a.plexel"));
}

TEST_F(Editor, AFileDroppedOnAChangedProjectAsksFirst) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  ASSERT_TRUE(window.NewProject("Small"));
  ChangeNotes("F1", "changed");
  Drop(window, File("a.plexel"));
  bool asked = false;
  AnswerNextBox([&](QMessageBox& box) {
    asked = true;
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  QTest::qWait(50);
  EXPECT_TRUE(asked);
  EXPECT_TRUE(window.Document()->File().empty());
}

}  // namespace
}  // namespace plexel::testing
