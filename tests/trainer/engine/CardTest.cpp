#include "trainer/engine/Card.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace trainer::engine {
namespace {

TEST(CardTest, NamesAndPoints) {
  struct Row {
    Card card;
    const char* name;
    int points;
  };
  const Row rows[] = {
      {{Rank::Ace, Suit::Spades}, "As", 1},   {{Rank::Two, Suit::Clubs}, "2c", 2},
      {{Rank::Nine, Suit::Hearts}, "9h", 9},  {{Rank::Ten, Suit::Diamonds}, "Td", 10},
      {{Rank::Jack, Suit::Clubs}, "Jc", 10},  {{Rank::Queen, Suit::Hearts}, "Qh", 10},
      {{Rank::King, Suit::Spades}, "Ks", 10},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(NameOf(row.card), row.name);
    EXPECT_EQ(PointsOf(row.card.rank), row.points) << row.name;
  }
}

TEST(CardTest, EveryCardOfADeckHasItsOwnName) {
  std::set<std::string> names;
  for (int suit = 0; suit < SuitCount; ++suit) {
    for (int rank = 1; rank <= RankCount; ++rank) {
      names.insert(NameOf({static_cast<Rank>(rank), static_cast<Suit>(suit)}));
    }
  }
  EXPECT_EQ(names.size(), 52U);
}

}  // namespace
}  // namespace trainer::engine
