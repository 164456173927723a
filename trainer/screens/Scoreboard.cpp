#include "trainer/screens/Scoreboard.h"

#include <QHBoxLayout>
#include <algorithm>
#include <cstdint>
#include <limits>

#include "trainer/screens/StatisticsBlock.h"

namespace trainer::screens {

namespace {

using tactix::AfterAdvicePossibilities;

/// The verdict that a play would have been right has that play's code.
std::int32_t VerdictOn(const engine::Judgement& judgement) {
  return judgement.IsRight() ? static_cast<std::int32_t>(AfterAdvicePossibilities::afterYourPlayWasCorrect)
                             : static_cast<std::int32_t>(judgement.advised);
}

}  // namespace

Scoreboard::Scoreboard(QWidget* parent)
    : QWidget(parent),
      register_(new tactix::qt::DecisionRegiLOG(this)),
      counts_(new tactix::qt::DualCardCountDisplay(this)),
      statistics_(new tactix::qt::StrategyDataPanel(this)) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget :
       {static_cast<QWidget*>(register_), static_cast<QWidget*>(counts_), static_cast<QWidget*>(statistics_)}) {
    widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addWidget(widget, 1, Qt::AlignCenter);
  }
  register_->TypeOfDecisionRegister(tactix::qt::DecisionRegiLOG::AfterAdviceDecisionRegister);
  register_->DisplayTheDrillResults(0, 0);
}

void Scoreboard::ShowCounts(bool shown) {
  counts_->setVisible(shown);
  statistics_->setVisible(shown);
}

void Scoreboard::ShowShoe(const engine::Session& session, const engine::CountSystem& system) {
  FillStatistics(session, system, *block_);
  counts_->RunningCountValue(block_->RunningCount);
  counts_->TrueCountValue(block_->TrueCount);
  statistics_->HereIsYourStrategyData(block_);
}

void Scoreboard::ShowJudgement(const engine::Judgement& judgement, const engine::Tally& tally) {
  constexpr int most = std::numeric_limits<std::int16_t>::max();
  register_->DisplayTheDrillResults(std::min(tally.decisions, most), std::min(tally.correct, most));
  register_->AfterAdvice(static_cast<tactix::qt::DecisionRegiLOG::AfterAdvicePossibilities>(VerdictOn(judgement)));
}

}  // namespace trainer::screens
