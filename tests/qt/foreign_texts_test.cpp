#include <QAction>
#include <QClipboard>
#include <QHelpEvent>
#include <QLabel>
#include <QMimeData>
#include <QTableView>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QTreeView>
#include <QTreeWidget>
#include <fstream>

#include "editor/difference_view.h"
#include "editor/elided_label.h"
#include "editor/overview_panel.h"
#include "editor/problem_panel.h"
#include "editor/recent_menu.h"
#include "editor/versions_dialog.h"
#include "editor_fixture.h"
#include "qt/plain_box.h"
#include "qt/qt_message_boxes.h"
#include "qt/units.h"

namespace plexel::testing {
namespace {

constexpr const char* Hostile = "<b>bold</b> <a href=\"file:///etc/passwd\">x</a> &amp; =1+1";

/// What a tool tip or a label of guessed format shows.
QString Shown(const QString& text) {
  return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// Texts of a project that look like mark-up.
class ForeignTexts : public Editor {
 protected:
  ForeignTexts() {
    ChangeNotes("F1", Hostile);
    const std::array place = {static_cast<std::size_t>(PlaceOf("F1"))};
    window.Document()->Change(StepKind::Configure, place, [&] { Element("F1").PressKeyDefLayer(1, Hostile); });
    window.TheSelection().Only(PlaceOf("F1"));
  }
  /// Every cell of a table that shows the text has it in its tool tip as it is.
  void ExpectPlainTips(const QAbstractItemModel& model, int least) {
    int found = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
      for (int column = 0; column < model.columnCount(); ++column) {
        const QModelIndex index = model.index(row, column);
        if (!index.data(Qt::DisplayRole).toString().contains("<b>")) continue;
        ++found;
        EXPECT_TRUE(Shown(index.data(Qt::ToolTipRole).toString()).contains(Hostile)) << row << ", " << column;
      }
    }
    EXPECT_GE(found, least);
  }
  static void ExpectPlainLabels(QWidget& whole) {
    for (QLabel* const label : whole.findChildren<QLabel*>()) {
      EXPECT_TRUE(label->textFormat() == Qt::PlainText || !label->text().contains("<b>"))
          << label->text().toStdString();
      EXPECT_FALSE(label->openExternalLinks()) << label->text().toStdString();
    }
  }
};

TEST_F(ForeignTexts, StayTextInTheToolTipOfThePicture) {
  const QPoint at = Middle("F1");
  QHelpEvent asked(QEvent::ToolTip, at, window.View().mapToGlobal(at));
  QCoreApplication::sendEvent(&window.View(), &asked);
  EXPECT_TRUE(Shown(QToolTip::text()).contains(Hostile)) << QToolTip::text().toStdString();
  QToolTip::hideText();
}

TEST_F(ForeignTexts, StayTextInTheStatusLine) {
  EXPECT_TRUE(window.StatusText().contains(Hostile)) << window.StatusText().toStdString();
  const ElidedLabel* status = nullptr;
  for (const QFrame* const frame : window.findChildren<QFrame*>()) {
    const auto* const one = dynamic_cast<const ElidedLabel*>(frame);
    if (one != nullptr && one->Content() == window.StatusText()) status = one;
  }
  ASSERT_NE(status, nullptr);
  EXPECT_TRUE(Shown(status->toolTip()).remove('\n').contains(Hostile)) << status->toolTip().toStdString();
}

TEST_F(ForeignTexts, StayTextInTheOverview) {
  window.Overview().show();
  ExpectPlainTips(*window.Overview().findChild<QTableView*>()->model(), 2);
}

TEST_F(ForeignTexts, StayTextInEveryLabelOfTheWindow) { ExpectPlainLabels(window); }

TEST_F(ForeignTexts, StayTextInADifference) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  const Project before = window.Document()->Content();
  ChangeNotes("F1", "");
  DifferenceView view(plexel::Text::ColumnNow, plexel::Text::ColumnThen);
  view.Show(DifferencesOf(window.Document()->Content(), before));
  ExpectPlainTips(*view.model(), 1);
  VersionsDialog dialog(VersionStore(File("state") / "versions"), *window.Document(), &window);
  ExpectPlainLabels(dialog);
}

TEST_F(ForeignTexts, StayTextInTheClipboard) {
  for (QAction* const action : window.findChildren<QAction*>()) {
    if (action->text() == Say(plexel::Text::Copy)) action->trigger();
  }
  const QMimeData* const copied = QGuiApplication::clipboard()->mimeData();
  ASSERT_TRUE(copied->hasText());
  EXPECT_FALSE(copied->hasHtml());
  EXPECT_FALSE(copied->hasUrls());
}

TEST_F(ForeignTexts, AMessageShowsTheNameOfAFileAsItIs) {
  const std::string name = "<b>x<a href='file:.'>y<.json";
  bool shown = false;
  AnswerNextBox([&](QMessageBox& box) {
    shown = true;
    EXPECT_TRUE(box.informativeText().contains(QString::fromStdString(name))) << box.informativeText().toStdString();
    EXPECT_GE(box.findChildren<QLabel*>().size(), 2);
    ExpectPlainLabels(box);
  });
  EXPECT_FALSE(window.Import(File(name)));
  EXPECT_TRUE(shown);
}

TEST_F(ForeignTexts, AMessageOfADialogIsShownAsItIs) {
  bool shown = false;
  AnswerNextBox([&](QMessageBox& box) {
    shown = true;
    ExpectPlainLabels(box);
  });
  QtMessageBoxes boxes;
  boxes.Show(Hostile, 0, Hostile);
  EXPECT_TRUE(shown);
}

TEST_F(ForeignTexts, TheTitleTellsTheNameOfTheFileAsItIs) {
  ASSERT_TRUE(window.SaveProject(File("a[*]b.plexel")));
  EXPECT_TRUE(window.windowTitle().startsWith("a[*][*]b.plexel[*]")) << window.windowTitle().toStdString();
}

TEST_F(ForeignTexts, ARecentFileIsToldByItsName) {
  EditorStore store(File(""));
  const QString name = "/a&amp;b <b>c</b> & d.plexel";
  store.AddRecent(name);
  RecentMenu menu(store, nullptr);
  EXPECT_EQ(Shown(menu.actions().front()->toolTip()), name);
}

TEST_F(ForeignTexts, HelpReadsNothingBesideItsTopics) {
  std::filesystem::create_directory(File("Plexel"));
  std::filesystem::create_directory(File("secret"));
  std::ofstream(File("secret/1.html")) << "secret";
  std::ofstream(File("Plexel/1.html")) << "first <img src='../secret/1.html'><a href='2.html'>on</a>";
  std::ofstream(File("Plexel/2.html")) << "second";
  help.Show(0, File("Plexel.chm").string(), HelpViewer::HelpContext, 1);
  QTextBrowser* browser = nullptr;
  for (QWidget* const widget : QApplication::allWidgets()) {
    if (auto* const one = qobject_cast<QTextBrowser*>(widget)) browser = one;
  }
  ASSERT_NE(browser, nullptr);
  EXPECT_TRUE(browser->toPlainText().startsWith("first"));
  for (const QUrl& url : {QUrl("../secret/1.html"), QUrl::fromLocalFile(QString::fromStdString(File("secret/1.html"))),
                          QUrl("http://localhost/1.html")}) {
    browser->setSource(url);
    EXPECT_TRUE(browser->toPlainText().startsWith("first")) << url.toString().toStdString();
    EXPECT_TRUE(browser->loadResource(QTextDocument::HtmlResource, url).isNull()) << url.toString().toStdString();
  }
  browser->setSource(QUrl("2.html"));
  EXPECT_EQ(browser->toPlainText(), "second");
}

TEST_F(ForeignTexts, AValueThatItsElementCannotReadIsToldAtOpening) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  Project project = ReadProject(File("a.plexel"));
  for (ProjectElement& element : project.elements) {
    if (element.place == "F3") element.bag.Store("SizeX", std::string("<b>wide</b>"));
  }
  WriteProject(File("a.plexel"), project);
  QString told;
  AnswerNextBox([&](QMessageBox& box) { told = box.informativeText(); });
  EXPECT_TRUE(window.OpenProject(File("a.plexel")));
  EXPECT_EQ(told, "F3: SizeX");
}

}  // namespace
}  // namespace plexel::testing
