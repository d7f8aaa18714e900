#include "editor/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <algorithm>
#include <array>

#include "editor/box_room.h"
#include "editor/layers_dialog.h"
#include "editor/panel_view.h"
#include "files/file_error.h"
#include "qt/plain_box.h"
#include "qt/units.h"

namespace plexel {

namespace {

struct MisfitText {
  Misfit::Kind kind;
  Text text;
};
constexpr MisfitText misfitTexts[] = {{Misfit::Kind::KeySwitch, Text::MisfitKeySwitch},
                                      {Misfit::Kind::NoKey, Text::MisfitNoKey},
                                      {Misfit::Kind::NoLed, Text::MisfitNoLed},
                                      {Misfit::Kind::OverLimit, Text::MisfitOverLimit},
                                      {Misfit::Kind::LedTwice, Text::MisfitLedTwice}};

QString Words(const Misfit& misfit) {
  const QString element = ToQt(misfit.element), layer = QString::number(misfit.layer);
  for (const MisfitText& one : misfitTexts) {
    if (one.kind != misfit.kind) continue;
    // All values at once, so that no name is taken for the place of another.
    const QString pattern = Say(one.text);
    if (misfit.kind == Misfit::Kind::LedTwice) return pattern.arg(element, layer, ToQt(misfit.with));
    return misfit.kind == Misfit::Kind::OverLimit ? pattern.arg(element, layer) : pattern.arg(element);
  }
  return {};
}

QString List(const std::vector<Misfit>& misfits) {
  constexpr std::size_t most = 12;
  QStringList lines;
  for (std::size_t index = 0; index < std::min(most, misfits.size()); ++index) lines.append(Words(misfits[index]));
  if (misfits.size() > most) lines.append(Say(Text::MoreOfThem).arg(misfits.size() - most));
  return lines.join('\n');
}

/// The number of the button that the user picks, -1 for Cancel.
int Ask(QWidget* parent, Text question, const std::vector<Misfit>& misfits, std::initializer_list<Text> answers) {
  PlainBox box(parent);
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle("Plexel");
  box.setText(Say(question));
  box.setInformativeText(List(misfits));
  GiveRoom(box);
  std::vector<QAbstractButton*> buttons;
  for (const Text answer : answers) buttons.push_back(box.addButton(Say(answer), QMessageBox::AcceptRole));
  QPushButton* const cancel = box.addButton(Say(Text::Cancel), QMessageBox::RejectRole);
  box.setEscapeButton(cancel);
  box.setDefaultButton(cancel);
  box.exec();
  const auto picked = std::find(buttons.begin(), buttons.end(), box.clickedButton());
  return picked == buttons.end() ? -1 : static_cast<int>(picked - buttons.begin());
}

}  // namespace

std::vector<std::size_t> MainWindow::MeantPlaces() const {
  const std::vector<int> meant = selection_.Meant();
  return {meant.begin(), meant.end()};
}

void MainWindow::DoPasting(Pasting pasting, StepKind kind) {
  const std::vector<Misfit> misfits = pasting.Misfits();
  if (!misfits.empty() && Ask(this, Text::MisfitsFound, misfits, {Text::PasteWhatFits}) < 0) return;
  const std::vector<Misfit> twice = pasting.LedsTwice();
  int answer = 0;
  if (!twice.empty()) answer = Ask(this, Text::LedsTwiceFound, twice, {Text::WithLeds, Text::WithoutLeds});
  if (answer >= 0) pasting.Do(kind, answer == 0);
}

void MainWindow::Copy() {
  const std::vector<std::size_t> places = MeantPlaces();
  if (document_ && !places.empty()) QGuiApplication::clipboard()->setText(ToQt(CopiedText(*document_, places)));
}

void MainWindow::Paste() {
  if (document_) PasteText(QGuiApplication::clipboard()->text(), MeantPlaces());
}

void MainWindow::PasteText(const QString& text, const std::vector<std::size_t>& places) {
  std::vector<ElementRecord> definitions;
  try {
    definitions = DefinitionsIn(text.toStdString());
  } catch (const FileError& failure) {
    return Tell(Text::PasteFailed, ToQt(std::string_view(failure.what())));
  }
  if (!Pasting::Fits(definitions.size(), places.size())) {
    return Tell(Text::PasteFailed, Say(Text::PasteCounts).arg(definitions.size()).arg(places.size()));
  }
  DoPasting(Pasting(*document_, std::move(definitions), places), StepKind::Paste);
}

void MainWindow::SwapChosen() {
  const std::vector<std::size_t> places = MeantPlaces();
  if (!document_) return;
  if (places.size() != 2) {
    statusBar()->showMessage(Say(Text::SwapWantsTwo), MessageTime);
    return;
  }
  DoPasting(Pasting::Swap(*document_, places[0], places[1]), StepKind::Swap);
}

void MainWindow::Clear() {
  const std::vector<std::size_t> places = MeantPlaces();
  if (document_ && !places.empty()) Pasting(*document_, {EmptyDefinition()}, places).Do(StepKind::Clear);
}

void MainWindow::CopyLayers() {
  const std::vector<std::size_t> places = MeantPlaces();
  if (!document_ || places.empty()) return;
  LayersDialog dialog(std::max(view_->Layer(), 1), this);
  if (dialog.exec() != QDialog::Accepted) return;
  std::vector<ElementRecord> definitions;
  for (const std::size_t place : places) {
    ElementRecord record = document_->Places()[place].element->TactisBaseElementScanCodeBuffer();
    for (const std::int32_t layer : dialog.Onto()) CopyLayer(record, dialog.From(), record, layer);
    definitions.push_back(std::move(record));
  }
  DoPasting(Pasting(*document_, std::move(definitions), places, LayerSet(dialog.Onto())), StepKind::Paste);
}

void MainWindow::BeginDrag(int place) {
  auto* const drag = new QDrag(view_);
  auto* const carried = new QMimeData;
  carried->setText(ToQt(CopiedText(*document_, std::array{static_cast<std::size_t>(place)})));
  drag->setMimeData(carried);
  const QRect box = view_->PlaceRect(place);
  drag->setPixmap(view_->grab(box));
  drag->setHotSpot(QPoint(box.width() / 2, box.height() / 2));
  statusBar()->showMessage(Say(Text::DragTip));
  drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
  statusBar()->clearMessage();
}

void MainWindow::Drop(int from, int onto, const QString& text, bool swap) {
  if (from == onto || !document_) return;
  if (from >= 0 && swap) {
    DoPasting(Pasting::Swap(*document_, static_cast<std::size_t>(from), static_cast<std::size_t>(onto)),
              StepKind::Swap);
  } else {
    PasteText(text, {static_cast<std::size_t>(onto)});
  }
}

}  // namespace plexel
