#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "element/ctlPlexelBaseElement.h"
#include "files/data_directory.h"
#include "forms/hand.h"
#include "qt/element_widget.h"
#include "qt/form_view.h"
#include "qt/qt_component.h"
#include "qt/qt_ports.h"
#include "services/module_state.h"

namespace plexel::testing {

/// A window with two element widgets and a plain one.
class Widgets : public ::testing::Test {
 protected:
  Widgets() {
    component.Desktop().OnFailure([this](const std::string& what) { failures.push_back(what); });
    window.resize(300, 200);
    Place(first, 10);
    Place(second, 80);
    plain.setFocusPolicy(Qt::StrongFocus);
    plain.setGeometry(150, 10, 50, 50);
    plain.setFocus();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  ~Widgets() override { Module().ctlCurrentElement.reset(); }

  static void Place(ElementWidget& widget, int left) {
    widget.SizeX(56);
    widget.SizeY(54);
    widget.ElementType(ElementWidget::RectLed);
    widget.ZoomFactor(100);
    widget.move(left, 10);
  }
  FormView* Topmost() { return dynamic_cast<QtModalLoop&>(component.Desktop().Modal()).Topmost(); }
  /// Acts on the form that opens next, and closes it.
  void ActOnNextForm(const std::function<void(Hand&, Form&)>& act) {
    QTimer::singleShot(0, &context, [this, act] {
      FormView* const view = Topmost();
      ASSERT_NE(view, nullptr);
      Form& form = view->Model();
      Hand hand(form);
      act(hand, form);
      if (form.IsShown()) form.Unload();
    });
  }
  static void Click(Hand& hand, Form& form, const char* control) { hand.Click(*form.Find(control)); }

  QTemporaryDir files;
  QtComponent component{DataDirectory(), files.path().toStdString()};
  QWidget window;
  ElementWidget first{&window}, second{&window};
  QWidget plain{&window};
  QObject context;
  std::vector<std::string> failures;
};

}  // namespace plexel::testing
