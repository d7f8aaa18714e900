// Benchmarks of what the desktop shows, on the toolkit's offscreen platform or on the one that QT_QPA_PLATFORM names.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "qt/fonts.h"

int main(int count, char** words) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(count, words);
  QApplication::setFont(plexel::DialogFont());
  benchmark::Initialize(&count, words);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
