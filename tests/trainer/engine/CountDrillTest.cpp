#include "trainer/engine/CountDrill.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace trainer::engine {
namespace {

constexpr int HiOptI = 21;
constexpr int RedSeven = 32;

const CountSystem& SystemOf(int number) { return *FindCountSystem(number); }

TEST(CountDrillTest, CountsWhatItHasShown) {
  CountDrill drill(SystemOf(HiOptI), 2, 30, 5);
  EXPECT_EQ(drill.Cards(), 30);
  int running = 0;
  for (int shown = 0; shown < 30; ++shown) {
    EXPECT_EQ(drill.Shown(), shown);
    EXPECT_FALSE(drill.IsOver());
    const int points = PointsOf(drill.Next().rank);
    running += points >= 3 && points <= 6 ? 1 : points == 10 ? -1 : 0;
    EXPECT_EQ(drill.RunningCount(), running);
  }
  EXPECT_TRUE(drill.IsOver());
  EXPECT_THROW(drill.Next(), std::logic_error);
  EXPECT_EQ(drill.OffBy(running), 0);
  EXPECT_EQ(drill.OffBy(running + 2), 2);
  EXPECT_EQ(drill.OffBy(running - 3), -3);
}

TEST(CountDrillTest, AWholeDeckOfABalancedSystemEndsAtZero) {
  CountDrill drill(SystemOf(HiOptI), 1, 52, 9);
  while (!drill.IsOver()) drill.Next();
  EXPECT_EQ(drill.RunningCount(), 0);
}

TEST(CountDrillTest, BeginsWhereTheSystemBegins) {
  EXPECT_EQ(CountDrill(SystemOf(RedSeven), 6, 10, 1).RunningCount(), -12);
}

TEST(CountDrillTest, TheSeedSaysWhichCards) {
  const auto cardsOf = [](std::uint64_t seed) {
    CountDrill drill(SystemOf(HiOptI), 1, 52, seed);
    std::vector<Card> cards;
    while (!drill.IsOver()) cards.push_back(drill.Next());
    return cards;
  };
  EXPECT_EQ(cardsOf(3), cardsOf(3));
  EXPECT_NE(cardsOf(3), cardsOf(4));
}

TEST(CountDrillTest, RefusesWhatItCannotDeal) {
  struct Row {
    const char* name;
    int decks;
    int cards;
  };
  for (const Row& row : {Row{"no card", 1, 0}, {"too many", 1, 53}, {"no deck", 0, 1}, {"too many decks", 9, 10}}) {
    EXPECT_THROW(CountDrill(SystemOf(HiOptI), row.decks, row.cards, 1), std::invalid_argument) << row.name;
  }
}

}  // namespace
}  // namespace trainer::engine
