#include "trainer/screens/TrainerWindow.h"

#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>
#include <QRandomGenerator>
#include <QVBoxLayout>
#include <array>

#include "tactix/companion/Companion.h"
#include "tactix/strategy/StrategyListData.h"
#include "trainer/engine/BettingCount.h"
#include "trainer/engine/Words.h"
#include "trainer/screens/CardValueDialog.h"
#include "trainer/screens/CountDrillDialog.h"
#include "trainer/screens/HandBlock.h"
#include "trainer/screens/Messages.h"
#include "trainer/screens/ScoreBar.h"
#include "trainer/screens/Scoreboard.h"
#include "trainer/screens/StrategyBar.h"
#include "trainer/screens/TableDescription.h"
#include "trainer/screens/TableOf.h"
#include "trainer/screens/TableStrategy.h"
#include "trainer/screens/TableView.h"

namespace trainer::screens {

namespace {

constexpr QSize FirstSize(1000, 900);
/// The count system at first: simple, and widely known.
constexpr int FirstCountSystem = 21;
constexpr int FlatBet = 0;
constexpr engine::Money BetUnit = 1000;

using tactix::companion::IniStrategyCatalogue;

/// Installs what the controls need of their host, before the first of them is made.
std::shared_ptr<IniStrategyCatalogue> Installed(std::shared_ptr<IniStrategyCatalogue> catalogue) {
  tactix::companion::Install();
  tactix::StrategyListData::UseCatalogue(catalogue);
  return catalogue;
}

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

QString GuessText(const QString& card, std::optional<engine::CardRange> range) {
  return range ? QStringLiteral("Your prediction: the %1 is %2.").arg(card, RangeText(*range))
               : QStringLiteral("No prediction of the %1.").arg(card);
}

}  // namespace

TrainerWindow::TrainerWindow(engine::Session session, std::shared_ptr<IniStrategyCatalogue> catalogue, QWidget* parent)
    : QMainWindow(parent),
      session_(std::move(session)),
      catalogue_(Installed(std::move(catalogue))),
      table_(new TableView(this)),
      score_(new ScoreBar(this)),
      board_(new Scoreboard(this)),
      strategies_(new StrategyBar(this)),
      countSystem_(engine::FindCountSystem(FirstCountSystem)),
      box_(new BoxInput(this)),
      toolBar_(new ToolBarInput(this)),
      input_(box_) {
  setWindowTitle(QStringLiteral("Tactix Trainer"));
  auto* const central = new QWidget(this);
  auto* const layout = new QVBoxLayout(central);
  layout->addWidget(table_, 1);
  layout->addWidget(strategies_);
  layout->addWidget(board_);
  layout->addWidget(score_);
  layout->addWidget(box_);
  layout->addWidget(toolBar_);
  setCentralWidget(central);
  resize(FirstSize);

  toolBar_->hide();
  box_->NameStrategy(QStringLiteral("basic strategy"));
  box_->setFocus();
  MakeViewMenu();
  MakeDrillMenu();
  Connect(*box_);
  Connect(*toolBar_);
  // Gives the focus back to the play buttons, so that letters are plays again. Queued: the list is still handling its
  // event.
  const auto goBack = [this] {
    QMetaObject::invokeMethod(
        this, [this] { input_->setFocus(); }, Qt::QueuedConnection);
  };
  connect(strategies_, &StrategyBar::Closed, this, goBack);
  const auto picks = [this, goBack](void (StrategyBar::*signal)(int), void (TrainerWindow::*follow)(int)) {
    connect(strategies_, signal, this, [this, follow, goBack](int number) {
      (this->*follow)(number);
      goBack();
    });
  };
  picks(&StrategyBar::PlayingPicked, &TrainerWindow::FollowStrategy);
  picks(&StrategyBar::BettingPicked, &TrainerWindow::BetBy);
  picks(&StrategyBar::CountPicked, &TrainerWindow::CountBy);
  picks(&StrategyBar::UnitsPicked, &TrainerWindow::BetUnits);
  strategies_->Counts().CountStrategy(tactix::qt::CountStrategyList::HIOpt1);
  strategies_->Betting().SelectThisStrategy(FlatBet);
  ShowScore();
}

void TrainerWindow::MakeViewMenu() {
  struct Row {
    const char* text;
    InputKind kind;
  };
  constexpr std::array<Row, 3> rows = {{{"Decision &box", InputKind::Box},
                                        {"Decision &toolbar", InputKind::ToolBar},
                                        {"Toolbar with &legend", InputKind::ToolBarAndLegend}}};
  QMenu* const menu = menuBar()->addMenu(QStringLiteral("&View"));
  auto* const group = new QActionGroup(this);
  for (const Row& row : rows) {
    QAction* const action = menu->addAction(QLatin1String(row.text));
    action->setCheckable(true);
    action->setChecked(row.kind == InputKind::Box);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, kind = row.kind] { PlayWith(kind); });
  }
  menu->addSeparator();
  QAction* const counts = menu->addAction(QStringLiteral("&Counts and statistics"));
  counts->setCheckable(true);
  counts->setChecked(true);
  connect(counts, &QAction::toggled, board_, &Scoreboard::ShowCounts);
}

