// What a flash costs while it waits: processor time of the whole process, repaints included.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "tactix-qt/Decision.h"

namespace {

void Flash(benchmark::State& state) {
  tactix::qt::Decision box;
  box.DecisionBoxType(tactix::qt::Decision::forUseWithBlackjackTable);
  box.show();
  QApplication::processEvents();
  for (auto _ : state) box.FlashObject(box.control().Children.HitButton.Handle());
}
BENCHMARK(Flash)->MeasureProcessCPUTime()->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

}  // namespace
