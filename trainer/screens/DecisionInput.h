#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>
#include <optional>

#include "tactix/shared/DecisionBlock.h"
#include "trainer/engine/Decision.h"
#include "trainer/engine/Predictions.h"

namespace trainer::screens {

/// What a player thinks of a card that is not seen yet. Unknown takes an earlier guess back.
enum class CardGuess : std::uint8_t { None = 0, Low = 1, Mid = 2, High = 3, Unknown = 4 };

/// The predictions that go with a play.
struct Guesses {
  CardGuess hitCard = CardGuess::None;
  CardGuess holeCard = CardGuess::None;
  std::optional<bool> tensAreHigh;
  std::optional<bool> dealerIsStrong;
};

/// The part of the window with which the player plays. It asks for a decision and says what the player has done.
class DecisionInput : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  /// Offers the plays that the block allows. The turn is the session's, as Advised reports it.
  virtual void Ask(const tactix::DecisionBlock& block, int turn) = 0;
  /// Nothing is to be decided: any play deals the next hand.
  virtual void Rest() = 0;
  /// Names the strategy that gives the advice.
  virtual void NameStrategy(const QString&) {}
  /// The predictions that this input hands over with a play, and not as soon as they are made.
  [[nodiscard]] virtual Guesses CollectGuesses() { return {}; }

 Q_SIGNALS:
  void Played(engine::Decision decision);
  /// The advised play of a turn has been flashed. The player may have played on meanwhile.
  void Advised(int turn);
  void StrategyPicked(int number);
  void BurnAsked();
  void CopyAsked();
  void StatisticsAsked();
  void HitCardPredicted(std::optional<engine::CardRange> range);
  void HoleCardPredicted(std::optional<engine::CardRange> range);
  void TensRatioPredicted(bool high);
};

}  // namespace trainer::screens
