#include "trainer/engine/BettingCount.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <vector>

#include "trainer/engine/Counter.h"

namespace trainer::engine {
namespace {

constexpr int SimpleCount = 11;
constexpr int HalfDecks = 12;
constexpr int LevelThree = 13;
constexpr int FivesAndAces = 15;
constexpr int Halves = 16;
constexpr int AceNeutral = 21;
constexpr int LevelEleven = 29;
constexpr int RedSevens = 32;
constexpr int AcesAgainstAll = 36;

/// So many cards of a rank and a suit.
struct Some {
  int count;
  Rank rank;
  Suit suit = Suit::Clubs;
};

std::vector<Card> CardsOf(const std::vector<Some>& groups) {
  std::vector<Card> cards;
  for (const Some& group : groups)
    cards.insert(cards.end(), static_cast<std::size_t>(group.count), {group.rank, group.suit});
  return cards;
}

std::vector<Card> Decks(int count) {
  std::vector<Card> cards;
  for (int rank = 1; rank <= RankCount; ++rank) {
    for (int suit = 0; suit < SuitCount; ++suit) {
      cards.insert(cards.end(), static_cast<std::size_t>(count), {static_cast<Rank>(rank), static_cast<Suit>(suit)});
    }
  }
  return cards;
}

int CountOf(int system, int decks, const std::vector<Card>& seen) {
  return BettingCount(*FindCountSystem(system), decks, seen);
}

/// Worked out by hand: points less what as many cards of a deck have, times the worth of a point in percent, for each
/// deck left, in half percents.
TEST(BettingCountTest, WorkedOutByHand) {
  const std::vector<Some> low = {{3, Rank::Five}, {1, Rank::Six}};
  const std::vector<Some> high = {{2, Rank::Ten}, {2, Rank::King}, {1, Rank::Ace}};
  const std::vector<Some> aces = {{4, Rank::Ace}};
  const std::vector<Some> redSevens = {{1, Rank::Seven, Suit::Hearts}, {1, Rank::Seven, Suit::Diamonds}};
  const std::vector<Some> blackSevens = {{1, Rank::Seven, Suit::Spades}, {1, Rank::Seven, Suit::Clubs}};
  struct Row {
    const char* name;
    int system;
    int decks;
    std::vector<Some> seen;
    int count;
  };
  const Row rows[] = {
      // 4 low cards, 48 left
      {"a running count", SimpleCount, 1, low, 4},             // 4 x 0.507 / (48/52) / 0.5 = 4.39
      {"the same by half decks", HalfDecks, 1, low, 4},        // as before: the divisor is the system's affair
      {"level three", LevelThree, 1, low, 5},                  // (11 + 4 x 12/52) x 0.194 ... = 5.01
      {"an ace as a ten", AceNeutral, 1, low, 5},              // (4 + 4 x 4/52) x 0.537 ... = 5.01
      {"level eleven", LevelEleven, 1, low, 5},                // 39 x 0.0697 ... = 5.89
      {"unbalanced", RedSevens, 1, low, 4},                    // (4 - 4 x 2/52) x 0.507 ... = 4.22
      {"half points", Halves, 1, low, 5},                      // 9.5 x 0.266 ... = 5.48
      {"aces against all others", AcesAgainstAll, 1, low, 2},  // 4 x 0.254 ... = 2.20
      // 4 tens and an ace, 47 left
      {"a running count, below", SimpleCount, 1, high, -6},             // -5 x 0.507 / (47/52) / 0.5 = -5.61
      {"level three, below", LevelThree, 1, high, -6},                  // (-15 + 5 x 12/52) x 0.194 ... = -5.95
      {"an ace as a ten, below", AceNeutral, 1, high, -6},              // (-5 + 5 x 4/52) x 0.537 ... = -5.48
      {"level eleven, below", LevelEleven, 1, high, -6},                // -37 x 0.0697 ... = -5.71
      {"unbalanced, below", RedSevens, 1, high, -6},                    // (-5 - 5 x 2/52) x 0.507 ... = -5.82
      {"half points, below", Halves, 1, high, -6},                      // -10 x 0.266 ... = -5.89
      {"aces against all others, below", AcesAgainstAll, 1, high, -5},  // -8 x 0.254 ... = -4.49
      // The aces, which have points or not
      {"aces with points", SimpleCount, 1, aces, -5},                  // -4 x 0.507 / (48/52) / 0.5 = -4.39
      {"aces without points", AceNeutral, 1, aces, -5},                // (-4 + 4 x 4/52) x 0.537 ... = -4.29
      {"aces as tens of level three", LevelThree, 1, aces, -5},        // (-12 + 4 x 12/52) x 0.194 ... = -4.66
      {"aces without tens", FivesAndAces, 1, aces, -6},                // -4 x 0.65 ... = -5.63
      {"aces against all others, gone", AcesAgainstAll, 1, aces, -9},  // -16 x 0.254 ... = -8.79
      // Sevens of one colour, 50 left
      {"red sevens", RedSevens, 1, redSevens, 2},              // (2 - 2 x 2/52) x 0.507 / (50/52) / 0.5 = 2.03
      {"black sevens", RedSevens, 1, blackSevens, -1},         // (0 - 2 x 2/52) x 0.507 ... = -0.08
      {"sevens without points", AceNeutral, 1, redSevens, 0},  // (0 + 2 x 4/52) x 0.537 ... = 0.17
      // Neither the effects of removal nor the points of HI-Opt II, with aces as tens, are 0 on the average: the slope
      // is
      // 0.29456, and 0.29471 would be too much. (16 + 8 x 8/52) x 0.29456 / (44/52) / 0.5 = 11.997
      {"the slope", 22, 1, {{4, Rank::Four}, {4, Rank::Five}}, 11},
      // A shoe
      {"six decks", LevelThree, 6, {{20, Rank::Eight}}, 1},  // (20 + 20 x 12/52) x 0.194 / (292/52) / 0.5 = 1.70
      {"a half point", Halves, 1, {{3, Rank::Two}, {1, Rank::Nine}}, 2},  // 4 x 0.266 / (48/52) / 0.5 = 2.31
  };
  for (const Row& row : rows) EXPECT_EQ(CountOf(row.system, row.decks, CardsOf(row.seen)), row.count) << row.name;
}

/// A five or an ace is worth 0.65 % in this system; with six decks and a half left, ten of them are one percent.
TEST(BettingCountTest, IsExactUntilItIsRoundedDown) {
  struct Row {
    const char* name;
    Rank rank;
    int others;
    int count;
  };
  const Row rows[] = {
      {"exactly 2", Rank::Five, 68, 2},
      {"a little less than 2", Rank::Five, 67, 1},
      {"exactly -2", Rank::Ace, 68, -2},
      {"a little more than -2", Rank::Ace, 67, -2},
      {"a little less than -2", Rank::Ace, 69, -3},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(CountOf(FivesAndAces, 8, CardsOf({{10, row.rank}, {row.others, Rank::Two}})), row.count) << row.name;
  }
}

TEST(BettingCountTest, IsNothingInAFreshShoeAndWhenDecksHaveGoneEvenly) {
  for (const CountSystem& system : CountSystems()) {
    for (int decks = 1; decks <= 8; ++decks) {
      for (int gone = 0; gone <= decks; ++gone) {
        EXPECT_EQ(BettingCount(system, decks, Decks(gone)), 0) << system.name << ", " << gone << " of " << decks;
      }
    }
  }
}

/// A deck of the two is gone: four low cards more than it has, and two tens and an ace less. Or the other one.
TEST(BettingCountTest, SaysTheSameInEverySystem) {
  const std::vector<Card> seen = CardsOf({{3, Rank::Ace},
                                          {4, Rank::Two},
                                          {5, Rank::Three},
                                          {5, Rank::Four},
                                          {5, Rank::Five},
                                          {5, Rank::Six},
                                          {2, Rank::Seven},
                                          {2, Rank::Seven, Suit::Hearts},
                                          {4, Rank::Eight},
                                          {3, Rank::Nine},
                                          {14, Rank::King}});
  const std::vector<Card> rest = CardsOf({{5, Rank::Ace},
                                          {4, Rank::Two},
                                          {3, Rank::Three},
                                          {3, Rank::Four},
                                          {3, Rank::Five},
                                          {3, Rank::Six},
                                          {2, Rank::Seven},
                                          {2, Rank::Seven, Suit::Hearts},
                                          {4, Rank::Eight},
                                          {5, Rank::Nine},
                                          {18, Rank::King}});
  struct Row {
    int system;
    int count;
    int rest;
  };
  const Row rows[] = {
      {11, 7, -8},
      {12, 7, -8},
      {13, 7, -8},
      {14, 7, -8},
      {16, 7, -8},
      {17, 7, -8},
      {18, 7, -8},
      {19, 7, -8},
      {20, 7, -8},
      {21, 7, -8},
      {22, 7, -8},
      {23, 7, -8},
      {24, 7, -8},
      {25, 7, -8},
      {29, 7, -8},
      {30, 7, -8},
      {31, 7, -8},
      {32, 7, -8},
      {33, 6, -7},
      {35, 7, -8},
      // These see less of it: fives and aces only, and all cards that are no tens or aces alike.
      {FivesAndAces, 2, -3},
      {AcesAgainstAll, 4, -5},
  };
  std::set<int> systems;
  for (const Row& row : rows) {
    EXPECT_EQ(CountOf(row.system, 2, seen), row.count) << row.system;
    EXPECT_EQ(CountOf(row.system, 2, rest), row.rest) << row.system;
    systems.insert(row.system);
  }
  EXPECT_EQ(systems.size(), CountSystems().size());
}

/// In docs/count-systems.md: (10 - 6 - 1 + 2) x 0.537 % / 1.5 decks / 0.5 % = 3.58.
TEST(BettingCountTest, TheDocumentedExample) {
  const std::vector<Card> seen = CardsOf({{10, Rank::Four}, {6, Rank::Ten}, {1, Rank::Ace}, {9, Rank::Eight}});
  Counter counter(*FindCountSystem(AceNeutral), 2);
  counter.See(seen);
  EXPECT_EQ(counter.RunningCount(), 4);
  EXPECT_EQ(counter.TrueCount(104 - 26), 2);
  EXPECT_EQ(CountOf(AceNeutral, 2, seen), 3);
}

TEST(BettingCountTest, RefusesWhatIsNoShoe) {
  const CountSystem& system = *FindCountSystem(SimpleCount);
  EXPECT_THROW(static_cast<void>(BettingCount(system, 0, {})), std::invalid_argument);
  const std::vector<Card> tooMany = CardsOf({{53, Rank::Eight}});
  EXPECT_THROW(static_cast<void>(BettingCount(system, 1, tooMany)), std::invalid_argument);
  EXPECT_EQ(BettingCount(system, 2, tooMany), 0);
}

}  // namespace
}  // namespace trainer::engine