void TrainerWindow::MakeDrillMenu() {
  QMenu* const menu = menuBar()->addMenu(QStringLiteral("&Drills"));
  connect(menu->addAction(QStringLiteral("&Running count...")), &QAction::triggered, this,
          &TrainerWindow::DrillCounting);
  connect(menu->addAction(QStringLiteral("&Card values...")), &QAction::triggered, this,
          &TrainerWindow::DrillCardValues);
}

void TrainerWindow::DrillCounting() {
  CountDrillDialog dialog(*countSystem_, session_.TheRules().decks, QRandomGenerator::global()->generate64(), this);
  dialog.exec();
}

void TrainerWindow::DrillCardValues() {
  CardValueDialog dialog(*countSystem_, QRandomGenerator::global()->generate64(), this);
  dialog.exec();
}

void TrainerWindow::PlayWith(InputKind kind) {
  input_ = kind == InputKind::Box ? static_cast<DecisionInput*>(box_) : toolBar_;
  toolBar_->ShowLegend(kind == InputKind::ToolBarAndLegend);
  box_->setVisible(input_ == box_);
  toolBar_->setVisible(input_ == toolBar_);
  input_->setFocus();
  if (session_.HasRound()) Expect();
}

void TrainerWindow::Connect(const DecisionInput& input) {
  connect(&input, &DecisionInput::Played, this, &TrainerWindow::Decide);
  connect(&input, &DecisionInput::Advised, this, &TrainerWindow::SayAdvice);
  connect(&input, &DecisionInput::StrategyPicked, this, &TrainerWindow::FollowStrategy);
  connect(&input, &DecisionInput::BurnAsked, this, &TrainerWindow::Burn);
  connect(&input, &DecisionInput::CopyAsked, this, &TrainerWindow::CopyHand);
  connect(&input, &DecisionInput::StatisticsAsked, this, &TrainerWindow::ShowStatistics);
  connect(&input, &DecisionInput::HitCardPredicted, this, &TrainerWindow::PredictHitCard);
  connect(&input, &DecisionInput::HoleCardPredicted, this, &TrainerWindow::PredictHoleCard);
  connect(&input, &DecisionInput::TensRatioPredicted, this, &TrainerWindow::PredictTensRatio);
}

void TrainerWindow::Deal() {
  SizeTheBet();
  session_.Deal();
  const bool over = session_.IsOver();
  ShowTable(ThenGoOn(over ? DealtRoundText(session_.CurrentRound(), session_.TheRules()) : QString()));
  ShowScore();
  Expect();
}

/// Waits for a decision, or between rounds for any play.
void TrainerWindow::Expect() { session_.IsOver() ? input_->Rest() : Ask(); }

void TrainerWindow::Ask() {
  FillBlock(session_, block_);
  input_->Ask(block_, session_.Turn());
}

void TrainerWindow::Decide(engine::Decision decision) {
  if (session_.IsOver()) return Deal();
  const engine::Round& round = session_.CurrentRound();
  if (!round.Legal().Allows(decision)) {
    ShowTable(ThenGoOn(ToQt(engine::WordFor(decision)) + QStringLiteral(" is not possible with this hand.")));
    return Ask();
  }
  const engine::HandPlace place = round.ActivePlace();
  DecisionRecord record;
  record.round = session_.CurrentTally().hands + 1;
  record.splitHand = round.HandsOf(place.seat).size() > 1 ? static_cast<int>(place.hand) + 1 : 0;
  record.cards = round.ActiveHand().hand;
  record.upCard = round.UpCard();
  const QString tens = TakeGuesses(input_->CollectGuesses());
  record.judgement = session_.Decide(decision).value();

  QString message = JudgementText(record.judgement, record.cards, record.upCard, strategy_) + tens;
  if (session_.IsOver()) message = ThenGoOn(message);
  ShowTable(message, record.judgement.IsRight() ? TableModel::Verdict::Right : TableModel::Verdict::Wrong);
  ShowScore();
  board_->ShowJudgement(record.judgement, session_.CurrentTally());
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
  board_->ShowShoe(session_, *countSystem_);
}

void TrainerWindow::ShowScore() { score_->Show(session_.CurrentTally(), session_.Predictions()); }

void TrainerWindow::PredictHitCard(std::optional<engine::CardRange> range) {
  // Between rounds this press is a part of the click that deals.
  if (session_.IsOver()) return;
  session_.Predictions().PredictHitCard(range);
  ShowTable(ThenGoOn(GuessText(QStringLiteral("hit card"), range)));
}

