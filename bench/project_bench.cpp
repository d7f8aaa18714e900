#include <benchmark/benchmark.h>
#include <ini.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <numeric>
#include <string>

#include "made_project.h"
#include "project/panel_document.h"
#include "project/pasting.h"
#include "project/problems.h"
#include "project/recovery.h"
#include "world.h"

namespace {

using namespace plexel;
using bench::MadeDefinition;
using bench::MakePanel;
using bench::MakeProject;

/// The directory of the made panels, files and recovery files of this process.
std::filesystem::path Directory() {
  static const std::filesystem::path directory = [] {
    const auto made = std::filesystem::temp_directory_path() / ("plexel_bench_" + std::to_string(::getpid()));
    std::filesystem::create_directories(made);
    return made;
  }();
  return directory;
}

PanelDocument::Site Site() { return {bench::TheWorld().component, bench::TheWorld().host, nullptr, Directory()}; }

std::vector<std::size_t> AllPlaces(const PanelDocument& document) {
  std::vector<std::size_t> places(document.Places().size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  return places;
}

double ResidentMegabytes() {
  std::ifstream file("/proc/self/statm");
  std::size_t total = 0, resident = 0;
  file >> total >> resident;
  return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1e6;
}

void OpenProject(benchmark::State& state) {
  const std::filesystem::path file = Directory() / "open.plexel";
  MakeProject(Site(), state.range(0))->Save(file);
  for (auto _ : state) {
    auto document = PanelDocument::Open(file, Site());
    state.PauseTiming();
    if (document->Places().size() != static_cast<std::size_t>(state.range(0))) state.SkipWithError("elements missing");
    state.counters["resident_MB"] = ResidentMegabytes();
    document.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(OpenProject)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(2);

int CountEntry(void* user, const char*, const char*, const char*) {
  ++*static_cast<std::size_t*>(user);
  return 1;
}

/// The peer reads the lines of the same file, and no more.
void PeerInihReadsTheProject(benchmark::State& state) {
  const std::filesystem::path file = Directory() / "peer.plexel";
  MakeProject(Site(), state.range(0))->Save(file);
  for (auto _ : state) {
    std::size_t entries = 0;
    ini_parse(file.c_str(), CountEntry, &entries);
    benchmark::DoNotOptimize(entries);
  }
}
BENCHMARK(PeerInihReadsTheProject)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(2);

/// Takes a paste onto all elements back, and does it again untimed.
void UndoOfAPasteOntoAll(benchmark::State& state) {
  MakePanel(Directory(), state.range(0));
  const auto document = PanelDocument::New("bench", Site());
  Pasting(*document, {MadeDefinition()}, AllPlaces(*document)).Do(StepKind::Paste);
  for (auto _ : state) {
    document->Undo();
    state.PauseTiming();
    document->Redo();
    state.ResumeTiming();
  }
  state.counters["resident_MB"] = ResidentMegabytes();
}
BENCHMARK(UndoOfAPasteOntoAll)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(2);

/// The peer gives all elements the same record, and keeps nothing.
void PeerSetsAllRecords(benchmark::State& state) {
  MakePanel(Directory(), state.range(0));
  const auto document = PanelDocument::New("bench", Site());
  const ElementRecord record = MadeDefinition();
  for (auto _ : state) {
    for (const PanelDocument::Place& place : document->Places()) place.element->SetTactisBaseElementDefinition(record);
  }
}
BENCHMARK(PeerSetsAllRecords)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(2);

/// One portion of the texts of a recovery file; the longest portion of a whole writing stands beside.
void RecoveryPortion(benchmark::State& state) {
  constexpr std::size_t portion = 200;
  const auto document = MakeProject(Site(), state.range(0));
  RecoveryKeeper keeper(Directory() / "recovery", [] { return std::int64_t{1}; });
  keeper.Watch(document.get());
  document->FileIsLost({});
  double longest = 0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    const bool more = keeper.Work(portion);
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
    longest = std::max(longest, taken.count());
    if (more) continue;
    state.PauseTiming();
    keeper.Watch(document.get());
    state.ResumeTiming();
  }
  state.counters["longest_ms"] = longest;
  keeper.Watch(nullptr);
  keeper.Flush();
}
BENCHMARK(RecoveryPortion)->Arg(20000)->Unit(benchmark::kMicrosecond)->MinTime(1);

}  // namespace
