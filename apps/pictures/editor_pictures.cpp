#include "pictures/editor_pictures.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFrame>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <iostream>
#include <stdexcept>

#include "editor/element_text.h"
#include "editor/inspector.h"
#include "editor/layers_dialog.h"
#include "editor/log_panel.h"
#include "editor/overview_panel.h"
#include "editor/panel_view.h"
#include "editor/problem_panel.h"
#include "editor/trial_layer.h"
#include "editor/trial_mode.h"
#include "editor/versions_dialog.h"
#include "editor/virtual_panel.h"
#include "project/versions.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr int OverviewHeight = 340;

void Mouse(TrialLayer& layer, std::size_t place, QEvent::Type type) {
  const QPointF at = layer.PlaceRect(place).center();
  QMouseEvent event(type, at, layer.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&layer, &event);
}

}  // namespace

void PutBytes(ctlPlexelBaseElement& element, std::initializer_list<std::uint8_t> press,
              std::initializer_list<std::uint8_t> release) {
  auto record = element.TactisBaseElementScanCodeBuffer();
  record.strLayer1PressScanCode = record.strLayer1ReleaseScanCode = InitialCodes();
  for (const auto& [bytes, codes] :
       {std::pair(press, &record.strLayer1PressScanCode), std::pair(release, &record.strLayer1ReleaseScanCode)}) {
    for (const std::uint8_t byte : bytes) codes->Value[static_cast<std::size_t>(++codes->NextValue)] = byte;
  }
  element.TactisBaseElementScanCodeBuffer(record);
}

void EditorPictures::TakeAll() {
  Take("editor");
  TakeParts();
  TakeOverview();
  TakeSelection();
  TakeDialogs();
  TakeKeptWork();
  TakeTrial();
  TakeVirtualPanel();
}

void EditorPictures::TakeWidget(QWidget& widget, const QString& name) {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // no event loop runs that would do so
  QCoreApplication::processEvents();
  save_(widget, name);
}

void EditorPictures::TakeModal(const QString& name, const std::function<void()>& act) {
  bool taken = false;
  QTimer::singleShot(100, &context_, [&] {
    if (QWidget* const dialog = QApplication::activeModalWidget()) {
      TakeWidget(*dialog, name);
      taken = true;
      dialog->close();
    }
  });
  act();
  if (!taken) throw std::runtime_error(name.toStdString() + " does not open");
}

void EditorPictures::Pick(Text entry) {
  for (QAction* const action : window_.findChildren<QAction*>()) {
    if (action->text() == Say(entry)) return action->trigger();
  }
  throw std::runtime_error("there is no entry " + Say(entry).toStdString());
}

void EditorPictures::Push(QWidget& widget, Text button) {
  for (QPushButton* const one : widget.findChildren<QPushButton*>()) {
    if (one->text() == Say(button)) return one->click();
  }
  throw std::runtime_error("there is no button " + Say(button).toStdString());
}

std::vector<std::size_t> EditorPictures::PlacesOf(enumTactisBaseElementType kind) const {
  std::vector<std::size_t> found;
  for (std::size_t place = 0; place < window_.Document()->Places().size(); ++place) {
    if (At(place).ElementType() == kind) found.push_back(place);
  }
  return found;
}

void EditorPictures::ChangeNotes(std::size_t place, const std::string& notes) {
  window_.Document()->Change(StepKind::Notes, std::array{place}, [&] { At(place).ButtonNotes(notes); });
}

void EditorPictures::TakeParts() {
  TakeWidget(window_.TheInspector(), "inspector");
  TakeWidget(window_.ProblemList(), "problems");
  window_.Log().show();
  window_.Log().raise();
  Take("events");
  window_.Log().hide();
  window_.ProblemList().raise();
}

void EditorPictures::TakeOverview() {
  const int height = window_.ProblemList().height();
  window_.Overview().Find();
  window_.resizeDocks({&window_.Overview()}, {OverviewHeight}, Qt::Vertical);
  auto* const words = window_.Overview().findChild<QLineEdit*>("FindWords");
  words->setText("ctrl");
  Take("overview");
  words->clear();
  window_.Overview().FindByPressing();
  Take("overview-pressing");
  window_.Overview().hide();
  window_.resizeDocks({&window_.ProblemList()}, {height}, Qt::Vertical);
}

void EditorPictures::TakeSelection() {
  const auto keys = PlacesOf(RectLed);
  std::vector<int> chosen;
  for (std::size_t key = 0; key < std::min<std::size_t>(keys.size(), 6); ++key) {
    chosen.push_back(static_cast<int>(keys[key]));
  }
  const int before = window_.TheSelection().Current();
  window_.TheSelection().ChooseAndGo(chosen);
  window_.View().Labels(true);
  window_.ShowLayer(1);
  Take("selection");
  window_.View().Labels(false);
  window_.ShowLayer(AllLayersShown);
  window_.TheSelection().Only(before);
}

