#include <benchmark/benchmark.h>

#include <QObject>
#include <QVariant>

#include "allocations.h"
#include "element/property_table.h"
#include "world.h"

namespace {

using namespace plexel;

void TypedPropertySetWithNotice(benchmark::State& state) {
  const auto element = bench::TheWorld().component.Create("F1", bench::TheWorld().host);
  std::int32_t value = 0;
  for (auto _ : state) element->OriginalPosX(++value);
  if (element->OriginalPosX() != value) state.SkipWithError("the value is not there");
}
BENCHMARK(TypedPropertySetWithNotice);

void PropertySetByName(benchmark::State& state) {
  const auto element = bench::TheWorld().component.Create("F1", bench::TheWorld().host);
  std::int32_t value = 0;
  for (auto _ : state) {
    const PropertyRow* row = FindProperty("OriginalPosX");
    Set(*element, *row, PropertyData{++value});
  }
  if (element->OriginalPosX() != value) state.SkipWithError("the value is not there");
}
BENCHMARK(PropertySetByName);

void PeerQtDynamicProperty(benchmark::State& state) {
  QObject object;
  int value = 0;
  for (auto _ : state) object.setProperty("OriginalPosX", ++value);
  if (object.property("OriginalPosX").toInt() != value) state.SkipWithError("the value is not there");
}
BENCHMARK(PeerQtDynamicProperty);

void MakeAnEmptyElement(benchmark::State& state) {
  bench::World& world = bench::TheWorld();
  for (auto _ : state) benchmark::DoNotOptimize(world.component.Create("F1", world.host));
  state.counters["bytes"] = static_cast<double>(sizeof(ctlPlexelBaseElement));
}
BENCHMARK(MakeAnEmptyElement);

}  // namespace
