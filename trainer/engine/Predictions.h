#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "trainer/engine/Card.h"
#include "trainer/engine/Hand.h"

namespace trainer::engine {

/// Low is two to six, mid seven to nine, high tens and aces: the groups by which counting systems see the cards.
enum class CardRange : std::uint8_t { Low = 1, Mid = 2, High = 3 };

[[nodiscard]] CardRange RangeOf(Rank rank);

/// The share of ten-valued cards, 0 ... 1, among those of `decks` decks that are not in `seen`.
/// Throws std::invalid_argument when `seen` holds as many cards as the decks, or more.
[[nodiscard]] double TensRatio(int decks, std::span<const Card> seen);

/// The share of ten-valued cards in a whole deck: 16 of 52.
inline constexpr double FullDeckTensRatio = 16.0 / 52.0;

/// What the player has predicted and not yet seen, and how often predictions came true.
class Predictions {
 public:
  /// A new prediction replaces the one before; an empty one takes it back.
  void PredictHitCard(std::optional<CardRange> range) { hitCard_ = range; }
  void PredictHoleCard(std::optional<CardRange> range) { holeCard_ = range; }
  void PredictDealerHand(std::optional<bool> strong) { dealerIsStrong_ = strong; }

  /// The hit card, or the hole card, has been seen; true or false if it was predicted.
  std::optional<bool> SeeHitCard(Rank rank) { return See(hitCard_, rank); }
  std::optional<bool> SeeHoleCard(Rank rank) { return See(holeCard_, rank); }
  /// The same for the dealer's first two cards: weak if they are stiff, else strong.
  std::optional<bool> SeeDealerHand(const Hand& firstTwo);

  /// Whether tens are over-represented among the cards not seen yet, judged at once.
  bool PredictTensRatio(bool high, int decks, std::span<const Card> seen);

  /// The round is over: what was not seen no longer counts.
  void Forget();

  [[nodiscard]] int Made() const { return made_; }
  [[nodiscard]] int Right() const { return right_; }

 private:
  std::optional<bool> See(std::optional<CardRange>& predicted, Rank rank);
  bool Count(bool right);

  std::optional<CardRange> hitCard_;
  std::optional<CardRange> holeCard_;
  std::optional<bool> dealerIsStrong_;
  int made_ = 0;
  int right_ = 0;
};

}  // namespace trainer::engine
