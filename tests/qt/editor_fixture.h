#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <array>
#include <filesystem>
#include <functional>
#include <string>

#include "component/component.h"
#include "editor/main_window.h"
#include "editor/panel_view.h"
#include "files/data_directory.h"
#include "qt/form_view.h"
#include "qt/qt_ports.h"

namespace plexel::testing {

/// The editor with a new project on the large panel.
class Editor : public ::testing::Test {
 protected:
  Editor() {
    window.NewProject("Large");
    window.show();
  }

  std::filesystem::path File(const std::string& name) { return files.path().toStdString() + "/" + name; }
  ctlPlexelBaseElement& Element(const std::string& id) {
    for (const PanelDocument::Place& place : window.Document()->Places()) {
      if (place.element->Name() == id) return *place.element;
    }
    throw std::logic_error("no element " + id);
  }
  /// A step that changes the notes of an element.
  void ChangeNotes(const std::string& id, const std::string& notes) {
    const std::array place = {static_cast<std::size_t>(PlaceOf(id))};
    window.Document()->Change(StepKind::Notes, place, [&] { Element(id).ButtonNotes(notes); });
  }
  int PlaceOf(const std::string& id) { return window.Document()->PlaceOf(Element(id)); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&window.View(), key, modifiers);
  }
  QPoint Middle(const std::string& id) { return window.View().PlaceRect(PlaceOf(id)).center(); }
  /// Acts on the message box that comes next.
  void AnswerNextBox(const std::function<void(QMessageBox&)>& act) {
    QTimer::singleShot(0, &context, [act] {
      auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      act(*box);
      box->close();
    });
  }
  /// Acts on the form that opens next, once it stands on the screen, and closes it.
  void ActOnNextForm(const std::function<void(Hand&, Form&)>& act) {
    QTimer::singleShot(0, &context, [this, act, before = platform.Modal().Topmost()] {
      FormView* const view = platform.Modal().Topmost();
      if (view == nullptr || view == before) return ActOnNextForm(act);
      Form& form = view->Model();
      Hand hand(form);
      act(hand, form);
      if (form.IsShown()) form.Unload();
    });
  }

  QTemporaryDir files;
  FileSurroundings surroundings{DataDirectory(), files.path().toStdString()};
  HelpWindow help;
  OpenQtPlatform platform{surroundings.UserRegistry(), help};
  Component component{platform, surroundings};
  MainWindow window{component, surroundings, platform, help, File("state")};
  QObject context;
};

}  // namespace plexel::testing
