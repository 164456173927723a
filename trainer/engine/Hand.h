#pragma once

#include <span>
#include <vector>

#include "trainer/engine/Card.h"

namespace trainer::engine {

/// The cards of one hand, a player's or the dealer's, and what they are worth.
class Hand {
 public:
  Hand() = default;
  explicit Hand(std::vector<Card> cards);

  void Add(Card card);

  [[nodiscard]] std::span<const Card> Cards() const { return cards_; }

  /// Every ace as 1.
  [[nodiscard]] int HardTotal() const { return hardTotal_; }
  /// An ace counts as 11 without taking the hand over 21.
  [[nodiscard]] bool IsSoft() const { return hasAce_ && hardTotal_ + 10 <= 21; }
  /// The best total: one ace as 11 if the hand is soft.
  [[nodiscard]] int Total() const { return IsSoft() ? hardTotal_ + 10 : hardTotal_; }
  /// A hard total from 12 to 16: one card may take it over 21.
  [[nodiscard]] bool IsStiff() const { return !IsSoft() && hardTotal_ >= 12 && hardTotal_ <= 16; }
  [[nodiscard]] bool IsBust() const { return hardTotal_ > 21; }
  /// 21 with the first two cards of a hand that was not split.
  [[nodiscard]] bool IsBlackjack() const { return cards_.size() == 2 && Total() == 21 && !isAfterSplit_; }
  /// Two cards of equal points; ten-valued cards pair with each other.
  [[nodiscard]] bool IsPair() const;

  [[nodiscard]] bool IsAfterSplit() const { return isAfterSplit_; }
  [[nodiscard]] bool IsDoubled() const { return isDoubled_; }
  [[nodiscard]] bool IsSurrendered() const { return isSurrendered_; }

  /// Keeps the first card and returns a hand with the second; both are after a split from then on.
  /// Throws std::logic_error if the hand is no pair.
  [[nodiscard]] Hand Split();
  void MarkDoubled() { isDoubled_ = true; }
  void MarkSurrendered() { isSurrendered_ = true; }

 private:
  std::vector<Card> cards_;
  int hardTotal_ = 0;
  bool hasAce_ = false;
  bool isAfterSplit_ = false;
  bool isDoubled_ = false;
  bool isSurrendered_ = false;
};

}  // namespace trainer::engine
