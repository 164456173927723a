#include <benchmark/benchmark.h>

#include "bench/qt/Sender.h"
#include "tactix/platform/Event.h"

namespace {

void RaiseEvent(benchmark::State& state) {
  tactix::Event<> event{1, "Raised"};
  int heard = 0;
  event.Connect([&heard] { ++heard; });
  for (auto _ : state) {
    event.Raise();
    benchmark::DoNotOptimize(heard);
  }
}
BENCHMARK(RaiseEvent);

void EmitSignal(benchmark::State& state) {
  tactix::bench::Sender sender;
  int heard = 0;
  QObject::connect(
      &sender, &tactix::bench::Sender::Raised, &sender, [&heard] { ++heard; }, Qt::DirectConnection);
  for (auto _ : state) {
    Q_EMIT sender.Raised();
    benchmark::DoNotOptimize(heard);
  }
}
BENCHMARK(EmitSignal);

}  // namespace
