#pragma once

#include <cstdint>
#include <string>

namespace trainer::engine {

/// In ascending alphabetical order, so that a suit's value is an index into a picture table.
enum class Suit : std::uint8_t { Clubs, Diamonds, Hearts, Spades };

/// The values are the pips on the card; the faces follow the ten.
enum class Rank : std::uint8_t { Ace = 1, Two, Three, Four, Five, Six, Seven, Eight, Nine, Ten, Jack, Queen, King };

inline constexpr int SuitCount = 4;
inline constexpr int RankCount = 13;
inline constexpr int CardsPerDeck = SuitCount * RankCount;

struct Card {
  Rank rank = Rank::Ace;
  Suit suit = Suit::Clubs;

  bool operator==(const Card&) const = default;
};

/// What the card adds to a hard total: 1 for the ace, 10 for the ten and the faces.
[[nodiscard]] constexpr int PointsOf(Rank rank) {
  const int pips = static_cast<int>(rank);
  return pips < 10 ? pips : 10;
}

/// Rank letter of A23456789TJQK and suit letter of cdhs: "As", "Td", "7h".
[[nodiscard]] std::string NameOf(Card card);

}  // namespace trainer::engine
