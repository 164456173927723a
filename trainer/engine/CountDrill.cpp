#include "trainer/engine/CountDrill.h"

#include <stdexcept>

namespace trainer::engine {

CountDrill::CountDrill(const CountSystem& system, int decks, int cards, std::uint64_t seed)
    : counter_(system, decks), shoe_(decks, seed), cards_(cards) {
  if (cards < 1 || cards > decks * CardsPerDeck)
    throw std::invalid_argument("a drill has one card to all of its decks");
}

Card CountDrill::Next() {
  if (IsOver()) throw std::logic_error("the drill has shown all of its cards");
  ++shown_;
  const Card card = shoe_.Draw();
  counter_.See(card);
  return card;
}

}  // namespace trainer::engine
