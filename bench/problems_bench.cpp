#include "project/problems.h"

#include <benchmark/benchmark.h>

#include <numeric>

#include "made_elements.h"

namespace {

using namespace plexel;

std::vector<const ctlPlexelBaseElement*> OrderOf(const bench::Elements& elements) {
  std::vector<const ctlPlexelBaseElement*> order;
  for (const auto& element : elements) order.push_back(element.get());
  return order;
}

/// Elements as in a sound project; with `alike`, all LEDs show the same and all keys have the same number.
bench::Elements MakeProject(std::int64_t count, bool alike) {
  bench::Elements elements = bench::MakeElements(count);
  for (std::size_t number = 0; number < elements.size(); ++number) {
    if (!alike) elements[number]->LEDTypeLayer1(LedNotEnabled);
    elements[number]->HardwareNumberButton(alike ? 1 : static_cast<std::int32_t>(number + 1));
  }
  return elements;
}

/// Checks all elements.
void CheckProject(benchmark::State& state, bool alike) {
  const bench::Elements elements = MakeProject(state.range(0), alike);
  std::size_t found = 0;
  for (auto _ : state) {
    const Problems problems(OrderOf(elements));
    found = problems.Errors() + problems.Warnings();
  }
  state.counters["problems"] = static_cast<double>(found);
}
BENCHMARK_CAPTURE(CheckProject, sound, false)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK_CAPTURE(CheckProject, all_alike, true)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(2);

/// Checks again behind a change of the first element, which concerns most others where all are alike.
void RecheckAfterOneChange(benchmark::State& state, bool alike) {
  const bench::Elements elements = MakeProject(state.range(0), alike);
  Problems problems(OrderOf(elements));
  std::int32_t number = 1;
  std::size_t touched = 0;
  for (auto _ : state) {
    number = number == 1 ? 999999 : 1;
    elements.front()->HardwareNumberButton(number);
    touched = problems.Recheck(*elements.front()).size();
  }
  state.counters["touched"] = static_cast<double>(touched);
}
BENCHMARK_CAPTURE(RecheckAfterOneChange, sound, false)->Arg(20000)->Unit(benchmark::kMicrosecond)->MinTime(1);
BENCHMARK_CAPTURE(RecheckAfterOneChange, all_alike, true)->Arg(20000)->Unit(benchmark::kMicrosecond)->MinTime(1);

/// Checks again behind a change of all elements, as behind a paste onto all of them.
void RecheckAfterAChangeOfAll(benchmark::State& state, bool alike) {
  const bench::Elements elements = MakeProject(state.range(0), alike);
  Problems problems(OrderOf(elements));
  std::vector<std::size_t> all(elements.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  bool shown = alike;
  for (auto _ : state) {
    shown = !shown;
    for (const auto& element : elements) element->LEDTypeLayer1(shown ? UserLed : LedNotEnabled);
    benchmark::DoNotOptimize(problems.Recheck(all).size());
  }
}
BENCHMARK_CAPTURE(RecheckAfterAChangeOfAll, sound, false)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(1);
BENCHMARK_CAPTURE(RecheckAfterAChangeOfAll, all_alike, true)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(1);

/// The peer takes every record and looks at each of its code bytes, and no more.
void PeerLooksAtAllBytes(benchmark::State& state) {
  const bench::Elements elements = MakeProject(state.range(0), false);
  for (auto _ : state) {
    std::uint64_t sum = 0;
    for (const auto& element : elements) {
      const udtTactisBaseElement_ScanCodeInfo record = element->TactisBaseElementScanCodeBuffer();
      for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
        for (const std::uint8_t byte : PressBuffer(record, layer)->Value) sum += byte;
        for (const std::uint8_t byte : ReleaseBuffer(record, layer)->Value) sum += byte;
      }
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(PeerLooksAtAllBytes)->Arg(20000)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
