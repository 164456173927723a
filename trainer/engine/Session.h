#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "trainer/engine/DealerRecord.h"
#include "trainer/engine/Predictions.h"
#include "trainer/engine/Round.h"
#include "trainer/engine/Rules.h"
#include "trainer/engine/Shoe.h"
#include "trainer/engine/Strategy.h"

namespace trainer::engine {

/// A decision, judged by the strategy that gave advice when it was made.
struct Judgement {
  Decision advised;
  Decision chosen;
  std::optional<bool> hitCardPrediction;                ///< right or wrong, where one was made and a card came
  std::optional<bool> holeCardPrediction;               ///< the same for the hole card, once the round is over
  std::optional<bool> dealerPrediction = std::nullopt;  ///< the same for the dealer's first two cards

  [[nodiscard]] bool IsRight() const { return advised == chosen; }
};

/// What a player has done since the session began.
struct Tally {
  int hands = 0;
  int decisions = 0;
  int correct = 0;
  Money net = 0;

  /// 0 ... 100; 0 before the first decision.
  [[nodiscard]] double CorrectPercent() const { return decisions == 0 ? 0.0 : 100.0 * correct / decisions; }
};

/// One player at one table with one shoe: deals round after round, judges each decision and keeps the tally.
class Session {
 public:
  /// Throws std::invalid_argument for rules or a bet that Round refuses.
  Session(const Rules& rules, std::uint64_t seed, Money bet = 1000);

  /// Deals the next round, after a shuffle if the cut card is out. An unfinished round is given up: it is not counted,
  /// and its hole card counts as seen from then on.
  void Deal();

  /// False before the first deal.
  [[nodiscard]] bool HasRound() const { return round_.has_value(); }
  /// True before the first deal and between rounds: nothing is to be decided.
  [[nodiscard]] bool IsOver() const { return !round_ || round_->IsOver(); }
  /// Throws std::logic_error before the first deal.
  [[nodiscard]] const Round& CurrentRound() const;

  /// Which decision is to be made: a number that changes with every deal and every decision and never comes back. 0
  /// before the first deal.
  [[nodiscard]] int Turn() const { return turn_; }

  /// The bet on each hand from the next round on. Throws std::invalid_argument for a bet that Round refuses.
  void Bet(Money bet);
  [[nodiscard]] Money CurrentBet() const { return bet_; }

  /// What the strategy advises for the active hand. Throws std::logic_error when the round is over.
  [[nodiscard]] Decision Advised() const;
  /// Plays and judges the decision; nothing, and no change, if it is not legal or the round is over.
  std::optional<Judgement> Decide(Decision decision);

  /// The strategy that advises from now on; basic strategy at first. It must not be null.
  void Follow(std::shared_ptr<const Strategy> strategy);

  /// Burns a card off the shoe, any number of times.
  Card Burn() { return shoe_.Burn(); }

  engine::Predictions& Predictions() { return predictions_; }
  [[nodiscard]] const engine::Predictions& Predictions() const { return predictions_; }
  /// Whether the tens ratio of the cards that the player has not seen is high, or low; judged at once. Nothing, and not
  /// counted, when the player has seen them all.
  std::optional<bool> PredictTensRatio(bool high);

  /// The cards that the player has seen since the shuffle.
  [[nodiscard]] std::vector<Card> Seen() const;

  /// Of the rounds since the shuffle.
  [[nodiscard]] const DealerRecord& TheDealer() const { return dealer_; }
  /// Rounds since the shuffle that the player has won, less those that the dealer has.
  [[nodiscard]] int RoundsAhead() const { return roundsAhead_; }

  /// How the last rounds ended for the player, each by its net money: 3 after three wins in a row, -2 after two losses,
  /// 0 before the first. Pushes leave it as it is; a shuffle does, too.
  [[nodiscard]] int Run() const { return run_; }
  /// Begins the run anew, at 0. A round that is being played does not count for it.
  void BeginRun();

  [[nodiscard]] const Tally& CurrentTally() const { return tally_; }
  [[nodiscard]] const Rules& TheRules() const { return rules_; }
  [[nodiscard]] const Shoe& TheShoe() const { return shoe_; }

 private:
  void Shuffle();
  void CountIfOver();
  void SeeTheDealersCards(Judgement& judgement);

  Rules rules_;
  Money bet_;
  Shoe shoe_;
  std::shared_ptr<const Strategy> strategy_;
  std::optional<Round> round_;
  engine::Predictions predictions_;
  Tally tally_;
  int run_ = 0;
  bool isInRun_ = true;  // whether the current round counts for the run
  DealerRecord dealer_;
  int roundsAhead_ = 0;
  int turn_ = 0;
  bool isCounted_ = false;
};

}  // namespace trainer::engine
