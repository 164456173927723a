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
/// What one of the bets' counts stands for, in the same unit.
constexpr int EffectOfOne = 50;

/// The points of a card in halves. An ace without points is one for the play of hands; for bets it is as good as a ten
/// at the least, which is what a side count of aces corrects.
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
  // Against the points that as many cards have on the average: the unbalanced start falls out.
  const std::int64_t surplus = CardsPerDeck * running - count * deck.halves;
  // What a half is worth, by least squares over the deck: product / square. The deck's size, by which the surplus is
  // too large, is the same by which the cards left are more than the decks left.
  const std::int64_t product = CardsPerDeck * deck.products - deck.halves * deck.effects;
  const std::int64_t square = CardsPerDeck * deck.halvesSquared - deck.halves * deck.halves;
  return static_cast<int>(DividedDown(product * surplus, square * left * EffectOfOne));
}

}  // namespace trainer::engine
