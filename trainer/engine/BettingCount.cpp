#include "trainer/engine/BettingCount.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>

#include "trainer/engine/Rounding.h"

namespace trainer::engine {

namespace {

/// The effects of removal: what the player gains when one such card is gone from a single deck, in hundredths of a
/// percent of the bet; ace, 2 ... 9, ten. Griffin, The Theory of Blackjack, 1979.
constexpr std::array<int, 10> EffectsOfRemoval = {-61, 38, 44, 55, 69, 46, 28, 0, -18, -51};
/// What 1 in the betting count stands for, in the same unit: half a percent of the bet.
constexpr int EffectOfOne = 50;

/// The points of a card in halves. A system that gives the ace no points does so for the sake of playing decisions. For
/// bets an ace is worth at least a ten, so it gets a ten's points, which others do with a side count of aces.
int BettingHalvesOf(const CountSystem& system, Card card) {
  const int halves = system.HalvesOf(card);
  if (card.rank != Rank::Ace || halves != 0) return halves;
  return -std::abs(system.HalvesOf({Rank::Ten, card.suit}));
}

/// Sums over a deck. They and all that is worked out from them are whole numbers, so that nothing is rounded but the
/// result.
struct DeckSums {
  std::int64_t halves = 0;
  std::int64_t halvesSquared = 0;
  std::int64_t effects = 0;
  std::int64_t products = 0;
};

DeckSums SumsOf(const CountSystem& system) {
  DeckSums sums;
  for (int suit = 0; suit < SuitCount; ++suit) {
    for (int rank = 1; rank <= RankCount; ++rank) {
      const Card card{static_cast<Rank>(rank), static_cast<Suit>(suit)};
      const int halves = BettingHalvesOf(system, card);
      const int effect = EffectsOfRemoval[static_cast<std::size_t>(PointsOf(card.rank) - 1)];
      sums.halves += halves;
      sums.halvesSquared += std::int64_t{halves} * halves;
      sums.effects += effect;
      sums.products += std::int64_t{halves} * effect;
    }
  }
  return sums;
}

}  // namespace

int BettingCount(const CountSystem& system, int decks, std::span<const Card> seen) {
  if (decks < 1) throw std::invalid_argument("a shoe has at least one deck");
  const auto count = static_cast<std::int64_t>(seen.size());
  const std::int64_t left = std::int64_t{decks} * CardsPerDeck - count;
  if (left < 0) throw std::invalid_argument("more cards have been seen than the decks have");
  if (left == 0) return 0;

  std::int64_t running = 0;
  for (const Card card : seen) running += BettingHalvesOf(system, card);
  const DeckSums deck = SumsOf(system);
  // How far the count is above what as many cards have on average, times the deck's size. The start of an unbalanced
  // system plays no part in it.
  const std::int64_t surplus = CardsPerDeck * running - count * deck.halves;
  // By least squares over the deck, half a point is worth product / square. The surplus is too large by the deck's
  // size, and so is `left`, which counts cards instead of decks: the two factors cancel out.
  const std::int64_t product = CardsPerDeck * deck.products - deck.halves * deck.effects;
  const std::int64_t square = CardsPerDeck * deck.halvesSquared - deck.halves * deck.halves;
  return static_cast<int>(DividedDown(product * surplus, square * left * EffectOfOne));
}

}  // namespace trainer::engine
