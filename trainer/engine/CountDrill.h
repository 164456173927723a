#pragma once

#include <cstddef>
#include <cstdint>

#include "trainer/engine/Card.h"
#include "trainer/engine/Counter.h"
#include "trainer/engine/Shoe.h"

namespace trainer::engine {

/// Practice in counting: cards come one after the other, and then the player says the running count.
class CountDrill {
 public:
  /// `cards` cards of a fresh shoe. The system must live as long as the drill. Throws std::invalid_argument for decks
  /// outside 1 ... 8, or for fewer cards than one or more than the decks have.
  CountDrill(const CountSystem& system, int decks, int cards, std::uint64_t seed);

  [[nodiscard]] int Cards() const { return cards_; }
  [[nodiscard]] int Shown() const { return shown_; }
  /// All cards have been shown.
  [[nodiscard]] bool IsOver() const { return shown_ == cards_; }
  /// Shows the next card. Throws std::logic_error when the drill is over.
  Card Next();

  /// After the cards shown so far.
  [[nodiscard]] int RunningCount() const { return counter_.RunningCount(); }
  /// How far an answer is above the running count; below it is negative.
  [[nodiscard]] int OffBy(int answer) const { return answer - RunningCount(); }

 private:
  Counter counter_;
  Shoe shoe_;
  int cards_;
  int shown_ = 0;
};

}  // namespace trainer::engine
