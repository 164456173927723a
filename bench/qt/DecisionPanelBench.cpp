// One decision as a player sees it: the hand goes in, the panel shows it, a key is pressed, the signal is heard. The
// painted ones also bring to the screen what has changed, after the hand came in and after the key.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <ctime>
#include <vector>

#include "bench/qt/HandWrittenPanel.h"
#include "tactix-qt/Decision.h"

namespace {

using tactix::bench::HandWrittenPanel;

constexpr std::size_t Hands = 30;
enum class Painting { Left, Done };

HandWrittenPanel::Hand HandOf(std::size_t i) {
  HandWrittenPanel::Hand hand;
  hand.playerName = QStringLiteral("A player with a long name");
  hand.midCards = QStringLiteral("Seven to nine, all suits");
  hand.hardTotal = static_cast<int>(4 + i % 17);
  hand.softTotal = i % 3 == 0 ? 7 : 0;
  hand.restricted = true;
  hand.canSplit = i % 2 == 0;
  hand.canDouble = i % 3 == 0;
  hand.canSurrender = i % 5 == 0;
  hand.advice = 1;
  return hand;
}

tactix::DecisionBlock BlockOf(const HandWrittenPanel::Hand& hand) {
  tactix::DecisionBlock block;
  block.PlayerName(hand.playerName.toStdString());
  block.MidCardsAre(hand.midCards.toStdString());
  block.HardTotal(static_cast<std::int16_t>(hand.hardTotal));
  block.SoftTotal(static_cast<std::int16_t>(hand.softTotal));
  block.ManualPlayerRestrictions(hand.restricted);
  block.SplitIsValid(hand.canSplit);
  block.HardDoubleIsValid(hand.canDouble);
  block.SurrenderIsValid(hand.canSurrender);
  block.StrategyAdvice(static_cast<std::int16_t>(hand.advice));
  return block;
}

double ThreadSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void PressHit(QWidget& window) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_H, Qt::NoModifier, QStringLiteral("h"));
  QCoreApplication::sendEvent(window.focusWidget(), &press);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_H, Qt::NoModifier, QStringLiteral("h"));
  QCoreApplication::sendEvent(window.focusWidget(), &release);
}

/// One of the two panels, and how often its signal has been heard.
class Subject {
 public:
  virtual ~Subject() = default;

  void Show() {
    Window().show();
    Window().activateWindow();
    Window().setFocus();
    QApplication::processEvents();
  }

  /// Decides all hands once; answers the processor time in seconds.
  double Decide(Painting painting) {
    const double start = ThreadSeconds();
    for (std::size_t i = 0; i < Hands; ++i) {
      SetUp(i);
      if (painting == Painting::Done) QApplication::processEvents();
      PressHit(Window());
      if (painting == Painting::Done) QApplication::processEvents();
    }
    return ThreadSeconds() - start;
  }

  std::int64_t Heard() const { return heard_; }

 protected:
  virtual QWidget& Window() = 0;
  virtual void SetUp(std::size_t hand) = 0;

  std::int64_t heard_ = 0;
};

class Box final : public Subject {
 public:
  Box() {
    box_.DecisionBoxType(tactix::qt::Decision::forUseWithBlackjackTable);
    for (std::size_t i = 0; i < Hands; ++i) blocks_[i] = BlockOf(HandOf(i));
    QObject::connect(&box_, &tactix::qt::Decision::PlayerHits, &box_, [this] { ++heard_; });
    Show();
  }

 private:
  QWidget& Window() override { return box_; }
  void SetUp(std::size_t hand) override { box_.SetupTheDecisionBox(blocks_[hand]); }

  tactix::qt::Decision box_;
  std::array<tactix::DecisionBlock, Hands> blocks_;
};

class ByHand final : public Subject {
 public:
  ByHand() {
    for (std::size_t i = 0; i < Hands; ++i) hands_[i] = HandOf(i);
    QObject::connect(&panel_, &HandWrittenPanel::Hits, &panel_, [this] { ++heard_; });
    Show();
  }

 private:
  QWidget& Window() override { return panel_; }
  void SetUp(std::size_t hand) override { panel_.SetUp(hands_[hand]); }

  HandWrittenPanel panel_;
  std::array<HandWrittenPanel::Hand, Hands> hands_;
};

/// Turn and turn about, so that what else the machine does falls on both alike.
void DecideInTurns(benchmark::State& state, Painting painting) {
  Box box;
  ByHand byHand;
  box.Decide(painting);
  byHand.Decide(painting);
  std::vector<double> ratios;
  std::int64_t rounds = 1;
  for (auto _ : state) {
    const double seconds = box.Decide(painting);
    ratios.push_back(seconds / byHand.Decide(painting));
    state.SetIterationTime(seconds / static_cast<double>(Hands));
    ++rounds;
  }
  const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
  std::nth_element(ratios.begin(), middle, ratios.end());
  state.counters["beside"] = *middle;
  const std::int64_t keys = rounds * static_cast<std::int64_t>(Hands);
  if (box.Heard() != keys || byHand.Heard() != keys) state.SkipWithError("a key was not heard");
}

void Decision(benchmark::State& state) { DecideInTurns(state, Painting::Left); }
void DecisionPainted(benchmark::State& state) { DecideInTurns(state, Painting::Done); }
BENCHMARK(Decision)->UseManualTime()->Iterations(300)->Unit(benchmark::kMicrosecond);
BENCHMARK(DecisionPainted)->UseManualTime()->Iterations(60)->Unit(benchmark::kMicrosecond);

}  // namespace
