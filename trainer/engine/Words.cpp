#include "trainer/engine/Words.h"

#include <array>
#include <cstdlib>

namespace trainer::engine {

std::string_view WordFor(Decision decision) {
  constexpr std::array<std::string_view, 6> words = {"", "Hit", "Stand", "Split", "Double", "Surrender"};
  return words.at(static_cast<std::size_t>(decision));
}

std::string WordFor(Rank rank) { return rank == Rank::Ace ? "ace" : std::to_string(PointsOf(rank)); }

std::string WordFor(const Hand& hand) {
  if (hand.IsBlackjack()) return "blackjack";
  if (hand.IsBust()) return "bust with " + std::to_string(hand.Total());
  if (hand.IsPair()) return "pair of " + WordFor(hand.Cards()[0].rank) + "s";
  return (hand.IsSoft() ? "soft " : "") + std::to_string(hand.Total());
}

std::string_view WordFor(Outcome outcome) {
  constexpr std::array<std::string_view, 6> words = {"wins", "loses", "push", "blackjack", "surrendered", "bust"};
  return words.at(static_cast<std::size_t>(outcome));
}

std::string Amount(Money cents) {
  const Money odd = std::abs(cents) % 100;
  std::string text = std::to_string(std::abs(cents) / 100);
  if (odd != 0) text += (odd < 10 ? ".0" : ".") + std::to_string(odd);
  return text;
}

std::string SignedAmount(Money cents) {
  const std::string amount = Amount(cents);
  if (cents == 0) return amount;
  return (cents < 0 ? "-" : "+") + amount;
}

}  // namespace trainer::engine
