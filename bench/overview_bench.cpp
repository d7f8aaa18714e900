// The table of all elements of a large project, and its search.

#include <benchmark/benchmark.h>

#include "desktop.h"
#include "editor/overview_model.h"
#include "made_project.h"

namespace {

using namespace plexel;

/// The first search behind the opening of a project, or a further one.
void SearchOverview(benchmark::State& state, bool first) {
  bench::Desktop desktop;
  const QTemporaryDir directory;
  const auto document =
      bench::MakeProject({desktop.component, desktop.host, nullptr, directory.path().toStdString()}, state.range(0));
  LiveProblems problems;
  problems.Show(document.get());
  OverviewModel model(problems);
  model.Show(document.get());
  std::size_t found = 0;
  for (auto _ : state) {
    state.PauseTiming();
    model.Look(TextSearch());
    if (first) model.Show(document.get());
    state.ResumeTiming();
    model.Look(TextSearch("k1999"));
    found = model.PlacesShown().size();
  }
  if (found != 11) state.SkipWithError("the search did not find what is there");
}
BENCHMARK_CAPTURE(SearchOverview, first, true)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SearchOverview, again, false)->Arg(20000)->Unit(benchmark::kMillisecond);

}  // namespace
