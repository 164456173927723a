#include "trainer/engine/Counter.h"

#include <stdexcept>

#include "trainer/engine/Rounding.h"

namespace trainer::engine {

Counter::Counter(const CountSystem& system, int decks) : system_(&system), decks_(decks) {
  if (decks < 1) throw std::invalid_argument("a shoe has at least one deck");
  Restart();
}

void Counter::See(Card card) { runningHalves_ += system_->HalvesOf(card); }

void Counter::See(std::span<const Card> cards) {
  for (const Card card : cards) See(card);
}

void Counter::Restart() { runningHalves_ = system_->start * decks_ * HalvesPerPoint; }

int Counter::RunningCount() const { return static_cast<int>(DividedDown(runningHalves_, HalvesPerPoint)); }

std::optional<int> Counter::TrueCount(int cardsLeft) const {
  if (cardsLeft < 1) throw std::invalid_argument("a true count needs cards left");
  if (system_->per == TrueCountPer::None) return std::nullopt;
  const std::int64_t divided = std::int64_t{runningHalves_} * static_cast<int>(system_->per);
  return static_cast<int>(DividedDown(divided, std::int64_t{HalvesPerPoint} * cardsLeft));
}

}  // namespace trainer::engine
