#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "component/component.h"
#include "dialogs/dialog_visits.h"
#include "dialogs/told_form.h"
#include "files/data_directory.h"
#include "files/file_surroundings.h"
#include "headless/headless_system.h"
#include "headless/recording_host.h"
#include "qt/combo_view.h"
#include "qt/form_view.h"
#include "qt/grid_widget.h"
#include "qt/qt_ports.h"

namespace plexel::testing {
namespace {

using dialogs::Lines;
using dialogs::ToldControl;
using dialogs::ToldForm;
using dialogs::YesOrNo;

std::string Plain(const QString& text) { return text.toStdString(); }
/// The text of what marks a letter by a sign ahead of it.
std::string Marked(const QString& text) { return dialogs::Readable(text.toStdString()); }

std::vector<std::string> EntriesOf(const QComboBox& box) {
  std::vector<std::string> entries;
  for (int entry = 0; entry < box.count(); ++entry) entries.push_back(Plain(box.itemText(entry)));
  return entries;
}

void TellOfLabel(const QLabel& label, const char* fact, ToldControl& told) {
  // A sign marks a letter only where a letter leads somewhere.
  told.facts.emplace_back(fact, label.buddy() != nullptr ? Marked(label.text()) : Plain(label.text()));
}

/// What the widgets of a control show.
ToldControl ToldOf(const Control& control, const ControlView& view) {
  QWidget& outer = view.Outer();
  ToldControl told{Plain(outer.objectName()), outer.isVisible(), outer.isEnabledTo(outer.parentWidget()), {}};
  const auto fact = [&](const char* name, std::string value) { told.facts.emplace_back(name, std::move(value)); };
  switch (control.Kind()) {
    case ControlKind::OptionButton:
      fact("set", YesOrNo(dynamic_cast<QAbstractButton&>(outer).isChecked()));
      [[fallthrough]];
    case ControlKind::CommandButton:
      fact("caption", Marked(dynamic_cast<QAbstractButton&>(outer).text()));
      break;
    case ControlKind::Label:
      TellOfLabel(dynamic_cast<QLabel&>(outer), "caption", told);
      break;
    case ControlKind::Frame:
      fact("caption", Plain(outer.accessibleName()));
      break;
    case ControlKind::ComboBox: {
      const auto& box = dynamic_cast<QComboBox&>(outer);
      fact("text", Plain(dynamic_cast<const ComboView&>(view).Shown()));
      fact("entry", std::to_string(box.currentIndex()));
      fact("entries", Lines(EntriesOf(box)));
      break;
    }
    case ControlKind::TextBox:
      if (const auto* const line = dynamic_cast<QLineEdit*>(&outer)) {
        fact("text", Plain(line->text()));
        fact("locked", YesOrNo(line->isReadOnly()));
      } else {
        const auto& note = dynamic_cast<QPlainTextEdit&>(outer);
        fact("text", Plain(note.toPlainText()));
        fact("locked", YesOrNo(note.isReadOnly()));
      }
      break;
    case ControlKind::TabStrip: {
      const auto& bar = dynamic_cast<QTabBar&>(view.FocusWidget());
      std::vector<std::string> tabs;
      for (int page = 0; page < bar.count(); ++page) tabs.push_back(Marked(bar.tabText(page)));
      fact("tabs", Lines(tabs));
      fact("front", std::to_string(bar.currentIndex()));
      break;
    }
    case ControlKind::Grid: {
      const GridShot& shot = dynamic_cast<GridWidget&>(outer).Drawn();
      fact("cell", std::to_string(shot.row) + " " + std::to_string(shot.col));
      fact("cells", dialogs::CellsOf(shot.cells));
      break;
    }
    case ControlKind::StatusBar:
      TellOfLabel(dynamic_cast<QLabel&>(outer), "text", told);
      break;
    default:
      break;
  }
  return told;
}

/// The name of the control whose widget has the keys.
std::string FocusOf(const FormView& view) {
  const QWidget* const focus = view.Window().focusWidget();
  for (const Control* const control : view.Model().Controls()) {
    const ControlView* const one = view.ViewOf(control);
    if (one != nullptr && focus == &one->FocusWidget()) return control->FullName();
  }
  return {};
}

ToldForm ToldOf(const FormView& view) {
  ToldForm told;
  told.title = Plain(view.Window().windowTitle());
  for (const Control* const control : view.Model().Controls()) {
    if (dialogs::IsTold(*control)) told.controls.push_back(ToldOf(*control, *view.ViewOf(control)));
  }
  told.focus = FocusOf(view);
  return told;
}

/// Walks over the dialogs of a desktop.
class Walk {
 public:
  explicit Walk(const std::string& language) { surroundings_.ChooseLanguage(language); }

  std::string Run() {
    for (const dialogs::Visit& visit : dialogs::Visits()) {
      next_ = 0;
      visit_ = &visit;
      const auto element = component_.Create("F1", host_);
      visit.SetUp(*element);
      Wait();
      visit.Open(*element);
      EXPECT_EQ(next_, visit.steps.size());
      visit_ = nullptr;
    }
    return tellings_.Text();
  }

 private:
  void Wait() {
    constexpr int Milliseconds = 10;
    QTimer::singleShot(Milliseconds, &context_, [this] { Turn(); });
  }

  void Turn() {
    FormView* const view = platform_.Modal().Topmost();
    if (visit_ == nullptr || next_ == visit_->steps.size()) return;
    Wait();  // an act may open a dialog, within which the walk goes on
    const dialogs::Step& step = visit_->steps[next_];
    if (view == nullptr || view->Model().Name() != std::string(step.form) || !view->Window().isActiveWindow()) return;
    ++next_;
    try {
      if (!step.look.empty()) Look(*view, step.look);
      Hand hand(view->Model());
      if (step.act) step.act(hand, view->Model());
      platform_.Modal().SyncAll();
    } catch (const std::exception& failure) {
      ADD_FAILURE() << step.look << ": " << failure.what();
      view->Model().Unload();
    }
  }

  void Look(FormView& view, const std::string& look) {
    platform_.Modal().SyncAll();
    ToldForm told = ToldOf(view);
    if (look != "configuration-capture") {
      told.tabOrder = dialogs::FollowTab(told.focus, [&] {
        QWidget* const focus = view.Window().focusWidget();
        QTest::keyClick(focus != nullptr ? focus : static_cast<QWidget*>(&view.Window()), Qt::Key_Tab);
        return FocusOf(view);
      });
    }
    tellings_.Add(look, told);
  }

  QTemporaryDir files_;
  FileSurroundings surroundings_{DataDirectory(), files_.path().toStdString()};
  Faults faults_;
  HeadlessHelp help_{faults_};
  RecordingHost host_{faults_};
  OpenQtPlatform platform_{surroundings_.UserRegistry(), help_, nullptr};
  Component component_{platform_, surroundings_};
  QObject context_;
  dialogs::Tellings tellings_;
  const dialogs::Visit* visit_ = nullptr;
  std::size_t next_ = 0;
};

class EveryDialog : public ::testing::TestWithParam<const char*> {};

TEST_P(EveryDialog, ShowsWhatTheOtherRenderersShow) {
  const std::string told = Walk(GetParam()).Run();
  const std::string kept = dialogs::Kept(PLEXEL_DIALOG_TELLINGS, GetParam());
  EXPECT_NE(kept, "");
  for (const std::string& difference : dialogs::Differences(told, kept)) ADD_FAILURE() << difference;
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryDialog, ::testing::Values("English", "German"),
                         [](const auto& tested) { return std::string(tested.param); });

}  // namespace
}  // namespace plexel::testing
