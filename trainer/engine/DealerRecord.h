#pragma once

#include "trainer/engine/Hand.h"

namespace trainer::engine {

/// What the dealer's hands have come to since the shuffle.
class DealerRecord {
 public:
  /// A hand that is open to see, at the end of its round. One that the dealer did not play out, because nothing was
  /// left to win, counts by its first two cards only. Throws std::invalid_argument for fewer than two cards.
  void Add(const Hand& hand);
  void Forget() { *this = {}; }

  /// First two cards that are stiff.
  [[nodiscard]] int StiffHands() const { return stiff_; }
  /// First two cards with a total from 17 to 21.
  [[nodiscard]] int StrongHands() const { return strong_; }
  /// Hands that came to 17 or more.
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
