// Setting up a toolbar for a decision: the hand goes in, plays are enabled and disabled, the prompt is heard and shown.

#include <benchmark/benchmark.h>

#include <QLabel>
#include <QString>
#include <QVBoxLayout>
#include <array>

#include "bench/qt/HandWrittenToolBar.h"
#include "bench/qt/InTurns.h"
#include "tactix-qt/DecisionBAR2.h"
#include "tactix/companion/Companion.h"

namespace {

using tactix::bench::HandWrittenToolBar;
using tactix::bench::InTurns;
using tactix::bench::Painting;
using tactix::bench::Subject;

HandWrittenToolBar::Hand HandOf(std::size_t i) {
  HandWrittenToolBar::Hand hand;
  hand.playerName = QStringLiteral("A player with a long name");
  hand.hardTotal = static_cast<int>(4 + i % 17);
  hand.softTotal = i % 3 == 0 ? 7 : 0;
  hand.restricted = true;
  hand.canSplit = i % 2 == 0;
  hand.canDouble = i % 3 == 0;
  hand.canSurrender = i % 5 == 0;
  hand.advice = 1;
  return hand;
}

tactix::DecisionBlock BlockOf(const HandWrittenToolBar::Hand& hand) {
  tactix::DecisionBlock block;
  block.PlayerName(hand.playerName.toStdString());
  block.HardTotal(static_cast<std::int16_t>(hand.hardTotal));
  block.SoftTotal(static_cast<std::int16_t>(hand.softTotal));
  block.ManualPlayerRestrictions(hand.restricted);
  block.SplitIsValid(hand.canSplit);
  block.HardDoubleIsValid(hand.canDouble);
  block.SurrenderIsValid(hand.canSurrender);
  block.StrategyAdvice(static_cast<std::int16_t>(hand.advice));
  return block;
}

/// A toolbar and the label that shows its prompt.
class Strip : public Subject {
 protected:
  template <class Bar, class Signal>
  void Build(Bar& bar, Signal prompt) {
    auto* const column = new QVBoxLayout(&window_);
    column->addWidget(&label_);
    column->addWidget(&bar);
    QObject::connect(&bar, prompt, &window_, [this](const QString& text) {
      label_.setText(text);
      ++heard_;
    });
    window_.resize(1000, 120);
    Show();
  }

 private:
  QWidget& Window() override { return window_; }

  QWidget window_;
  QLabel label_;
};

class Toolbar final : public Strip {
 public:
  Toolbar() {
    for (std::size_t i = 0; i < Rounds; ++i) blocks_[i] = BlockOf(HandOf(i));
    Build(*bar_, &tactix::qt::DecisionBAR2::HereIsThePlayersPromptMessage);
  }

 private:
  void SetUp(std::size_t hand) override { bar_->SetupTheDecisionBAR(blocks_[hand]); }

  tactix::qt::DecisionBAR2* bar_ = new tactix::qt::DecisionBAR2;  // the layout gives it to the window
  std::array<tactix::DecisionBlock, Rounds> blocks_;
};

class ToolbarByHand final : public Strip {
 public:
  ToolbarByHand() {
    for (std::size_t i = 0; i < Rounds; ++i) hands_[i] = HandOf(i);
    Build(*bar_, &HandWrittenToolBar::Prompted);
  }

 private:
  void SetUp(std::size_t hand) override { bar_->SetUp(hands_[hand]); }

  HandWrittenToolBar* bar_ = new HandWrittenToolBar;
  std::array<HandWrittenToolBar::Hand, Rounds> hands_;
};

void SetUpInTurns(benchmark::State& state, Painting painting) {
  tactix::companion::Install();
  Toolbar bar;
  ToolbarByHand byHand;
  InTurns(state, bar, byHand, painting);
}

void SetUpToolBar(benchmark::State& state) { SetUpInTurns(state, Painting::Left); }
void SetUpToolBarPainted(benchmark::State& state) { SetUpInTurns(state, Painting::Done); }
BENCHMARK(SetUpToolBar)->UseManualTime()->Iterations(300)->Unit(benchmark::kMicrosecond);
BENCHMARK(SetUpToolBarPainted)->UseManualTime()->Iterations(60)->Unit(benchmark::kMicrosecond);

}  // namespace
