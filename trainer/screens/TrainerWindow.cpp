#include "trainer/screens/TrainerWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QVBoxLayout>

#include "trainer/engine/Words.h"
#include "trainer/screens/HandBlock.h"
#include "trainer/screens/TableOf.h"
#include "trainer/screens/TableStrategy.h"
#include "trainer/screens/TableView.h"

namespace trainer::screens {

namespace {

QString Text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

/// "Stand on 16 against 10", "Split a pair of 8s against 6", "Hit soft 17 against ace".
QString PlayText(engine::Decision decision, const engine::Hand& hand, engine::Rank upCard) {
  const QString join = decision == engine::Decision::Stand ? QStringLiteral(" on ") : QStringLiteral(" ");
  const QString article = hand.IsPair() ? QStringLiteral("a ") : QString();
  return Text(engine::WordFor(decision)) + join + article + Text(engine::WordFor(hand)) + QStringLiteral(" against ") +
         Text(engine::WordFor(upCard));
}

QString PredictionText(const QString& what, std::optional<bool> right) {
  if (!right) return {};
  return QStringLiteral(" %1 %2.").arg(what, *right ? QStringLiteral("right") : QStringLiteral("wrong"));
}

}  // namespace

TrainerWindow::TrainerWindow(engine::Session session,
                             std::shared_ptr<const tactix::companion::IniStrategyCatalogue> catalogue, QWidget* parent)
    : QMainWindow(parent),
      session_(std::move(session)),
      catalogue_(std::move(catalogue)),
      table_(new TableView(this)),
      tally_(new QLabel(this)),
      box_(new tactix::qt::Decision(this)) {
  setWindowTitle(QStringLiteral("Tactix Trainer"));
  auto* const central = new QWidget(this);
  auto* const layout = new QVBoxLayout(central);
  layout->addWidget(table_, 1);
  layout->addWidget(tally_);
  layout->addWidget(box_);
  setCentralWidget(central);
  tally_->setAccessibleName(QStringLiteral("Score"));

  box_->DecisionBoxType(tactix::qt::Decision::forUseWithBlackjackTable);
  box_->AllowAdvice(tactix::qt::Decision::LargeButton);
  box_->ToolTipMessage(QStringLiteral("basic strategy"));
  box_->setFocus();
  Connect();
  ShowTally();
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
  if (session_.IsOver()) {
    ShowTable(QStringLiteral("No decision to make. Any play deals the next hand."));
    ShowTally();
    Q_EMIT RoundOver();
  } else {
    ShowTable(QStringLiteral("Your play?"));
    Ask();
  }
}

void TrainerWindow::Ask() {
  FillBlock(session_, block_);
  box_->SetupTheDecisionBox(block_);
}

void TrainerWindow::Decide(engine::Decision decision) {
  if (session_.IsOver()) return Deal();
  const engine::Round& round = session_.CurrentRound();
  DecisionRecord record{session_.CurrentTally().hands + 1, round.ActiveHand().hand, round.UpCard(), {}};
  const auto judgement = session_.Decide(decision);
  if (!judgement) {
    ShowTable(Text(engine::WordFor(decision)) + QStringLiteral(" is not possible with this hand."));
    return Ask();
  }
  record.judgement = *judgement;

  const bool right = judgement->IsRight();
  QString message = right ? QStringLiteral("Right: ") : QStringLiteral("Better: ");
  message += PlayText(judgement->advised, record.cards, record.upCard) + QLatin1Char('.');
  message += PredictionText(QStringLiteral("Hit card predicted"), judgement->hitCardPrediction);
  message += PredictionText(QStringLiteral("Hole card predicted"), judgement->holeCardPrediction);
  if (session_.IsOver()) message += QStringLiteral(" Any play deals the next hand.");
  ShowTable(message, right ? TableModel::Verdict::Right : TableModel::Verdict::Wrong);
  ShowTally();
  if (!session_.IsOver()) Ask();
  Q_EMIT Judged(record);
  if (session_.IsOver()) Q_EMIT RoundOver();
}

void TrainerWindow::ShowTable(const QString& message, TableModel::Verdict verdict) {
  TableModel model = TableOf(session_);
  model.message = message;
  model.verdict = verdict;
  table_->SetModel(std::move(model));
}

void TrainerWindow::ShowTally() {
  const engine::Tally& tally = session_.CurrentTally();
  const engine::Predictions& predictions = session_.Predictions();
  tally_->setText(QStringLiteral("Hands %1    Decisions %2    Correct %3 (%4 %)    Predictions %5 of %6    Won %7")
                      .arg(tally.hands)
                      .arg(tally.decisions)
                      .arg(tally.correct)
                      .arg(tally.CorrectPercent(), 0, 'f', 1)
                      .arg(predictions.Right())
                      .arg(predictions.Made())
                      .arg(Text(engine::SignedAmount(tally.net))));
}

void TrainerWindow::PredictHitCard(std::optional<engine::CardRange> range) {
  if (!session_.IsOver()) session_.Predictions().PredictHitCard(range);
}

void TrainerWindow::PredictHoleCard(std::optional<engine::CardRange> range) {
  if (session_.IsOver()) return;
  session_.Predictions().PredictHoleCard(range);
  ShowTable(range ? QStringLiteral("Your hole-card prediction is noted. Your play?") : QStringLiteral("Your play?"));
}

void TrainerWindow::PredictTensRatio(bool high) {
  if (!session_.HasRound()) return;
  const bool right = session_.PredictTensRatio(high);
  ShowTable((right == high) ? QStringLiteral("The cards to come are rich in tens.")
                            : QStringLiteral("The cards to come are poor in tens."),
            right ? TableModel::Verdict::Right : TableModel::Verdict::Wrong);
  ShowTally();
}

void TrainerWindow::SayAdvice() {
  // The player may have played on while the button flashed.
  if (session_.IsOver()) return;
  const engine::Round& round = session_.CurrentRound();
  ShowTable(QStringLiteral("Advice: ") + PlayText(session_.Advised(), round.ActiveHand().hand, round.UpCard()) +
            QLatin1Char('.'));
}

void TrainerWindow::FollowStrategy(int number) {
  const auto strategy = static_cast<std::int16_t>(number);
  const tactix::companion::PlayingTable* const table = catalogue_->TableOf(strategy);
  if (!table) {
    if (session_.HasRound()) ShowTable(QStringLiteral("That seat plays no strategy; the advice stays as it was."));
    return;
  }
  const std::string caption(catalogue_->CaptionOf(strategy));
  session_.Follow(std::make_shared<TableStrategy>(caption, *table));
  box_->ToolTipMessage(Text(caption));
  if (session_.HasRound()) ShowTable(QStringLiteral("The advice now follows: %1.").arg(Text(caption)));
  if (!session_.IsOver()) Ask();
}

void TrainerWindow::Burn() {
  if (!session_.HasRound()) return;
  const engine::Card burned = session_.Burn();
  ShowTable(QStringLiteral("Burned: %1.").arg(Text(engine::WordFor(burned.rank))));
}

void TrainerWindow::CopyHand() {
  if (session_.IsOver()) return;
  const engine::Round& round = session_.CurrentRound();
  QString text;
  for (const engine::Card card : round.ActiveHand().hand.Cards()) text += Text(engine::NameOf(card)) + QLatin1Char(' ');
  QGuiApplication::clipboard()->setText(text + QStringLiteral("against ") +
                                        Text(engine::NameOf(round.DealerHand().Cards()[0])));
  ShowTable(QStringLiteral("The hand is in the clipboard. Your play?"));
}

}  // namespace trainer::screens
