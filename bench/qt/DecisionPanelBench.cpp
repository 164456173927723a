// One decision as a player sees it: the hand goes in, the panel shows it, a key is pressed, the signal is heard. The
// painted ones also bring to the screen what has changed, after the hand came in and after the key.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <array>

#include "bench/qt/HandWrittenPanel.h"
#include "bench/qt/InTurns.h"
#include "tactix-qt/Decision.h"

namespace {

using tactix::bench::HandWrittenPanel;
using tactix::bench::InTurns;
using tactix::bench::Painting;
using tactix::bench::Subject;

constexpr std::size_t Hands = tactix::bench::Subject::Rounds;

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

void PressHit(QWidget& window) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_H, Qt::NoModifier, QStringLiteral("h"));
  QCoreApplication::sendEvent(window.focusWidget(), &press);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_H, Qt::NoModifier, QStringLiteral("h"));
  QCoreApplication::sendEvent(window.focusWidget(), &release);
}

class Panel : public Subject {
 protected:
  void Act() override { PressHit(Window()); }
};

class Box final : public Panel {
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

class ByHand final : public Panel {
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

void DecideInTurns(benchmark::State& state, Painting painting) {
  Box box;
  ByHand byHand;
  InTurns(state, box, byHand, painting);
}

void Decision(benchmark::State& state) { DecideInTurns(state, Painting::Left); }
void DecisionPainted(benchmark::State& state) { DecideInTurns(state, Painting::Done); }
BENCHMARK(Decision)->UseManualTime()->Iterations(300)->Unit(benchmark::kMicrosecond);
BENCHMARK(DecisionPainted)->UseManualTime()->Iterations(60)->Unit(benchmark::kMicrosecond);

}  // namespace
