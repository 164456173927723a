#include "trainer/screens/BoxInput.h"

#include <QVBoxLayout>

namespace trainer::screens {

namespace {

constexpr int NoAdvice = 0;

}  // namespace

BoxInput::BoxInput(QWidget* parent) : DecisionInput(parent), box_(new tactix::qt::Decision(this)) {
  using engine::CardRange;
  using tactix::qt::Decision;
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(box_);
  setFocusProxy(box_);

  box_->DecisionBoxType(Decision::forUseWithBlackjackTable);
  box_->AllowAdvice(Decision::LargeButton);
  // If it were lower, its play buttons would be cut off.
  box_->setMinimumHeight(box_->sizeHint().height());

  const auto plays = [this](void (Decision::*signal)(), engine::Decision decision) {
    connect(box_, signal, this, [this, decision] { Q_EMIT Played(decision); });
  };
  plays(&Decision::PlayerHits, engine::Decision::Hit);
  plays(&Decision::PlayerStands, engine::Decision::Stand);
  plays(&Decision::PlayerSplits, engine::Decision::Split);
  plays(&Decision::PlayerDoublesDown, engine::Decision::Double);
  plays(&Decision::PlayerSurrenders, engine::Decision::Surrender);

  using CardSignal = void (DecisionInput::*)(std::optional<CardRange>);
  const auto predicts = [this](void (Decision::*signal)(), CardSignal tell, std::optional<CardRange> range) {
    connect(box_, signal, this, [this, tell, range] { Q_EMIT(this->*tell)(range); });
  };
  predicts(&Decision::HitCardHiPrediction, &DecisionInput::HitCardPredicted, CardRange::High);
  predicts(&Decision::HitCardLoPrediction, &DecisionInput::HitCardPredicted, CardRange::Low);
  predicts(&Decision::HitCardNeutralPrediction, &DecisionInput::HitCardPredicted, CardRange::Mid);
  predicts(&Decision::HitCardUnknownPrediction, &DecisionInput::HitCardPredicted, std::nullopt);
  predicts(&Decision::WholeCardHiPrediction, &DecisionInput::HoleCardPredicted, CardRange::High);
  predicts(&Decision::WholeCardLoPrediction, &DecisionInput::HoleCardPredicted, CardRange::Low);
  predicts(&Decision::WholeCardNeutralPrediction, &DecisionInput::HoleCardPredicted, CardRange::Mid);
  predicts(&Decision::WholeCardUnknownPrediction, &DecisionInput::HoleCardPredicted, std::nullopt);
  connect(box_, &Decision::TensRatioHiPrediction, this, [this] { Q_EMIT TensRatioPredicted(true); });
  connect(box_, &Decision::TensRatioLoPrediction, this, [this] { Q_EMIT TensRatioPredicted(false); });

  connect(box_, &Decision::AdviceRequested, this, [this] { Q_EMIT Advised(TakeTurnOfAdvice()); });
  connect(box_, &Decision::EvaluationStrategySelected, this, &DecisionInput::StrategyPicked);
  connect(box_, &Decision::BurnACardRequested, this, &DecisionInput::BurnAsked);
  connect(box_, &Decision::PlugHandCardsInClipboard, this, &DecisionInput::CopyAsked);
}

void BoxInput::Ask(const tactix::DecisionBlock& block, int turn) {
  BeginTurn(turn);
  box_->SetupTheDecisionBox(block);
}

void BoxInput::BeginTurn(int turn) {
  if (turn == turn_) return;
  // What flashes now was asked for before.
  const auto running = static_cast<std::size_t>(box_->control().FlashesUnderWay());
  askedIn_.resize(running, turn_);
  turn_ = turn;
}

int BoxInput::TakeTurnOfAdvice() {
  // Those that still run are around the one that has ended.
  const auto around = static_cast<std::size_t>(box_->control().FlashesUnderWay());
  if (around >= askedIn_.size()) return turn_;
  const int turn = askedIn_[around];
  askedIn_.resize(around);
  return turn;
}

void BoxInput::Rest() { box_->GiveAdvice(NoAdvice); }

void BoxInput::NameStrategy(const QString& name) { box_->ToolTipMessage(name); }

}  // namespace trainer::screens
