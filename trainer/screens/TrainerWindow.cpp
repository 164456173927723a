#include "trainer/screens/TrainerWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QVBoxLayout>

#include "trainer/engine/Words.h"
#include "trainer/screens/HandBlock.h"
#include "trainer/screens/Messages.h"
#include "trainer/screens/ScoreBar.h"
#include "trainer/screens/TableOf.h"
#include "trainer/screens/TableStrategy.h"
#include "trainer/screens/TableView.h"

namespace trainer::screens {

namespace {

constexpr QSize FirstSize(900, 780);
constexpr int NoAdvice = 0;
/// A little less than an advised button flashes.
constexpr qint64 FlashMilliseconds = 1500;

QString RangeText(engine::CardRange range) {
  switch (range) {
    case engine::CardRange::Low:
      return QStringLiteral("low");
    case engine::CardRange::Mid:
      return QStringLiteral("mid");
    case engine::CardRange::High:
      break;
  }
  return QStringLiteral("high");
}

QString PredictionText(const QString& card, std::optional<engine::CardRange> range) {
  return range ? QStringLiteral("Your prediction: the %1 is %2.").arg(card, RangeText(*range))
               : QStringLiteral("No prediction of the %1.").arg(card);
}

}  // namespace

TrainerWindow::TrainerWindow(engine::Session session,
                             std::shared_ptr<const tactix::companion::IniStrategyCatalogue> catalogue, QWidget* parent)
    : QMainWindow(parent),
      session_(std::move(session)),
      catalogue_(std::move(catalogue)),
      table_(new TableView(this)),
      score_(new ScoreBar(this)),
      box_(new tactix::qt::Decision(this)) {
  setWindowTitle(QStringLiteral("Tactix Trainer"));
  auto* const central = new QWidget(this);
  auto* const layout = new QVBoxLayout(central);
  layout->addWidget(table_, 1);
  layout->addWidget(score_);
  layout->addWidget(box_);
  setCentralWidget(central);
  resize(FirstSize);

  box_->DecisionBoxType(tactix::qt::Decision::forUseWithBlackjackTable);
  box_->AllowAdvice(tactix::qt::Decision::LargeButton);
  box_->ToolTipMessage(QStringLiteral("basic strategy"));
  box_->setFocus();
  Connect();
  ShowScore();
}

void TrainerWindow::Connect() {
  using engine::CardRange;
  using tactix::qt::Decision;
  connect(box_, &Decision::PlayerHits, this, [this] { Decide(engine::Decision::Hit); });
  connect(box_, &Decision::PlayerStands, this, [this] { Decide(engine::Decision::Stand); });
  connect(box_, &Decision::PlayerSplits, this, [this] { Decide(engine::Decision::Split); });
  connect(box_, &Decision::PlayerDoublesDown, this, [this] { Decide(engine::Decision::Double); });
  connect(box_, &Decision::PlayerSurrenders, this, [this] { Decide(engine::Decision::Surrender); });
  connect(box_, &Decision::AdviceRequested, this, [this] { SayAdvice(); });
  connect(box_, &Decision::EvaluationStrategySelected, this, [this](int number) { FollowStrategy(number); });
  connect(box_, &Decision::BurnACardRequested, this, [this] { Burn(); });
  connect(box_, &Decision::PlugHandCardsInClipboard, this, [this] { CopyHand(); });
  connect(box_, &Decision::HitCardHiPrediction, this, [this] { PredictHitCard(CardRange::High); });
  connect(box_, &Decision::HitCardLoPrediction, this, [this] { PredictHitCard(CardRange::Low); });
  connect(box_, &Decision::HitCardNeutralPrediction, this, [this] { PredictHitCard(CardRange::Mid); });
  connect(box_, &Decision::HitCardUnknownPrediction, this, [this] { PredictHitCard(std::nullopt); });
  connect(box_, &Decision::WholeCardHiPrediction, this, [this] { PredictHoleCard(CardRange::High); });
  connect(box_, &Decision::WholeCardLoPrediction, this, [this] { PredictHoleCard(CardRange::Low); });
  connect(box_, &Decision::WholeCardNeutralPrediction, this, [this] { PredictHoleCard(CardRange::Mid); });
  connect(box_, &Decision::WholeCardUnknownPrediction, this, [this] { PredictHoleCard(std::nullopt); });
  connect(box_, &Decision::TensRatioHiPrediction, this, [this] { PredictTensRatio(true); });
  connect(box_, &Decision::TensRatioLoPrediction, this, [this] { PredictTensRatio(false); });
}

void TrainerWindow::Deal() {
  session_.Deal();
  const bool over = session_.IsOver();
  ShowTable(ThenGoOn(over ? DealtRoundText(session_.CurrentRound(), session_.TheRules()) : QString()));
  ShowScore();
  Expect();
}

/// Waits for a decision, or between rounds for any play.
void TrainerWindow::Expect() {
  sinceHandWasShown_.start();
  session_.IsOver() ? box_->GiveAdvice(NoAdvice) : Ask();
}

void TrainerWindow::Ask() {
  FillBlock(session_, block_);
  box_->SetupTheDecisionBox(block_);
}

void TrainerWindow::Decide(engine::Decision decision) {
  if (session_.IsOver()) return Deal();
  const engine::Round& round = session_.CurrentRound();
  const engine::HandPlace place = round.ActivePlace();
  DecisionRecord record;
  record.round = session_.CurrentTally().hands + 1;
  record.splitHand = round.HandsOf(place.seat).size() > 1 ? static_cast<int>(place.hand) + 1 : 0;
  record.cards = round.ActiveHand().hand;
  record.upCard = round.UpCard();
  const auto judgement = session_.Decide(decision);
  if (!judgement) {
    ShowTable(ThenGoOn(ToQt(engine::WordFor(decision)) + QStringLiteral(" is not possible with this hand.")));
    return Ask();
  }
  record.judgement = *judgement;

  QString message = JudgementText(*judgement, record.cards, record.upCard, strategy_);
  if (session_.IsOver()) message = ThenGoOn(message);
  ShowTable(message, judgement->IsRight() ? TableModel::Verdict::Right : TableModel::Verdict::Wrong);
  ShowScore();
  Expect();
  Q_EMIT Judged(record);
}

QString TrainerWindow::ThenGoOn(const QString& message) const {
  const QString next =
      session_.IsOver() ? QStringLiteral("Any play deals the next hand.") : QStringLiteral("Your play?");
  return message.isEmpty() ? next : message + QLatin1Char(' ') + next;
}

void TrainerWindow::ShowTable(const QString& message, TableModel::Verdict verdict) {
  TableModel model = TableOf(session_);
  model.message = message;
  model.verdict = verdict;
  table_->SetModel(std::move(model));
}

void TrainerWindow::ShowScore() { score_->Show(session_.CurrentTally(), session_.Predictions()); }

void TrainerWindow::PredictHitCard(std::optional<engine::CardRange> range) {
  // Between rounds the press belongs to a click that deals.
  if (session_.IsOver()) return;
  session_.Predictions().PredictHitCard(range);
  ShowTable(ThenGoOn(PredictionText(QStringLiteral("hit card"), range)));
}

void TrainerWindow::PredictHoleCard(std::optional<engine::CardRange> range) {
  if (!session_.HasRound()) return;
  if (session_.IsOver()) return ShowTable(ThenGoOn(QStringLiteral("The hole card is open already.")));
  session_.Predictions().PredictHoleCard(range);
  ShowTable(ThenGoOn(PredictionText(QStringLiteral("hole card"), range)));
}

void TrainerWindow::PredictTensRatio(bool high) {
  if (!session_.HasRound()) return;
  const auto right = session_.PredictTensRatio(high);
  if (!right) return ShowTable(ThenGoOn(QStringLiteral("No cards are left to predict.")));
  const bool rich = *right == high;
  ShowTable(ThenGoOn(rich ? QStringLiteral("The cards to come are rich in tens.")
                          : QStringLiteral("The cards to come are poor in tens.")),
            *right ? TableModel::Verdict::Right : TableModel::Verdict::Wrong);
  ShowScore();
}

void TrainerWindow::SayAdvice() {
  // The player may have played on while the button flashed; the next hand's advice was not asked for.
  if (session_.IsOver() || sinceHandWasShown_.elapsed() < FlashMilliseconds) return;
  const engine::Round& round = session_.CurrentRound();
  const QString by = strategy_.isEmpty() ? QString() : QStringLiteral(" by ") + strategy_;
  ShowTable(
      QStringLiteral("Advice%1: %2.").arg(by, PlayText(session_.Advised(), round.ActiveHand().hand, round.UpCard())));
}

void TrainerWindow::FollowStrategy(int number) {
  const auto strategy = static_cast<std::int16_t>(number);
  const tactix::companion::PlayingTable* const table = catalogue_->TableOf(strategy);
  if (!table) {
    if (session_.HasRound()) ShowTable(ThenGoOn(QStringLiteral("No such strategy; the advice stays as it was.")));
    return;
  }
  const std::string caption(catalogue_->CaptionOf(strategy));
  strategy_ = ToQt(caption);
  session_.Follow(std::make_shared<TableStrategy>(caption, *table));
  box_->ToolTipMessage(strategy_);
  if (session_.HasRound()) ShowTable(ThenGoOn(QStringLiteral("The advice now follows %1.").arg(strategy_)));
  if (!session_.IsOver()) Ask();
}

void TrainerWindow::Burn() {
  if (!session_.HasRound()) return;
  const engine::Card burned = session_.Burn();
  ShowTable(ThenGoOn(QStringLiteral("Burned: %1.").arg(ToQt(engine::WordFor(burned.rank)))));
}

void TrainerWindow::CopyHand() {
  if (session_.IsOver()) return ShowTable(ThenGoOn(QStringLiteral("There is no hand to copy.")));
  const engine::Round& round = session_.CurrentRound();
  QString text;
  for (const engine::Card card : round.ActiveHand().hand.Cards()) text += ToQt(engine::NameOf(card)) + QLatin1Char(' ');
  QGuiApplication::clipboard()->setText(text + QStringLiteral("against ") +
                                        ToQt(engine::NameOf(round.DealerHand().Cards()[0])));
  ShowTable(ThenGoOn(QStringLiteral("The hand is in the clipboard.")));
}

}  // namespace trainer::screens
