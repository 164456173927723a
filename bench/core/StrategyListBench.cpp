#include <benchmark/benchmark.h>

#include "bench/support/FullCatalogue.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListData.h"

namespace {

void FillStrategyList(benchmark::State& state) {
  tactix::StrategyListData::UseCatalogue(tactix::bench::FullCatalogue());
  tactix::HeadlessSite site;
  tactix::StrategyList list(site);
  list.InitProperties();
  for (auto _ : state) list.LoadStrategiesFromIniFile();
  // One more: the empty seat.
  if (list.Children.StrategyListBox.ListCount() != tactix::bench::Strategies + 1) state.SkipWithError("not filled");
}
BENCHMARK(FillStrategyList)->Unit(benchmark::kMicrosecond);

}  // namespace
