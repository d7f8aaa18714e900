#include <benchmark/benchmark.h>
#include <ini.h>
#include <malloc.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "element/element_access.h"
#include "element/packed_codes.h"
#include "files/project_writer.h"
#include "files/system_files.h"
#include "files/text_lines.h"
#include "made_elements.h"
#include "project/project_read_ahead.h"
#include "world.h"

namespace {

using namespace plexel;
using bench::Elements;
using bench::MakeElements;

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
  ProjectReadAhead reader(text);
  Elements elements;
  elements.reserve(reader.Count());
  while (const ProjectElement* const saved = reader.Next()) {
    const auto element = bench::TheWorld().component.Read(saved->place, bench::TheWorld().host, saved->bag);
    if (!saved->codes.empty()) {
      CodeBuffers buffers{};
      for (const SavedCodes& codes : saved->codes) buffers.at(static_cast<std::size_t>(codes.buffer)) = &codes.codes;
      std::vector<std::uint8_t> packed;
      PackCodes(buffers, packed);
      ElementAccess::Codes(*element, std::move(packed));
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
