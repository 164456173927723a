#pragma once

#include <optional>
#include <span>

#include "trainer/engine/Card.h"
#include "trainer/engine/CountSystems.h"

namespace trainer::engine {

/// The running count of a shoe, exact. Cards that the player has not seen, such as a hole card, must not be given to
/// it.
class Counter {
 public:
  /// The count of a fresh shoe. The system must live as long as the counter; those of CountSystems() do. Throws
  /// std::invalid_argument for fewer decks than one.
  Counter(const CountSystem& system, int decks);

  void See(Card card);
  void See(std::span<const Card> cards);
  /// Begins again, after a shuffle.
  void Restart();

  [[nodiscard]] const CountSystem& System() const { return *system_; }

  /// In halves of a point.
  [[nodiscard]] int RunningHalves() const { return runningHalves_; }
  /// In whole points, rounded down: 1.5 is 1, and -1.5 is -2.
  [[nodiscard]] int RunningCount() const;
  /// The running count for each deck, or each half deck, of the cards left; worked out exactly and then rounded down to
  /// a whole number, as running counts are. Nothing in a system that uses the running count as it is. `cardsLeft` are
  /// those that the player has not seen, to the card or estimated. Throws std::invalid_argument for less than one.
  [[nodiscard]] std::optional<int> TrueCount(int cardsLeft) const;

 private:
  const CountSystem* system_;
  int decks_;
  int runningHalves_ = 0;
};

}  // namespace trainer::engine
