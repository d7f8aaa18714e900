#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <iostream>
#include <stdexcept>

#include "component/component.h"
#include "editor/editor_host.h"
#include "editor/form_notes.h"
#include "editor/main_window.h"
#include "editor/panel_view.h"
#include "editor/settings_dialog.h"
#include "element/ctlPlexelBaseElement.h"
#include "files/data_directory.h"
#include "files/file_surroundings.h"
#include "files/help_topics.h"
#include "forms/form_directory.h"
#include "pictures/editor_pictures.h"
#include "qt/fonts.h"
#include "qt/form_view.h"
#include "qt/help_window.h"
#include "qt/qt_ports.h"
#include "qt/units.h"
#include "services/dialogs.h"
#include "services/shared_services.h"

namespace plexel {
namespace {

/// Draws the editor and every dialog into picture files, in one language.
class PictureMaker {
 public:
  /// Without a project the editor shows a panel with some keys defined.
  PictureMaker(const QDir& target, const QString& language, std::string project)
      : target_(target),
        project_(std::move(project)),
        surroundings_(DataDirectory(), configuration_.path().toStdString()),
        platform_(surroundings_.UserRegistry(), help_),
        component_(platform_, surroundings_) {
    surroundings_.ChooseLanguage(language.toStdString());
    suffix_ = "-" + language.left(2).toLower() + ".png";
  }

  void TakeAll() {
    TakeEditor();
    platform_.Notes([this](Form& form) { return notes_.Of(form); });
    TakeConfiguration(RectLed);
    TakeConfiguration(Led);
    TakeWizard();
    TakeProperties();
  }

 private:
  std::shared_ptr<ctlPlexelBaseElement> Element(enumTactisBaseElementType type) {
    auto element = component_.Create("F1", host_);
    element->ElementType(type);
    element->TargetSystem("Standard");
    element->PressKeyDefLayer1("[Ctrl Left+a\u2039\u203A]");
    element->PressKeyDefLayer2("[F1\u2039\u203A][Enter\u2039\u203A]");
    element->ReleaseKeyDefLayer2("[Shift Left\u203A]");
    element->HardwareNumberButton(12);
    element->HardwareNumberLed(14);
    element->HardwareNumberKey(3);
    element->HardwareNumberKey2(5);
    element->LEDTypeLayer1(UserLed);
    return element;
  }

  FormView& Top() { return *platform_.Modal().Topmost(); }
  Form& TopForm() { return Top().Model(); }
  void Act(const std::function<void(Hand&, Form&)>& act) {
    Hand hand(TopForm());
    act(hand, TopForm());
    platform_.Modal().SyncAll();
  }
  void Click(const std::string& name) {
    Act([&](Hand& hand, Form& form) { hand.Click(*form.Find(name)); });
  }
  void Take(const QString& name) {
    QCoreApplication::processEvents();
    Save(Top().Window(), name);
  }
  void Save(QWidget& widget, const QString& name) {
    const QString file = target_.filePath(name + suffix_);
    if (!widget.grab().save(file)) throw std::runtime_error(file.toStdString() + " cannot be written");
    std::cout << file.toStdString() << '\n';
  }
  void Later(std::function<void()> step) {
    QTimer::singleShot(50, &context_, [step = std::move(step)] {
      try {
        step();
      } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
      }
    });
  }

  void TakeConfiguration(enumTactisBaseElementType type) {
    const auto element = Element(type);
    Later([&] {
      if (type == Led) {
        Take("configuration-led");
      } else {
        Take("configuration-keys");
        Act([](Hand& hand, Form& form) { hand.DblClick(static_cast<Grid&>(*form.Find("msgScanCodes")), 1, 2); });
        Take("configuration-capture");
        for (int page = 1; page < 3; ++page) {
          Act([page](Hand& hand, Form& form) { hand.Tab(static_cast<TabStrip&>(*form.Find("sstScanCode")), page); });
          Take("configuration-page" + QString::number(page));
        }
        Act([](Hand& hand, Form& form) { hand.Tab(static_cast<TabStrip&>(*form.Find("sstScanCode")), 0); });
        for (const FormName name : {dialogs::frmSpecialIPCKey, dialogs::frmSpecialWindowsKey,
                                    dialogs::frmASCIICharacterTable, dialogs::frmNonStandardScancodes}) {
          Later([this, name] {
            if (TopForm().Name() != dialogs::frmConfigurationDialog) {
              if (TopForm().Name() == dialogs::frmASCIICharacterTable) {
                Act([](Hand& hand, Form& form) { hand.Click(static_cast<Grid&>(*form.Find("msgASCIICodes")), 4, 4); });
              }
              Take(ToQt(std::string_view(name)));
              TopForm().Unload();
            }
          });
          FormDirectory::Instance().ShowModal(name, &TopForm());
        }
      }
      Click("cmdCancel");
    });
    element->OpenConfigurationDialog();
  }

