#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "trainer/engine/Card.h"

namespace trainer::engine {

/// Points are kept in halves, so that a system may have half points and no count is ever rounded.
inline constexpr int HalvesPerPoint = 2;

/// Which sevens have the points of the seven; the others have none.
enum class CountedSevens : std::uint8_t { All, Red };

/// Running count per so many decks left, in cards.
enum class TrueCountPer : std::uint8_t {
  None = 0,  ///< the running count is used as it is
  HalfDeck = CardsPerDeck / 2,
  Deck = CardsPerDeck,
};

/// A system of card counting: the points that a card adds to the running count when it is seen.
struct CountSystem {
  int number;                          ///< as count strategy lists number it
  std::string_view name;               ///< their caption
  std::array<std::int8_t, 10> halves;  ///< for the ace, 2 ... 9 and the cards of ten points, in halves
  CountedSevens sevens;
  int start;  ///< the running count of a fresh shoe, in whole points for each of its decks
  TrueCountPer per;
  std::string_view source;  ///< where the points were published

  /// What a card adds to the running count, in halves.
  [[nodiscard]] constexpr int HalvesOf(Card card) const {
    const bool red = card.suit == Suit::Diamonds || card.suit == Suit::Hearts;
    if (card.rank == Rank::Seven && sevens == CountedSevens::Red && !red) return 0;
    return halves[static_cast<std::size_t>(PointsOf(card.rank) - 1)];
  }

  /// What a whole deck adds to the running count, in points.
  [[nodiscard]] constexpr int DeckSum() const {
    int sum = 0;
    for (int suit = 0; suit < SuitCount; ++suit) {
      for (int rank = 1; rank <= RankCount; ++rank) {
        sum += HalvesOf({static_cast<Rank>(rank), static_cast<Suit>(suit)});
      }
    }
    return sum / HalvesPerPoint;
  }

  /// The count of a whole deck ends where it began.
  [[nodiscard]] constexpr bool IsBalanced() const { return DeckSum() == 0; }

  /// The highest points of a card without their sign, rounded up to a whole number.
  [[nodiscard]] constexpr int Level() const {
    int highest = 0;
    for (const int each : halves) {
      const int size = each < 0 ? -each : each;
      if (size > highest) highest = size;
    }
    return (highest + HalvesPerPoint - 1) / HalvesPerPoint;
  }
};

/// The systems whose points are known, by rising numbers: those that were published, and the house's own, the Kelvo
/// systems. docs/count-systems.md lists them, and the systems that have a number and no points.
[[nodiscard]] std::span<const CountSystem> CountSystems();

/// Null for a number whose points are not known.
[[nodiscard]] const CountSystem* FindCountSystem(int number);

}  // namespace trainer::engine
