#pragma once

#include <cstdint>

#include "trainer/engine/Hand.h"

namespace trainer::engine {

/// Whether the dealer drew, or stood with what he had, because a player's hand was still in play.
enum class DealersTurn : std::uint8_t { Taken, NotNeeded };

/// What the dealer's hands have come to since the shuffle.
class DealerRecord {
 public:
  /// Adds a hand that is face up, at the end of its round. Where the dealer did not have his turn, only its first two
  /// cards count, whatever its total: otherwise hands of 17 and more would count as played out too often. Throws
  /// std::invalid_argument for fewer than two cards.
  void Add(const Hand& hand, DealersTurn turn);
  void Forget() { *this = {}; }

  /// First two cards that are stiff.
  [[nodiscard]] int StiffHands() const { return stiff_; }
  /// First two cards with a total from 17 to 21.
  [[nodiscard]] int StrongHands() const { return strong_; }
  /// Hands with which the dealer had his turn.
  [[nodiscard]] int PlayedOut() const { return stood_ + busts_; }
  /// Percent of the hands played out that went over 21, 0 ... 100; 0 while there is none.
  [[nodiscard]] double BreakPercent() const;
  /// The mean total of those that did not, 17 ... 21; 0 while there is none.
  [[nodiscard]] double EndingTotal() const;

 private:
  int stiff_ = 0;
  int strong_ = 0;
  int stood_ = 0;
  int busts_ = 0;
  int totals_ = 0;
};

}  // namespace trainer::engine
