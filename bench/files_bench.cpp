#include <benchmark/benchmark.h>
#include <ini.h>
#include <malloc.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "files/project_reader.h"
#include "files/project_writer.h"
#include "files/system_files.h"
#include "files/text_lines.h"
#include "world.h"

namespace {

using namespace plexel;
using Elements = std::vector<std::shared_ptr<ctlPlexelBaseElement>>;

/// Keys as an engineer leaves them: each with a definition in layer 1, every third in all layers, some with a note.
Elements MakeElements(std::int64_t count) {
  bench::World& world = bench::TheWorld();
  Elements elements;
  for (std::int64_t number = 0; number < count; ++number) {
    const auto element = world.component.Create("P" + std::to_string(number), world.host);
    element->ElementType(RectLed);
    element->ZoomFactor(100);
    element->SizeX(40);
    element->SizeY(30);
    element->OriginalPosX(static_cast<std::int32_t>(number % 1000));
    element->TargetSystem("Extended");
    element->HardwareNumberButton(static_cast<std::int32_t>(number));
    element->HardwareNumberLed(static_cast<std::int32_t>(2 * number));
    element->WizardOptions(ManuallyDefined);
    element->KeyDefinedColor(32768);
    element->ShowDefined(True);
    element->LEDTypeLayer1(UserLed);
    if (number % 10 == 0) element->ButtonNotes("Starts the pump when the tank is filled.");
    udtTactisBaseElement_ScanCodeInfo record = element->TactisBaseElementScanCodeBuffer();
    const std::int32_t layers = number % 3 == 0 ? LayerCount : 1;
    for (std::int32_t layer = 1; layer <= layers; ++layer) {
      element->PressKeyDefLayer(layer, "[Ctrl Left+a\u2039]");
      element->ReleaseKeyDefLayer(layer, "[Ctrl Left+a\u203A]");
      PressBuffer(record, layer)->Value = {0xFF, 0x14, 0x1C, 0xFF};
      PressBuffer(record, layer)->NextValue = 3;
      ReleaseBuffer(record, layer)->Value = {0xFF, 0xF0, 0x1C, 0xF0, 0x14, 0xFF};
      ReleaseBuffer(record, layer)->NextValue = 5;
    }
    udtTactisBaseElement_ScanCodeInfo kept = element->TactisBaseElementScanCodeBuffer();
    PutCodes(CodesOf(record), kept);
    element->TactisBaseElementScanCodeBuffer(kept);
    elements.push_back(element);
  }
  return elements;
}

void Save(const Elements& elements, const std::filesystem::path& file) {
  ProjectWriter writer("bench", elements.size());
  ProjectElement saved;
  for (const auto& element : elements) {
    saved.place = element->Name();
    saved.bag.Clear();
    element->UserControl_WriteProperties(saved.bag);
    saved.codes = CodesOf(element->TactisBaseElementScanCodeBuffer());
    writer.Add(saved);
  }
  WriteWholeFile(file, writer.Finish());
}

Elements Load(const std::filesystem::path& file) {
  const TextFile text(file, ProjectLimit);
  ProjectReader reader(text);
  Elements elements;
  elements.reserve(reader.Count());
  for (ProjectElement saved; reader.Next(saved);) {
    const auto element = bench::TheWorld().component.Read(saved.place, bench::TheWorld().host, saved.bag);
    if (!saved.codes.empty()) {
      udtTactisBaseElement_ScanCodeInfo record = element->TactisBaseElementScanCodeBuffer();
      PutCodes(saved.codes, record);
      element->TactisBaseElementScanCodeBuffer(record);
    }
    elements.push_back(element);
  }
  return elements;
}

std::filesystem::path ProjectOf(std::int64_t count) {
  const std::filesystem::path file =
      std::filesystem::temp_directory_path() / ("plexel_bench_" + std::to_string(count) + ".plexel");
  if (!std::filesystem::exists(file)) Save(MakeElements(count), file);
  return file;
}

/// Loads again and again. In memory that the process has had before, or, as in a process that has just started, in
/// memory that the system has still to give.
void LoadElements(benchmark::State& state, bool fresh) {
  const std::filesystem::path file = ProjectOf(state.range(0));
  if (fresh) malloc_trim(0);
  for (auto _ : state) {
    Elements elements = Load(file);
    state.PauseTiming();
    if (elements.size() != static_cast<std::size_t>(state.range(0))) state.SkipWithError("elements are missing");
    elements = {};
    if (fresh) malloc_trim(0);
    state.ResumeTiming();
  }
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(file));
}
BENCHMARK_CAPTURE(LoadElements, again, false)->Arg(20000)->Arg(40000)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK_CAPTURE(LoadElements, fresh_memory, true)->Arg(20000)->Arg(40000)->Unit(benchmark::kMillisecond)->MinTime(2);

void SaveElements(benchmark::State& state) {
  const std::filesystem::path file = ProjectOf(state.range(0));
  const Elements elements = Load(file);
  for (auto _ : state) Save(elements, file);
}
BENCHMARK(SaveElements)->Arg(20000)->Arg(40000)->Unit(benchmark::kMillisecond)->MinTime(2);

int CountEntry(void* count, const char*, const char*, const char*) {
  ++*static_cast<std::int64_t*>(count);
  return 1;
}

/// The peer reads the same file and does nothing with it.
void PeerInihReads(benchmark::State& state) {
  const std::string file = ProjectOf(state.range(0)).string();
  for (auto _ : state) {
    std::int64_t entries = 0;
    ini_parse(file.c_str(), CountEntry, &entries);
    if (entries == 0) state.SkipWithError("the peer read nothing");
    state.counters["entries"] = static_cast<double>(entries);
  }
}
BENCHMARK(PeerInihReads)->Arg(20000)->Arg(40000)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
