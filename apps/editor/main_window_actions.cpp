#include "editor/main_window.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLibraryInfo>
#include <QLocale>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <algorithm>

#include "editor/help_key.h"
#include "editor/inspector.h"
#include "editor/log_panel.h"
#include "editor/overview_panel.h"
#include "editor/panel_view.h"
#include "editor/recent_menu.h"
#include "editor/settings_dialog.h"
#include "editor/trial_mode.h"
#include "editor/version.h"
#include "editor/virtual_panel.h"
#include "files/file_error.h"
#include "qt/plain_box.h"
#include "qt/units.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// A panel as the user knows it; its name alone when its file cannot be read.
QString PanelTitle(const std::filesystem::path& directory, const std::string& name) {
  try {
    return ToQt(name) + " \u2013 " + ToQt(ReadPanel(PanelFile(directory, name)).title);
  } catch (const FileError& failure) {
    qWarning("%s", failure.what());
    return ToQt(name);
  }
}

}  // namespace

QAction* MainWindow::Add(QMenu& menu, Text text, const QKeySequence& keys, void (MainWindow::*act)()) {
  QAction* const action = menu.addAction(QString());
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, [this, act] {
    Guarded([this, act] {
      inspector_->Commit();
      (this->*act)();
    });
  });
  named_.push_back({action, text});
  return action;
}

void MainWindow::MakeActions() {
  const auto addMenu = [this](Text text) -> QMenu& {
    QMenu* const menu = menuBar()->addMenu(QString());
    menus_.emplace_back(menu, text);
    return *menu;
  };
  QMenu& file = addMenu(Text::MenuFile);
  Add(file, Text::New, QKeySequence::New, &MainWindow::AskNew);
  Add(file, Text::Open, QKeySequence::Open, &MainWindow::AskOpen);
  recent_ = new RecentMenu(store_, this);
  recent_->onOpen = [this](const QString& picked) { Guarded([&] { OpenPicked(picked); }); };
  file.addMenu(recent_);
  menus_.emplace_back(recent_, Text::MenuRecent);
  file.addSeparator();
  Add(file, Text::Save, QKeySequence::Save, &MainWindow::Save);
  Add(file, Text::SaveAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S, &MainWindow::SaveAs);
  Add(file, Text::Versions, QKeySequence(), &MainWindow::ShowVersions);
  file.addSeparator();
  MakeExchangeMenu(file);
  file.addSeparator();
  QAction* const quit = file.addAction(QString(), this, &QWidget::close);
  quit->setShortcut(Qt::CTRL | Qt::Key_Q);
  named_.push_back({quit, Text::Quit});
  QMenu& edit = addMenu(Text::MenuEdit);
  undo_ = Add(edit, Text::Undo, QKeySequence::Undo, &MainWindow::Undo);
  redo_ = Add(edit, Text::Redo, QKeySequence::Redo, &MainWindow::Redo);
  undo_->setObjectName("Undo");
  redo_->setObjectName("Redo");
  redo_->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
  edit.addSeparator();
  const auto addSeeking = [&](Text text, const char* name, const QKeySequence& keys, void (MainWindow::*act)()) {
    seekingActions_.push_back(Add(edit, text, keys, act));
    seekingActions_.back()->setObjectName(name);
  };
  addSeeking(Text::Copy, "Copy", QKeySequence::Copy, &MainWindow::Copy);
  Add(edit, Text::Paste, QKeySequence::Paste, &MainWindow::Paste);
  Add(edit, Text::Swap, QKeySequence(), &MainWindow::SwapChosen);
  Add(edit, Text::Clear, QKeySequence::Delete, &MainWindow::Clear);
  Add(edit, Text::CopyLayers, QKeySequence(), &MainWindow::CopyLayers);
  edit.addSeparator();
  addSeeking(Text::Find, "Find", QKeySequence::Find, &MainWindow::Find);
  addSeeking(Text::FindByPressing, "FindByPressing", Qt::CTRL | Qt::SHIFT | Qt::Key_F, &MainWindow::FindByPressing);
  QMenu& element = addMenu(Text::MenuElement);
  elementMenu_ = &element;
  configure_ = Add(element, Text::Configure, QKeySequence(), &MainWindow::Configure);
  configure_->setObjectName("Configure");
  Add(element, Text::Properties, Qt::ALT | Qt::Key_Return, &MainWindow::ShowProperties);
  element.addSeparator();
  MakeSelectMenu(element);
  MakeViewMenu(addMenu(Text::MenuView));
  QMenu& extras = addMenu(Text::MenuExtras);
  Add(extras, Text::Settings, QKeySequence::Preferences, &MainWindow::EditSettings);
  QMenu& help = addMenu(Text::MenuHelp);
  Add(help, Text::HelpContents, QKeySequence(), &MainWindow::ShowContents);
  Add(help, Text::HelpHere, QKeySequence::HelpContents, &MainWindow::ShowHelpHere)->setObjectName("HelpHere");
  Add(help, Text::About, QKeySequence(), &MainWindow::ShowAbout);
  MakeToolBar();
}

