#pragma once

#include <gtest/gtest.h>

#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "headless/headless_system.h"
#include "headless/memory_registry.h"
#include "platform/platform_in_force.h"
#include "qt/form_view.h"
#include "qt/qt_ports.h"
#include "qt/units.h"
#include "qt_sample_form.h"

namespace plexel::testing {

/// A desktop for one test. Forms are shown as in the program; the test acts while one is open.
class Stage : public ::testing::Test {
 protected:
  /// The keyboard of the desktop, null for that of the toolkit alone.
  explicit Stage(std::unique_ptr<DesktopKeyboard> keyboard = nullptr) : platform(registry, help, std::move(keyboard)) {
    platform.Modal().onFailure = [this](const std::string& what) { failures.push_back(what); };
  }

  /// Shows the form, runs the steps on its view and closes it.
  void WhileShown(Form& shown, const std::function<void(FormView&)>& steps) {
    QTimer::singleShot(0, &context, [&] {
      FormView* const view = platform.Modal().Topmost();
      ASSERT_NE(view, nullptr);
      ASSERT_TRUE(QTest::qWaitForWindowActive(&view->Window()));
      steps(*view);
      shown.Unload();
    });
    shown.ShowModal(nullptr);
  }
  void WhileShown(const std::function<void(FormView&)>& steps) { WhileShown(form, steps); }

  template <typename Widget>
  Widget& WidgetOf(const FormView& view, const Control& control) {
    auto* const widget = dynamic_cast<Widget*>(&view.ViewOf(&control)->FocusWidget());
    if (widget == nullptr) throw std::logic_error("another kind of widget");
    return *widget;
  }
  QWidget& MouseWidgetOf(const FormView& view, const Control& control) { return view.ViewOf(&control)->MouseWidget(); }
  void Click(const FormView& view, const Control& control, Qt::MouseButton button = Qt::LeftButton,
             QPoint place = QPoint()) {
    QTest::mouseClick(&MouseWidgetOf(view, control), button, Qt::NoModifier, place);
  }
  void Press(const FormView& view, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&FocusOf(view), key, modifiers);
  }
  QWidget& FocusOf(const FormView& view) {
    QWidget* const focus = view.Window().focusWidget();
    return focus != nullptr ? *focus : view.Window();
  }
  /// The middle of a cell.
  QPoint CellPlace(int row, int col) {
    float left = 0;
    for (int before = 0; before < col; ++before) left += static_cast<float>(form.grid.ColWidth(before));
    return PixelRect(left, static_cast<float>(row * form.grid.RowHeight()), static_cast<float>(form.grid.ColWidth(col)),
                     static_cast<float>(form.grid.RowHeight()))
        .center();
  }

  Faults faults;
  MemoryRegistry registry{faults, "SOFTWARE\\TALVEN\\PLEXEL\\PARAMETERS"};
  HeadlessHelp help{faults};
  OpenQtPlatform platform;
  PlatformInForce use{platform};
  SampleForm form;
  QObject context;
  std::vector<std::string> failures;
};

}  // namespace plexel::testing
