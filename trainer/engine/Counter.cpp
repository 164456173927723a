#include "trainer/engine/Counter.h"

#include <stdexcept>

namespace trainer::engine {

namespace {

/// Towards lower numbers, where the language divides towards zero. The divisor is positive.
constexpr int DividedDown(int number, int divisor) {
  const int quotient = number / divisor;
  return number % divisor < 0 ? quotient - 1 : quotient;
}

}  // namespace

Counter::Counter(const CountSystem& system, int decks) : system_(&system), decks_(decks) {
  if (decks < 1) throw std::invalid_argument("a shoe has at least one deck");
  Restart();
}

void Counter::See(Card card) { runningHalves_ += system_->HalvesOf(card); }

void Counter::See(std::span<const Card> cards) {
  for (const Card card : cards) See(card);
}

void Counter::Restart() { runningHalves_ = system_->start * decks_ * HalvesPerPoint; }

int Counter::RunningCount() const { return DividedDown(runningHalves_, HalvesPerPoint); }

std::optional<int> Counter::TrueCount(int cardsLeft) const {
  if (cardsLeft < 1) throw std::invalid_argument("a true count needs cards left");
  if (system_->per == TrueCountPer::None) return std::nullopt;
  return DividedDown(runningHalves_ * static_cast<int>(system_->per), HalvesPerPoint * cardsLeft);
}

}  // namespace trainer::engine