  void TakeEditor() {
    MainWindow window(component_, surroundings_, platform_, help_, state_.path().toStdString());
    if (project_.empty()) {
      FillSamplePanel(window);
    } else if (!window.OpenProject(project_)) {
      throw std::runtime_error(project_ + " cannot be opened");
    }
    window.resize(1360, 940);
    window.View().Select(20);
    window.show();
    EditorPictures(
        window, [this](QWidget& widget, const QString& name) { Save(widget, name); }, QDir(state_.path()),
        QDir(files_.path()))
        .TakeAll();
    SettingsDialog settings(surroundings_, &window);
    settings.show();
    QCoreApplication::processEvents();
    Save(settings, "settings");
    for (const HelpTopic& topic : ReadHelpTopics(HelpFileName())) {
      ShowHelpTopic(0, topic.number);
      QCoreApplication::processEvents();
      if (help_.Window()) Save(*help_.Window(), "help-" + QString::number(topic.number));
    }
  }

  static void FillSamplePanel(MainWindow& window) {
    window.NewProject("Large");
    int place = 0;
    for (const PanelDocument::Place& one : window.Document()->Places()) {
      if (++place % 3 != 0 || one.element->ElementType() != RectLed) continue;
      one.element->PressKeyDefLayer1("[Ctrl Left+a\u2039\u203A]");
      PutBytes(*one.element, {0x14, 0x1C, 0xF0, 0x1C, 0xF0, 0x14}, {});
      one.element->ButtonNotes("Selects everything on the page.");
    }
    // One of them never lets a key go, and shows what the panel does not offer.
    ctlPlexelBaseElement& wrong = *window.Document()->Places()[WrongPlace].element;
    PutBytes(wrong, {0x14, 0x1C, 0xF0, 0x1C}, {});
    wrong.LEDTypeLayer1(UserLed);
    window.SettingsChanged();
  }

  void TakeWizard() {
    const auto element = Element(RectLed);
    element->WizardOn(True);
    Later([&] {
      Take("wizard1");
      Later([&] {
        Take("wizard2");
        Later([&] {
          Take("wizard3");
          Click("cmdCancel");
        });
        Click("cmdForward");
      });
      Click("cmdForward");
    });
    element->OpenConfigurationDialog();
  }

  void TakeProperties() {
    for (const auto type : {RectLed, Key}) {
      const auto element = Element(type);
      Later([&] {
        Take(type == Key ? "properties-keyswitch" : "properties-key");
        Act([](Hand& hand, Form&) { hand.Close(); });
      });
      element->OpenPropertiesDialog();
    }
  }

  static constexpr std::size_t WrongPlace = 20;  ///< of the sample: a key with problems

  QDir target_;
  std::string project_;
  QString suffix_;
  QTemporaryDir configuration_, state_, files_;
  HelpWindow help_;
  EditorHost host_;
  FormNotes notes_;
  FileSurroundings surroundings_;
  OpenQtPlatform platform_;
  Component component_;
  QObject context_;
};

}  // namespace
}  // namespace plexel

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setFont(plexel::DialogFont());
  if (argc != 2 && argc != 3) {
    std::cerr << "usage: plexel-pictures DIRECTORY [PROJECT]\n";
    return 2;
  }
  const QDir target(QString::fromLocal8Bit(argv[1]));
  if (!target.mkpath(".")) {
    std::cerr << "plexel-pictures: " << argv[1] << " cannot be made\n";
    return 1;
  }
  try {
    for (const char* language : {"English", "German"})
      plexel::PictureMaker(target, language, argc == 3 ? argv[2] : "").TakeAll();
  } catch (const std::exception& failure) {
    std::cerr << "plexel-pictures: " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
