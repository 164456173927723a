#include "trainer/engine/Predictions.h"

#include <algorithm>
#include <stdexcept>

namespace trainer::engine {

CardRange RangeOf(Rank rank) {
  const int points = PointsOf(rank);
  if (points == 1 || points == 10) return CardRange::High;
  return points <= 6 ? CardRange::Low : CardRange::Mid;
}

double TensRatio(int decks, std::span<const Card> seen) {
  const auto all = static_cast<std::ptrdiff_t>(decks) * 52;
  const auto left = all - static_cast<std::ptrdiff_t>(seen.size());
  if (left <= 0) throw std::invalid_argument("no card is left to be a ten");
  const auto seenTens = std::count_if(seen.begin(), seen.end(), [](Card card) { return PointsOf(card.rank) == 10; });
  return static_cast<double>(static_cast<std::ptrdiff_t>(decks) * 16 - seenTens) / static_cast<double>(left);
}

bool Predictions::PredictTensRatio(bool high, int decks, std::span<const Card> seen) {
  return Count((TensRatio(decks, seen) > FullDeckTensRatio) == high);
}

void Predictions::Forget() {
  hitCard_.reset();
  holeCard_.reset();
  dealerIsStrong_.reset();
}

std::optional<bool> Predictions::SeeDealerHand(const Hand& firstTwo) {
  if (!dealerIsStrong_) return std::nullopt;
  const bool right = *dealerIsStrong_ != firstTwo.IsStiff();
  dealerIsStrong_.reset();
  return Count(right);
}

std::optional<bool> Predictions::See(std::optional<CardRange>& predicted, Rank rank) {
  if (!predicted) return std::nullopt;
  const bool right = *predicted == RangeOf(rank);
  predicted.reset();
  return Count(right);
}

bool Predictions::Count(bool right) {
  ++made_;
  if (right) ++right_;
  return right;
}

}  // namespace trainer::engine
