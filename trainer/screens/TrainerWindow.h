#pragma once

#include <QMainWindow>
#include <QString>
#include <memory>
#include <optional>

#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/shared/DecisionBlock.h"
#include "trainer/engine/CountSystems.h"
#include "trainer/engine/Session.h"
#include "trainer/screens/BoxInput.h"
#include "trainer/screens/TableModel.h"
#include "trainer/screens/ToolBarInput.h"

namespace trainer::screens {

class ScoreBar;
class Scoreboard;
class StrategyBar;
class TableView;

/// What the player plays with.
enum class InputKind { Box, ToolBar, ToolBarAndLegend };

/// A decision as the window judged it, with what it was made on.
struct DecisionRecord {
  int round = 0;      ///< counted from 1
  int splitHand = 0;  ///< which of the seat's hands, counted from 1; 0 while it has one hand only
  engine::Hand cards;
  engine::Rank upCard = engine::Rank::Ace;
  engine::Judgement judgement;
};

/// The trainer: a table with cards, and a decision box or toolbar with which the player plays. The window deals, asks,
/// judges and says what was right. Between hands any play deals the next one.
class TrainerWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `catalogue` is where strategies come from. From now on the whole process uses it, and the companion's defaults for
  /// whatever else controls need of a host.
  TrainerWindow(engine::Session session, std::shared_ptr<tactix::companion::IniStrategyCatalogue> catalogue,
                QWidget* parent = nullptr);

  [[nodiscard]] const engine::Session& CurrentSession() const { return session_; }
  tactix::qt::Decision& Box() { return box_->Box(); }
  ToolBarInput& ToolBar() { return *toolBar_; }
  TableView& Table() { return *table_; }
  ScoreBar& Score() { return *score_; }
  Scoreboard& Board() { return *board_; }
  StrategyBar& Strategies() { return *strategies_; }

  /// Changes what the player plays with; the box at first. The View menu does the same.
  void PlayWith(InputKind kind);
  /// The next round. What is left of the last one is given up.
  void Deal();

 Q_SIGNALS:
  /// After every decision, once the window shows what was right.
  void Judged(const trainer::screens::DecisionRecord& record);

 private:
  void MakeViewMenu();
  void MakeDrillMenu();
  void Connect(const DecisionInput& input);
  void Decide(engine::Decision decision);
  void Ask();
  void Expect();
  void ShowTable(const QString& message, TableModel::Verdict verdict = TableModel::Verdict::None);
  void ShowScore();
  void DrillCounting();
  void DrillCardValues();
  [[nodiscard]] QString ThenGoOn(const QString& message) const;
  void PredictHitCard(std::optional<engine::CardRange> range);
  void PredictHoleCard(std::optional<engine::CardRange> range);
  void PredictTensRatio(bool high);
  QString TakeGuesses(const Guesses& guesses);
  void ShowStatistics();
  void SayAdvice(int turn);
  void Burn();
  void CopyHand();
  void FollowStrategy(int number);
  void BetBy(int number);
  void CountBy(int number);
  void BetUnits(int units);
  /// Sets the bet of the next round by the betting strategy.
  void SizeTheBet();

  engine::Session session_;
  std::shared_ptr<const tactix::companion::IniStrategyCatalogue> catalogue_;
  tactix::DecisionBlock block_;
  std::optional<int> followed_;  // the strategy that the player has picked
  QString strategy_;             // its caption
  TableView* table_;
  ScoreBar* score_;
  Scoreboard* board_;
  StrategyBar* strategies_;
  const tactix::companion::BettingPlan* plan_ = nullptr;  // null for flat bets
  int units_ = 1;                                         // what the player bets where the plan says one unit
  const engine::CountSystem* countSystem_;
  BoxInput* box_;
  ToolBarInput* toolBar_;
  DecisionInput* input_;
};

}  // namespace trainer::screens
