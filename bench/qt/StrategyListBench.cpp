// Filling the lists, beside a QComboBox that is filled from the same descriptions, one that gets the row texts ready,
// one by one or at once, and the list itself with ten times the strategies. All are filled turn and turn about, so that
// what else the machine does falls on all alike; the counters are medians of the ratios.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <algorithm>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

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
using HandWritten = void (*)(QComboBox&, StrategyCatalogue&);

constexpr int Strategies = 55;
constexpr int Tenfold = 10;
constexpr int FillsAtATime = 20;
constexpr int Turns = 30;

/// Processor seconds of one fill, the mean of that many.
double TimeOf(const std::function<void()>& fill, int fills = FillsAtATime) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  };
  const double start = now();
  for (int i = 0; i < fills; ++i) fill();
  return (now() - start) / fills;
}

double MedianOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// A box as the lists have it.
std::unique_ptr<QComboBox> MakeBox() {
  auto box = std::make_unique<QComboBox>();
  box->resize(161, 26);
  box->show();
  return box;
}

QStringList RowsOf(const QComboBox& box) {
  QStringList rows;
  for (int row = 0; row < box.count(); ++row) rows += box.itemText(row);
  return rows;
}

template <class List>
void Compare(benchmark::State& state, HandWritten byHand) {
  const auto catalogue = std::make_shared<TextCatalogue>(Strategies);
  const auto tenfold = std::make_shared<TextCatalogue>(Tenfold * Strategies);
  List list;
  list.show();
  const auto described = MakeBox();
  const auto bare = MakeBox();
  QApplication::processEvents();
  byHand(*described, *catalogue);
  const QStringList texts = RowsOf(*described);
  StrategyListData::UseCatalogue(catalogue);
  list.LoadStrategiesFromIniFile();
  if (RowsOf(*list.template findChild<QComboBox*>()) != texts) return state.SkipWithError("filled with other rows");

  std::vector<double> besideDescribed;
  std::vector<double> besideBare;
  std::vector<double> besideAtOnce;
  std::vector<double> tenfoldBeside;
  const auto load = [&list] { list.LoadStrategiesFromIniFile(); };
  for (auto _ : state) {
    const double time = TimeOf(load);
    besideDescribed.push_back(time / TimeOf([&] { byHand(*described, *catalogue); }));
    besideBare.push_back(time / TimeOf([&] { tactix::bench::FillWithTexts(*bare, texts); }));
    besideAtOnce.push_back(time / TimeOf([&] { tactix::bench::FillWithTextsAtOnce(*bare, texts); }));
    StrategyListData::UseCatalogue(tenfold);
    tenfoldBeside.push_back(TimeOf(load, FillsAtATime / Tenfold) / time);
    StrategyListData::UseCatalogue(catalogue);
    state.SetIterationTime(time);
  }
  state.counters["described"] = MedianOf(besideDescribed);
  state.counters["bare"] = MedianOf(besideBare);
  state.counters["at once"] = MedianOf(besideAtOnce);
  state.counters["tenfold"] = MedianOf(tenfoldBeside);
}

void FillStrategyListOnQt(benchmark::State& state) {
  Compare<tactix::qt::StrategyList>(state, tactix::bench::FillWithStrategies);
}
void FillCompactListOnQt(benchmark::State& state) {
  Compare<tactix::qt::StrategyListLITE>(state, tactix::bench::FillCompactly);
}
void FillBettingListOnQt(benchmark::State& state) {
  Compare<tactix::qt::BetStrategyList>(state, tactix::bench::FillWithBets);
}
/// There are 28 count systems, however many strategies.
void FillCountListOnQt(benchmark::State& state) {
  Compare<tactix::qt::CountStrategyList>(state, tactix::bench::FillWithCounts);
}
BENCHMARK(FillStrategyListOnQt)->UseManualTime()->Iterations(Turns)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillCompactListOnQt)->UseManualTime()->Iterations(Turns)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillBettingListOnQt)->UseManualTime()->Iterations(Turns)->Unit(benchmark::kMicrosecond);
BENCHMARK(FillCountListOnQt)->UseManualTime()->Iterations(Turns)->Unit(benchmark::kMicrosecond);

}  // namespace
