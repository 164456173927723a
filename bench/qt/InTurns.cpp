#include "bench/qt/InTurns.h"

#include <QApplication>
#include <algorithm>
#include <ctime>
#include <vector>

namespace tactix::bench {

namespace {

double ThreadSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace

void Subject::Show() {
  Window().show();
  Window().activateWindow();
  Window().setFocus();
  QApplication::processEvents();
}

double Subject::Run(Painting painting) {
  const double start = ThreadSeconds();
  for (std::size_t i = 0; i < Rounds; ++i) {
    SetUp(i);
    if (painting == Painting::Done) QApplication::processEvents();
    Act();
    if (painting == Painting::Done) QApplication::processEvents();
  }
  return ThreadSeconds() - start;
}

void InTurns(benchmark::State& state, Subject& subject, Subject& other, Painting painting) {
  subject.Run(painting);
  other.Run(painting);
  std::vector<double> ratios;
  std::int64_t runs = 1;
  for (auto _ : state) {
    const double seconds = subject.Run(painting);
    ratios.push_back(seconds / other.Run(painting));
    state.SetIterationTime(seconds / static_cast<double>(Subject::Rounds));
    ++runs;
  }
  const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
  std::nth_element(ratios.begin(), middle, ratios.end());
  state.counters["beside"] = *middle;
  const std::int64_t expected = runs * static_cast<std::int64_t>(Subject::Rounds);
  if (subject.Heard() != expected || other.Heard() != expected) state.SkipWithError("a signal was not heard");
}

}  // namespace tactix::bench
