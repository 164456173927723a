#include "trainer/engine/Counter.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <vector>

namespace trainer::engine {
namespace {

constexpr int Uston = 13;
constexpr int UstonSS = 14;
constexpr int AceFive = 15;
constexpr int House = 16;
constexpr int RevereAPC = 25;
constexpr int Thorp = 29;
constexpr int RedSeven = 32;
constexpr int Zen = 33;

std::vector<Card> Deck() {
  std::vector<Card> deck;
  for (int suit = 0; suit < SuitCount; ++suit) {
    for (int rank = 1; rank <= RankCount; ++rank) deck.push_back({static_cast<Rank>(rank), static_cast<Suit>(suit)});
  }
  return deck;
}

/// Worked out by hand.
TEST(CounterTest, AddsUpTheCardsSeen) {
  // 5, king, ace, 2, 9, red 7, black 7, 6, jack, 3, 8, 4
  const std::vector<Card> seen = {
      {Rank::Five, Suit::Clubs},    {Rank::King, Suit::Hearts},  {Rank::Ace, Suit::Spades},   {Rank::Two, Suit::Hearts},
      {Rank::Nine, Suit::Diamonds}, {Rank::Seven, Suit::Hearts}, {Rank::Seven, Suit::Spades}, {Rank::Six, Suit::Clubs},
      {Rank::Jack, Suit::Clubs},    {Rank::Three, Suit::Hearts}, {Rank::Eight, Suit::Clubs},  {Rank::Four, Suit::Clubs},
  };
  struct Row {
    int system;
    std::vector<int> halves;  ///< after each card
  };
  const Row rows[] = {
      {Uston, {6, 0, 0, 2, 0, 4, 8, 12, 6, 10, 12, 16}},
      {AceFive, {2, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
      {House, {5, 1, -3, 0, -1, 1, 3, 7, 3, 6, 6, 10}},
      {RevereAPC, {8, 2, -6, -2, -4, 0, 4, 10, 4, 10, 10, 16}},
      {Thorp, {22, 8, -10, 0, -6, 2, 10, 22, 8, 20, 20, 36}},
      {Zen, {4, 0, -2, 0, 0, 2, 4, 8, 4, 6, 6, 10}},
      {RedSeven, {-2, -4, -6, -4, -4, -2, -2, 0, -2, 0, 0, 2}},  // from -2 points, in one deck
      {UstonSS, {-2, -6, -10, -6, -8, -6, -4, 0, -4, 0, 0, 4}},  // from -4 points
  };
  for (const Row& row : rows) {
    Counter counter(*FindCountSystem(row.system), 1);
    std::vector<int> halves;
    for (const Card card : seen) {
      counter.See(card);
      halves.push_back(counter.RunningHalves());
    }
    EXPECT_EQ(halves, row.halves) << row.system;
    EXPECT_EQ(counter.System().number, row.system);

    Counter atOnce(*FindCountSystem(row.system), 1);
    atOnce.See(seen);
    EXPECT_EQ(atOnce.RunningHalves(), row.halves.back()) << row.system;
  }
}

TEST(CounterTest, BeginsAsTheShoeSays) {
  EXPECT_EQ(Counter(*FindCountSystem(Zen), 6).RunningCount(), 0);
  EXPECT_EQ(Counter(*FindCountSystem(RedSeven), 1).RunningCount(), -2);
  EXPECT_EQ(Counter(*FindCountSystem(RedSeven), 6).RunningCount(), -12);
  EXPECT_EQ(Counter(*FindCountSystem(UstonSS), 8).RunningCount(), -32);
  EXPECT_THROW(Counter(*FindCountSystem(Zen), 0), std::invalid_argument);
}

TEST(CounterTest, EndsAWholeShoeWhereItShould) {
  for (const CountSystem& system : CountSystems()) {
    Counter counter(system, 2);
    counter.See(Deck());
    counter.See(Deck());
    EXPECT_EQ(counter.RunningHalves(), HalvesPerPoint * 2 * (system.start + system.DeckSum())) << system.name;
    if (system.start != 0 || system.IsBalanced()) {
      EXPECT_EQ(counter.RunningCount(), 0) << system.name;
    }
  }
}

TEST(CounterTest, BeginsAgainAfterAShuffle) {
  Counter counter(*FindCountSystem(RedSeven), 2);
  counter.See({Rank::Five, Suit::Clubs});
  EXPECT_EQ(counter.RunningCount(), -3);
  counter.Restart();
  EXPECT_EQ(counter.RunningCount(), -4);
}

TEST(CounterTest, RoundsDown) {
  Counter counter(*FindCountSystem(House), 1);
  counter.See({Rank::Two, Suit::Clubs});
  EXPECT_EQ(counter.RunningHalves(), 3);
  EXPECT_EQ(counter.RunningCount(), 1);
  counter.See({Rank::Ten, Suit::Clubs});
  EXPECT_EQ(counter.RunningHalves(), -1);
  EXPECT_EQ(counter.RunningCount(), -1);
  counter.See({Rank::Nine, Suit::Clubs});
  EXPECT_EQ(counter.RunningHalves(), -2);
  EXPECT_EQ(counter.RunningCount(), -1);
}

TEST(CounterTest, MakesTheCountTrue) {
  const Card low{Rank::Five, Suit::Hearts};
  const Card high{Rank::King, Suit::Hearts};
  const Card nine{Rank::Nine, Suit::Hearts};
  struct Row {
    int system;
    std::vector<Card> seen;
    int cardsLeft;
    std::optional<int> trueCount;
  };
  const Row rows[] = {
      {Zen, {}, 52, 0},
      {Zen, {low, low}, 104, 2},                 // 4 / 2
      {Zen, {low, low}, 105, 1},                 // a little less than 2
      {Zen, {low, low}, 103, 2},                 // a little more
      {Zen, {low, low}, 52, 4},                  // 4
      {Zen, {low, low}, 26, 8},                  // 4 / (1/2)
      {Zen, {low, low}, 1, 208},                 // the last card
      {Zen, {high}, 104, -1},                    // -2 / 2
      {Zen, {high}, 103, -2},                    // a little lower
      {Zen, {high}, 105, -1},                    // a little higher: -0.99
      {Zen, {high}, 300, -1},                    // -0.35
      {Zen, {low}, 300, 0},                      // 0.35
      {House, {low}, 52, 2},                     // 2.5: the half counts and is not rounded first
      {House, {low}, 26, 5},                     // 5
      {House, {nine}, 52, -1},                   // -0.5
      {House, {nine}, 26, -1},                   // -1
      {Uston, {low, low}, 52, 3},                // 6 / 2 half decks
      {Uston, {low, low}, 26, 6},                // 6 / 1 half deck
      {Uston, {high}, 104, -1},                  // -3 / 4 half decks
      {RedSeven, {low, low}, 52, std::nullopt},  // used as it is
      {AceFive, {low}, 26, std::nullopt},
  };
  for (const Row& row : rows) {
    Counter counter(*FindCountSystem(row.system), 6);
    counter.See(row.seen);
    EXPECT_EQ(counter.TrueCount(row.cardsLeft), row.trueCount) << row.system << " with " << row.cardsLeft << " cards";
  }
  const Counter counter(*FindCountSystem(Zen), 1);
  EXPECT_THROW(static_cast<void>(counter.TrueCount(0)), std::invalid_argument);
  EXPECT_THROW(static_cast<void>(Counter(*FindCountSystem(RedSeven), 1).TrueCount(0)), std::invalid_argument);
}

}  // namespace
}  // namespace trainer::engine