void MainWindow::Retranslate() {
  UseToolkitTexts();
  log_->Retranslate();
  trial_->Retranslate();
  overview_->Retranslate();
  if (virtualPanel_) virtualPanel_->Retranslate();
  tools_->setWindowTitle(Say(Text::ShowToolBar).remove('&'));
  for (const auto& [menu, text] : menus_) menu->setTitle(Say(text));
  for (const Named& named : named_) named.action->setText(Say(named.text));
  RetranslateTools();
  limits_->setText(Say(Text::CaptureIsPartial));
  RetranslateView();
  RetranslateReading();
  ShowStatus();
  ShowTitle();
  ShowHistory();
}

void MainWindow::UseToolkitTexts() {
  QCoreApplication::removeTranslator(&toolkitTexts_);
  if (toolkitTexts_.load(UserLocale(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&toolkitTexts_);
  }
}

void MainWindow::AskNew() {
  if (!MayLeaveProject()) return;
  const std::vector<std::string> names = PanelNames(Site().panelDirectory);
  QStringList panels;
  for (const std::string& name : names) panels.append(PanelTitle(Site().panelDirectory, name));
  QInputDialog dialog(this);
  dialog.setWindowTitle(Say(Text::NewTitle));
  dialog.setLabelText(Say(Text::NewPanel));
  dialog.setComboBoxItems(panels);
  dialog.setOkButtonText(Say(Text::OK));
  dialog.setCancelButtonText(Say(Text::Cancel));
  if (dialog.exec() != QDialog::Accepted) return;
  const qsizetype chosen = panels.indexOf(dialog.textValue());
  if (chosen >= 0) NewProject(names[static_cast<std::size_t>(chosen)]);
}

void MainWindow::AskOpen() {
  if (!MayLeaveProject()) return;
  const QString file = QFileDialog::getOpenFileName(this, Say(Text::OpenTitle), store_.Folder(), Say(Text::FileFilter));
  if (!file.isEmpty()) OpenProject(file.toStdString());
}

void MainWindow::Save() { SaveOrAsk(); }
void MainWindow::SaveAs() { SaveAsked(); }

bool MainWindow::SaveOrAsk() {
  if (!document_) return false;
  return document_->File().empty() ? SaveAsked() : SaveProject(document_->File());
}

bool MainWindow::SaveAsked() {
  if (!document_) return false;
  QFileDialog dialog(this, Say(Text::SaveTitle), store_.Folder(), Say(Text::FileFilter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("plexel");
  dialog.selectFile(ProjectName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
  return SaveProject(dialog.selectedFiles().front().toStdString());
}

bool MainWindow::MayLeaveProject() {
  inspector_->Commit();
  if (!document_ || !document_->Modified()) return true;
  PlainBox box(this);
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle("Plexel");
  box.setText(Say(Text::AskSave).arg(ProjectName()));
  QPushButton* const save = box.addButton(Say(Text::Save), QMessageBox::AcceptRole);
  QPushButton* const leave = box.addButton(Say(Text::DoNotSave), QMessageBox::DestructiveRole);
  box.setEscapeButton(box.addButton(Say(Text::Cancel), QMessageBox::RejectRole));
  box.setDefaultButton(save);
  box.exec();
  if (box.clickedButton() == leave) return true;
  return box.clickedButton() == save && SaveOrAsk();
}

void MainWindow::Configure() {
  if (ctlPlexelBaseElement* const element = view_->Selected()) OpenConfiguration(*element);
}

void MainWindow::ShowProperties() {
  ctlPlexelBaseElement* const element = view_->Selected();
  if (element == nullptr) return;
  Change(StepKind::Properties, *element, [hold = element->shared_from_this()] { hold->OpenPropertiesDialog(); });
}

void MainWindow::EditSettings() {
  SettingsDialog dialog(surroundings_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  try {
    dialog.Apply();
  } catch (const std::exception& failure) {
    Tell(Text::SettingsFailed, WhyFailed(failure));
  }
  SettingsChanged();
}

void MainWindow::ShowContents() { ShowHelpTopic(0, HelpWindow::Contents); }
void MainWindow::ShowHelpHere() { ShowHelpTopic(0, HelpTopicOf(QApplication::focusWidget())); }

void MainWindow::ShowAbout() {
  PlainBox box(this);
  box.setWindowTitle(Say(Text::About).remove('&'));
  box.setIconPixmap(windowIcon().pixmap(64));
  box.setText(Say(Text::AboutText).arg(ProgramVersion));
  box.addButton(Say(Text::OK), QMessageBox::AcceptRole);
  box.exec();
}

void MainWindow::ShowElementMenu(const QPoint& globalPlace) { elementMenu_->popup(globalPlace); }

}  // namespace plexel
