#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>

#include "bench/support/FullCatalogue.h"
#include "tactix-qt/StrategyList.h"
#include "tactix/strategy/StrategyListData.h"

namespace {

constexpr int Rows = tactix::bench::Strategies + 1;  // and the empty seat

void FillStrategyListOnQt(benchmark::State& state) {
  tactix::StrategyListData::UseCatalogue(tactix::bench::FullCatalogue());
  tactix::qt::StrategyList list;
  list.show();
  QApplication::processEvents();
  for (auto _ : state) list.LoadStrategiesFromIniFile();
  if (list.findChild<QComboBox*>()->count() != Rows) state.SkipWithError("not filled");
}
BENCHMARK(FillStrategyListOnQt)->Unit(benchmark::kMicrosecond);

void FillComboBox(benchmark::State& state) {
  const auto catalogue = tactix::bench::FullCatalogue();
  QStringList texts;
  for (std::int16_t i = -1; i < tactix::bench::Strategies; ++i) {
    texts += QString::fromStdString(catalogue->DescribeStrategy(i)).section(QLatin1Char(','), 1, 1);
  }
  QComboBox box;
  box.resize(161, 26);
  box.setPlaceholderText(QStringLiteral("Select a Strategy"));
  box.show();
  QApplication::processEvents();
  for (auto _ : state) {
    box.clear();
    for (const QString& text : texts) box.addItem(text);
    box.setCurrentIndex(-1);
  }
  if (box.count() != Rows) state.SkipWithError("not filled");
}
BENCHMARK(FillComboBox)->Unit(benchmark::kMicrosecond);

}  // namespace
