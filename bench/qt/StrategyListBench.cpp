// Filling the lists, beside a QComboBox that is filled from the same descriptions and one that gets the row texts
// ready.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>

#include "bench/qt/HandWrittenLists.h"
#include "bench/support/TextCatalogue.h"
#include "tactix-qt/BetStrategyList.h"
#include "tactix-qt/CountStrategyList.h"
#include "tactix-qt/StrategyList.h"
#include "tactix-qt/StrategyListLITE.h"
#include "tactix/strategy/StrategyListData.h"

namespace {

using tactix::StrategyCatalogue;
using tactix::StrategyListData;
using tactix::bench::TextCatalogue;

constexpr int Strategies = 55;
constexpr int Tenfold = 10 * Strategies;
constexpr int Counts = 28;

/// Fills a list that is shown again and again.
template <class List>
void FillList(benchmark::State& state, int strategies, int rows) {
  StrategyListData::UseCatalogue(std::make_shared<TextCatalogue>(strategies));
  List list;
  list.show();
  QApplication::processEvents();
  for (auto _ : state) list.LoadStrategiesFromIniFile();
  if (list.template findChild<QComboBox*>()->count() != rows) state.SkipWithError("not filled");
}

/// The same for a box of one's own.
template <class Fill>
void FillBox(benchmark::State& state, int rows, const Fill& fill) {
  QComboBox box;
  box.resize(161, 26);
  box.show();
  QApplication::processEvents();
  for (auto _ : state) fill(box);
  if (box.count() != rows) state.SkipWithError("not filled");
}

using HandWritten = void (*)(QComboBox&, StrategyCatalogue&);

void FillFromDescriptions(benchmark::State& state, HandWritten fill, int strategies, int rows) {
  TextCatalogue catalogue(strategies);
  FillBox(state, rows, [&](QComboBox& box) { fill(box, catalogue); });
}

void FillFromTexts(benchmark::State& state, HandWritten fill, int strategies, int rows) {
  TextCatalogue catalogue(strategies);
  QComboBox described;
  fill(described, catalogue);
  QStringList texts;
  for (int row = 0; row < described.count(); ++row) texts += described.itemText(row);
  FillBox(state, rows, [&](QComboBox& box) { tactix::bench::FillWithTexts(box, texts); });
}

// The seat has a row, too.
void FillStrategyListOnQt(benchmark::State& state) {
  FillList<tactix::qt::StrategyList>(state, Strategies, Strategies + 1);
}
void FillStrategyListTenfoldOnQt(benchmark::State& state) {
  FillList<tactix::qt::StrategyList>(state, Tenfold, Tenfold + 1);
}
void FillCompactListOnQt(benchmark::State& state) {
  FillList<tactix::qt::StrategyListLITE>(state, Strategies, Strategies + 1);
}
void FillCompactListTenfoldOnQt(benchmark::State& state) {
  FillList<tactix::qt::StrategyListLITE>(state, Tenfold, Tenfold + 1);
}
void FillBettingListOnQt(benchmark::State& state) {
  FillList<tactix::qt::BetStrategyList>(state, Strategies, Strategies + 1);
}
void FillBettingListTenfoldOnQt(benchmark::State& state) {
  FillList<tactix::qt::BetStrategyList>(state, Tenfold, Tenfold + 1);
}
void FillCountListOnQt(benchmark::State& state) { FillList<tactix::qt::CountStrategyList>(state, Strategies, Counts); }
BENCHMARK(FillStrategyListOnQt)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillStrategyListTenfoldOnQt)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillCompactListOnQt)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillCompactListTenfoldOnQt)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillBettingListOnQt)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillBettingListTenfoldOnQt)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillCountListOnQt)->Unit(benchmark::kMicrosecond);

void FillComboBoxWithStrategies(benchmark::State& state) {
  FillFromDescriptions(state, tactix::bench::FillWithStrategies, Strategies, Strategies + 1);
}
void FillComboBoxWithBets(benchmark::State& state) {
  FillFromDescriptions(state, tactix::bench::FillWithBets, Strategies, Strategies + 1);
}
void FillComboBoxWithCounts(benchmark::State& state) {
  FillFromDescriptions(state, tactix::bench::FillWithCounts, Strategies, Counts);
}
BENCHMARK(FillComboBoxWithStrategies)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillComboBoxWithBets)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillComboBoxWithCounts)->Unit(benchmark::kMicrosecond);

void FillComboBoxWithStrategyTexts(benchmark::State& state) {
  FillFromTexts(state, tactix::bench::FillWithStrategies, Strategies, Strategies + 1);
}
void FillComboBoxWithBetTexts(benchmark::State& state) {
  FillFromTexts(state, tactix::bench::FillWithBets, Strategies, Strategies + 1);
}
void FillComboBoxWithCountTexts(benchmark::State& state) {
  FillFromTexts(state, tactix::bench::FillWithCounts, Strategies, Counts);
}
BENCHMARK(FillComboBoxWithStrategyTexts)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillComboBoxWithBetTexts)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillComboBoxWithCountTexts)->Unit(benchmark::kMicrosecond);

}  // namespace