void EditorPictures::TakeDialogs() {
  LayersDialog layers(1, &window_);
  layers.show();
  TakeWidget(layers, "layers");
  layers.hide();
  TakeModal("new", [this] { Pick(Text::New); });
  TakeModal("import", [this] { Pick(Text::Import); });
  TakeModal("export", [this] { Pick(Text::ExportPdf); });
  TakeModal("about", [this] { Pick(Text::About); });
  // What was copied of a key does not fit an LED.
  const auto leds = PlacesOf(Led);
  if (leds.empty()) return;
  const int before = window_.TheSelection().Current();
  Pick(Text::Copy);
  window_.TheSelection().Only(static_cast<int>(leds.front()));
  TakeModal("misfit", [this] { Pick(Text::Paste); });
  window_.TheSelection().Only(before);
}

void EditorPictures::TakeKeptWork() {
  const std::filesystem::path file = files_.filePath("line4.plexel").toStdString();
  const auto place = static_cast<std::size_t>(std::max(window_.TheSelection().Current(), 0));
  for (const char* const notes : {"Pump 2", "Pump 2: stop", "Pump 2: start and stop"}) {
    ChangeNotes(place, notes);
    if (!window_.SaveProject(file)) throw std::runtime_error("the project cannot be saved");
  }
  const VersionStore versions(std::filesystem::path(state_.path().toStdString()) / "versions");
  VersionsDialog dialog(versions, *window_.Document(), &window_);
  dialog.show();
  dialog.findChild<QListWidget*>("Versions")->setCurrentRow(1);
  TakeWidget(dialog, "versions");
  dialog.hide();

  Project theirs = window_.Document()->Content();
  for (ProjectElement& element : theirs.elements) {
    if (element.place == At(place).Name()) element.bag.Store("ButtonNotes", std::string("Pump 3"));
  }
  WriteProject(file, theirs);
  auto* const notice = window_.findChild<QFrame*>("notice");
  constexpr int Patience = 10'000;
  QElapsedTimer waited;
  waited.start();
  while (!notice->isVisible() && waited.elapsed() < Patience) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
  }
  Take("file-changed");
  TakeModal("difference", [&] { Push(*notice, Text::ShowDifference); });
  Push(*notice, Text::KeepMine);

  ChangeNotes(place, "Pump 4");
  TakeModal("question-save", [this] { Pick(Text::New); });
  window_.KeepWork();
  const QDir recovery(state_.filePath("recovery"));
  for (const QString& name : recovery.entryList({"*.recovery"})) {
    QFile::copy(recovery.filePath(name), recovery.filePath("1-1.recovery"));
  }
  TakeModal("lost-work", [this] { window_.OfferLostWork(); });
}

void EditorPictures::TakeTrial() {
  const auto keys = PlacesOf(RectLed);
  if (keys.size() < 3) return;
  At(keys[0]).LEDTypeLayer1(CapsLockLed);
  At(keys[2]).LEDTypeLayer2(Layer2Led);
  PutBytes(At(keys[0]), {0x58, 0xF0, 0x58, 0x12, 0x33, 0xF0, 0x33, 0xF0, 0x12, 0x43, 0xF0, 0x43}, {});
  PutBytes(At(keys[1]), {0x14, 0x1C, 0xF0, 0x1C}, {});
  PutBytes(At(keys[2]), {0xF1}, {});
  window_.Try(true);
  TrialLayer& layer = window_.Trying().Layer();
  for (std::size_t key = 0; key < 3; ++key) {
    Mouse(layer, keys[key], QEvent::MouseButtonPress);
    if (key < 2) Mouse(layer, keys[key], QEvent::MouseButtonRelease);
  }
  Take("trial");
  window_.Try(false);
}

void EditorPictures::TakeVirtualPanel() {
  VirtualPanel panel(*window_.Document(), 1, [](int, bool) {});
  panel.show();
  QCoreApplication::processEvents();
  const auto keys = PlacesOf(RectLed);
  for (std::size_t key = 1; key < std::min<std::size_t>(keys.size(), 3); ++key) {
    Mouse(panel.Layer(), keys[key], QEvent::MouseButtonPress);
    if (key < 2) Mouse(panel.Layer(), keys[key], QEvent::MouseButtonRelease);
  }
  TakeWidget(panel, "virtual-panel");
}

}  // namespace plexel