void TrainerWindow::PredictHoleCard(std::optional<engine::CardRange> range) {
  if (!session_.HasRound()) return;
  if (session_.IsOver()) return ShowTable(ThenGoOn(QStringLiteral("The hole card is open already.")));
  session_.Predictions().PredictHoleCard(range);
  ShowTable(ThenGoOn(GuessText(QStringLiteral("hole card"), range)));
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

/// Takes over the predictions that come with a play, and returns what became of the one about the tens. Those about
/// cards are judged when the card is seen.
QString TrainerWindow::TakeGuesses(const Guesses& guesses) {
  const auto rangeOf = [](CardGuess guess) {
    return guess == CardGuess::Unknown ? std::nullopt : std::optional(static_cast<engine::CardRange>(guess));
  };
  engine::Predictions& predictions = session_.Predictions();
  if (guesses.hitCard != CardGuess::None) predictions.PredictHitCard(rangeOf(guesses.hitCard));
  if (guesses.holeCard != CardGuess::None) predictions.PredictHoleCard(rangeOf(guesses.holeCard));
  if (guesses.dealerIsStrong) predictions.PredictDealerHand(guesses.dealerIsStrong);
  const auto tens = guesses.tensAreHigh ? session_.PredictTensRatio(*guesses.tensAreHigh) : std::nullopt;
  return PredictionText(QStringLiteral("Tens ratio"), tens);
}

void TrainerWindow::ShowStatistics() {
  if (!session_.HasRound()) return;
  std::array<int, 4> seen{};
  for (const engine::Card card : session_.Seen()) ++seen.at(static_cast<std::size_t>(engine::RangeOf(card.rank)));
  ShowTable(ThenGoOn(QStringLiteral("Seen since the shuffle: %1 low, %2 mid and %3 high cards.")
                         .arg(seen[1])
                         .arg(seen[2])
                         .arg(seen[3])));
}

void TrainerWindow::SayAdvice(int turn) {
  // The player may have played on while the button flashed; advice for the next hand was not asked for.
  if (session_.IsOver() || turn != session_.Turn()) return;
  const engine::Round& round = session_.CurrentRound();
  const QString by = strategy_.isEmpty() ? QString() : QStringLiteral(" by ") + strategy_;
  ShowTable(
      QStringLiteral("Advice%1: %2.").arg(by, PlayText(session_.Advised(), round.ActiveHand().hand, round.UpCard())));
}

void TrainerWindow::FollowStrategy(int number) {
  const auto strategy = static_cast<std::int16_t>(number);
  const tactix::companion::PlayingTable* const table = catalogue_->TableOf(strategy);
  if (!table) {
    strategies_->ShowPlaying(followed_);
    if (session_.HasRound()) ShowTable(ThenGoOn(QStringLiteral("No such strategy; the advice stays as it was.")));
    return;
  }
  const std::string caption(catalogue_->CaptionOf(strategy));
  strategy_ = ToQt(caption);
  followed_ = number;
  strategies_->ShowPlaying(followed_);
  session_.Follow(std::make_shared<TableStrategy>(caption, *table));
  box_->NameStrategy(strategy_);
  if (session_.HasRound()) ShowTable(ThenGoOn(QStringLiteral("The advice now follows %1.").arg(strategy_)));
  if (!session_.IsOver()) Ask();
}

void TrainerWindow::BetBy(int number) {
  plan_ = catalogue_->BettingPlanOf(static_cast<std::int16_t>(number));
  // A progression begins at its first bet, whatever was won before.
  session_.BeginRun();
  const QString caption = ToQt(catalogue_->BettingCaptionOf(static_cast<std::int16_t>(number)));
  if (!session_.HasRound()) return;
  ShowTable(ThenGoOn(plan_ ? QStringLiteral("The next bet is sized by %1.").arg(caption)
                           : QStringLiteral("No such betting strategy; the next bet is one unit.")));
}

void TrainerWindow::BetUnits(int units) {
  units_ = units;
  if (session_.HasRound()) ShowTable(ThenGoOn(QStringLiteral("The next bet is in steps of %1.").arg(10 * units)));
}

void TrainerWindow::SizeTheBet() {
  int units = 1;
  if (plan_) {
    // A shoe that is about to be shuffled has no count.
    const int count = session_.TheShoe().NeedsShuffle()
                          ? 0
                          : engine::BettingCount(*countSystem_, session_.TheRules().decks, session_.Seen());
    units = plan_->UnitsFor(count, session_.Run());
  }
  session_.Bet(units * units_ * BetUnit);
}

void TrainerWindow::CountBy(int number) {
  const engine::CountSystem* const system = engine::FindCountSystem(number);
  if (!system) return;
  countSystem_ = system;
  board_->ShowShoe(session_, *countSystem_);
}

void TrainerWindow::Burn() {
  if (!session_.HasRound()) return;
  const engine::Card burned = session_.Burn();
  ShowTable(ThenGoOn(QStringLiteral("Burned: %1.").arg(CardInWords(burned))));
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
