// One decision as a host sees it, without a toolkit: the block goes in, the prompt is built, a key is pressed, the
// event is heard.

#include <benchmark/benchmark.h>

#include "tactix/decision/Decision.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/AllocationCounter.h"

namespace {

constexpr int WarmRounds = 10;

tactix::DecisionBlock BlockFor(std::int16_t round) {
  tactix::DecisionBlock block;
  block.PlayerName("A player with a long name");
  block.HardTotal(static_cast<std::int16_t>(4 + round % 17));
  block.SoftTotal(static_cast<std::int16_t>(round % 3 == 0 ? 7 : 0));
  block.MidCardsAre("Seven to nine, all suits");
  block.ManualPlayerRestrictions(true);
  block.SplitIsValid(round % 2 == 0);
  block.HardDoubleIsValid(round % 3 == 0);
  block.SurrenderIsValid(round % 5 == 0);
  block.StrategyAdvice(1);
  return block;
}

void DecisionCycle(benchmark::State& state) {
  tactix::HeadlessSite site;
  tactix::Decision box(site);
  box.InitProperties();
  box.DecisionBoxType(tactix::TypeOfDecisionBox::forUseWithBlackjackTable);
  int heard = 0;
  box.Events.PlayerHits.Connect([&heard] { ++heard; });
  box.Children.ManualPlayButtons.SetFocus();
  tactix::DecisionBlock blocks[30];
  for (std::int16_t i = 0; i < 30; ++i) blocks[i] = BlockFor(i);

  std::int64_t round = 0;
  const auto cycle = [&] {
    box.SetupTheDecisionBox(blocks[round++ % 30]);
    site.PressKey({'h', 0});
  };
  for (int i = 0; i < 30 * WarmRounds; ++i) cycle();
  const std::size_t before = tactix::tests::Allocations();
  for (auto _ : state) cycle();
  state.counters["allocations"] = benchmark::Counter(static_cast<double>(tactix::tests::Allocations() - before),
                                                     benchmark::Counter::kAvgIterations);
  if (heard != round) state.SkipWithError("an event was not heard");
}
BENCHMARK(DecisionCycle);

void RaiseWithOneListener(benchmark::State& state) {
  tactix::Event<> event{1, "Raised"};
  int heard = 0;
  event.Connect([&heard] { ++heard; });
  for (auto _ : state) {
    event.Raise();
    benchmark::DoNotOptimize(heard);
  }
}
BENCHMARK(RaiseWithOneListener);

}  // namespace
