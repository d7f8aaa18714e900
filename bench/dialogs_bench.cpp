// From the call to the pixels: dialogs shown as native widgets and drawn. That they are closed again is not timed.
// The peer is a dialog of the toolkit with as many widgets, made by hand.

#include "services/dialogs.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>

#include "desktop.h"
#include "forms/form_directory.h"
#include "qt/fonts.h"
#include "qt/form_view.h"
#include "thread_time.h"

namespace {

using namespace plexel;
using bench::Desktop;

void OpenDrawAndClose(benchmark::State& state, enumTactisBaseElementType type, bool wizard) {
  Desktop desktop;
  const auto element = desktop.component.Create("F1", desktop.host);
  element->ElementType(type);
  element->TargetSystem("Standard");
  element->WizardOn(wizard);
  std::int64_t pixels = 0;
  double start = 0;
  // A page handles waiting events while it loads, ahead of being shown.
  std::function<void()> drawAndClose = [&] {
    FormView* const view = desktop.platform.Modal().Topmost();
    if (view == nullptr) return QTimer::singleShot(0, drawAndClose);
    pixels += view->Window().grab().width();
    state.SetIterationTime(bench::ThreadSeconds() - start);
    view->Model().Unload();
  };
  for (auto _ : state) {
    start = bench::ThreadSeconds();
    QTimer::singleShot(0, drawAndClose);
    element->OpenConfigurationDialog();
  }
  if (pixels == 0) state.SkipWithError("nothing was drawn");
}

void ConfigurationDialogToPixels(benchmark::State& state) { OpenDrawAndClose(state, RectLed, false); }
void WizardKeyPageToPixels(benchmark::State& state) { OpenDrawAndClose(state, RectLed, true); }
void WizardLedPageToPixels(benchmark::State& state) { OpenDrawAndClose(state, Led, true); }
BENCHMARK(ConfigurationDialogToPixels)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(WizardKeyPageToPixels)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(WizardLedPageToPixels)->Unit(benchmark::kMillisecond)->UseManualTime();

/// The program's data with a file of named sequences of 10 MB in place of its own.
class LargeData {
 public:
  LargeData() {
    std::filesystem::copy(DataDirectory(), Path(), std::filesystem::copy_options::recursive);
    std::ofstream file(Path() / "NonStandardScancodes.cfg");
    while (file.tellp() < 10'000'000) {
      ++count_;
      file << "[SCANCODE" << count_ << "]\nREMARK001=Sequence number " << count_ << "\nREMARK049=Sequenz Nummer "
           << count_ << "\nMAKECODE=E0:5E\nBREAKCODE=E0:F0:5E\n\n";
    }
  }
  std::filesystem::path Path() const { return std::filesystem::path(directory_.path().toStdString()) / "data"; }
  std::int64_t Count() const { return count_; }

 private:
  QTemporaryDir directory_;
  std::int64_t count_ = 0;
};

/// From the menu entry's call to the pixels. The file has not been read before, or has been since it was changed.
void LargeSequenceFileToPixels(benchmark::State& state, bool first) {
  const LargeData data;
  auto desktop = std::make_unique<Desktop>(data.Path());
  std::int64_t pixels = 0, entries = 0;
  const std::function<void()> draw = [&] {
    FormView* const view = desktop->platform.Modal().Topmost();
    pixels += view->Window().grab().width();
    state.PauseTiming();
    entries = dynamic_cast<const ComboBox&>(*view->Model().Find("cmbNonStandardScancodes")).ListCount();
    view->Model().Unload();
  };
  for (auto _ : state) {
    if (first) {
      state.PauseTiming();
      desktop.reset();
      desktop = std::make_unique<Desktop>(data.Path());
      state.ResumeTiming();
    }
    QTimer::singleShot(0, draw);
    FormDirectory::Instance().ShowModal(dialogs::frmNonStandardScancodes, nullptr);
    state.ResumeTiming();
  }
  if (pixels == 0 || entries != data.Count()) state.SkipWithError("the dialog did not show the file");
  state.counters["entries"] = static_cast<double>(entries);
}
BENCHMARK_CAPTURE(LargeSequenceFileToPixels, first, true)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK_CAPTURE(LargeSequenceFileToPixels, again, false)->Unit(benchmark::kMillisecond)->MinTime(2);

void PeerDialogByHandToPixels(benchmark::State& state) {
  for (auto _ : state) {
    const double start = bench::ThreadSeconds();
    QDialog dialog;
    auto* layout = new QGridLayout(&dialog);
    for (int row = 0; row < 8; ++row) {
      layout->addWidget(new QLabel("label"), row, 0);
      layout->addWidget(new QComboBox, row, 1);
      layout->addWidget(new QLineEdit, row, 2);
      layout->addWidget(new QPushButton("button"), row, 3);
    }
    layout->addWidget(new QTableWidget(5, 3), 8, 0, 1, 4);
    QTimer::singleShot(0, &dialog, [&] {
      benchmark::DoNotOptimize(dialog.grab().width());
      state.SetIterationTime(bench::ThreadSeconds() - start);
      dialog.accept();
    });
    dialog.exec();
  }
}
BENCHMARK(PeerDialogByHandToPixels)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
