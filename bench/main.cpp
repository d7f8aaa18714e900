#include <benchmark/benchmark.h>

#include "world.h"

bench::World& bench::TheWorld() {
  static World world;
  return world;
}

BENCHMARK_MAIN();
