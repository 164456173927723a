#include "trainer/engine/Shoe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace trainer::engine {
namespace {

std::string Draw(Shoe& shoe, std::size_t count) {
  std::string names;
  for (std::size_t drawn = 0; drawn < count; ++drawn) names += (drawn == 0 ? "" : " ") + NameOf(shoe.Draw());
  return names;
}

std::map<std::string, int> CountByName(std::span<const Card> cards) {
  std::map<std::string, int> counts;
  for (const Card card : cards) ++counts[NameOf(card)];
  return counts;
}

TEST(ShoeTest, DealsTheSameCardsForTheSameSeedOnEveryPlatform) {
  Shoe shoe(6, 7);
  EXPECT_EQ(Draw(shoe, 10), "Ad Kc 4d 3d 9c 6c Kd Js Qs Jd");
  shoe.Shuffle();
  EXPECT_EQ(Draw(shoe, 10), "Qh 3d 2c Jh Ac 4h 6c 2d Kc 7c");
}

TEST(ShoeTest, AnotherSeedDealsOtherCards) {
  Shoe seven(6, 7);
  Shoe eight(6, 8);
  EXPECT_NE(Draw(seven, 52), Draw(eight, 52));
}

TEST(ShoeTest, HoldsEveryCardOncePerDeck) {
  for (int decks = 1; decks <= 8; ++decks) {
    SCOPED_TRACE(decks);
    Shoe shoe(decks, 3);
    EXPECT_EQ(shoe.Decks(), decks);
    const auto size = static_cast<std::size_t>(decks) * 52;
    EXPECT_EQ(shoe.RemainingCount(), size);
    Draw(shoe, size);
    EXPECT_EQ(shoe.RemainingCount(), 0U);
    const auto counts = CountByName(shoe.Dealt());
    EXPECT_EQ(counts.size(), 52U);
    for (const auto& [name, count] : counts) EXPECT_EQ(count, decks) << name;
  }
}

TEST(ShoeTest, EveryPlaceOfTheShoeGetsEveryCardAboutEquallyOften) {
  Shoe shoe(1, 11);
  std::map<std::string, int> first;
  std::map<std::string, int> last;
  constexpr int Shuffles = 20'800;
  for (int round = 0; round < Shuffles; ++round) {
    shoe.Shuffle();
    ++first[NameOf(shoe.Draw())];
    Draw(shoe, 50);
    ++last[NameOf(shoe.Draw())];
  }
  ASSERT_EQ(first.size(), 52U);
  ASSERT_EQ(last.size(), 52U);
  // 400 expected, standard deviation 20.
  for (const auto& [name, count] : first) EXPECT_NEAR(count, 400, 85) << name;
  for (const auto& [name, count] : last) EXPECT_NEAR(count, 400, 85) << name;
}

TEST(ShoeTest, RefusesOtherNumbersOfDecks) {
  for (const int decks : {-1, 0, 9}) {
    try {
      Shoe shoe(decks, 1);
      ADD_FAILURE() << decks;
    } catch (const std::invalid_argument& error) {
      EXPECT_EQ(error.what(), "a shoe holds 1 to 8 decks, not " + std::to_string(decks));
    }
  }
}

TEST(ShoeTest, RefusesOtherPenetrations) {
  for (const double penetration : {0.0, 0.09, 0.96, 1.0, -0.5, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_THROW(Shoe(6, 1, penetration), std::invalid_argument) << penetration;
  }
  EXPECT_NO_THROW(Shoe(6, 1, 0.1));
  EXPECT_NO_THROW(Shoe(6, 1, 0.95));
}

TEST(ShoeTest, NeedsAShuffleOnceTheCutCardIsNext) {
  struct Row {
    const char* name;
    int decks;
    double penetration;
    std::size_t cardsBeforeTheCutCard;
  };
  const Row rows[] = {
      {"three quarters of six decks", 6, 0.75, 234},
      {"the least", 1, 0.1, 5},
      {"the most", 8, 0.95, 395},
      {"half a deck", 1, 0.5, 26},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Shoe shoe(row.decks, 5, row.penetration);
    EXPECT_FALSE(shoe.NeedsShuffle());
    Draw(shoe, row.cardsBeforeTheCutCard - 1);
    EXPECT_FALSE(shoe.NeedsShuffle());
    Draw(shoe, 1);
    EXPECT_TRUE(shoe.NeedsShuffle());
    shoe.Shuffle();
    EXPECT_FALSE(shoe.NeedsShuffle());
  }
}

TEST(ShoeTest, ThePenetrationIsThreeQuartersUnlessGiven) {
  Shoe shoe(1, 5);
  Draw(shoe, 38);
  EXPECT_FALSE(shoe.NeedsShuffle());
  Draw(shoe, 1);
  EXPECT_TRUE(shoe.NeedsShuffle());
}

TEST(ShoeTest, ShowsTheDealtCardsOldestFirst) {
  Shoe shoe(2, 9);
  EXPECT_TRUE(shoe.Dealt().empty());
  std::vector<Card> drawn;
  for (int count = 0; count < 20; ++count) drawn.push_back(shoe.Draw());
  EXPECT_EQ(std::vector<Card>(shoe.Dealt().begin(), shoe.Dealt().end()), drawn);
  EXPECT_EQ(shoe.DealtCount(), 20U);
  EXPECT_EQ(shoe.RemainingCount(), 84U);
  shoe.Shuffle();
  EXPECT_TRUE(shoe.Dealt().empty());
  EXPECT_EQ(shoe.RemainingCount(), 104U);
}

TEST(ShoeTest, RunningOutWithinARoundShufflesTheDiscardsOnly) {
  Shoe shoe(1, 13);
  shoe.BeginRound();
  std::vector<std::string> discards;
  for (int count = 0; count < 40; ++count) discards.push_back(NameOf(shoe.Draw()));
  shoe.BeginRound();
  std::vector<Card> table;
  for (int count = 0; count < 12; ++count) table.push_back(shoe.Draw());
  ASSERT_EQ(shoe.RemainingCount(), 0U);

  std::vector<std::string> again = {NameOf(shoe.Draw())};
  EXPECT_EQ(shoe.RemainingCount(), 39U);
  EXPECT_EQ(shoe.DealtCount(), 13U);
  EXPECT_TRUE(std::equal(table.begin(), table.end(), shoe.Dealt().begin()));
  EXPECT_TRUE(shoe.NeedsShuffle());

  for (int count = 0; count < 39; ++count) again.push_back(NameOf(shoe.Draw()));
  EXPECT_NE(again, discards) << "the discards came back in their old order";
  std::sort(again.begin(), again.end());
  std::sort(discards.begin(), discards.end());
  EXPECT_EQ(again, discards);
}

TEST(ShoeTest, ARoundThatGoesOnAfterShufflingTheDiscardsKeepsItsCardsOut) {
  Shoe shoe(1, 17);
  Draw(shoe, 30);
  shoe.BeginRound();
  Draw(shoe, 52);  // 22 to the end, then all 30 discards
  EXPECT_EQ(CountByName(shoe.Dealt()).size(), 52U);
  EXPECT_THROW((void)shoe.Draw(), std::runtime_error);
  shoe.BeginRound();
  EXPECT_NO_THROW((void)shoe.Draw());
}

TEST(ShoeTest, ABurnedCardIsDealtButNotOnTheTable) {
  Shoe shoe(1, 31);
  Draw(shoe, 10);
  shoe.BeginRound();
  std::vector<Card> table;
  for (int count = 0; count < 3; ++count) table.push_back(shoe.Draw());
  Shoe same = shoe;
  EXPECT_EQ(shoe.Burn(), same.Draw());
  EXPECT_EQ(shoe.DealtCount(), 14U);
  EXPECT_EQ(shoe.Draw(), same.Draw());
  for (int count = 0; count < 200; ++count) (void)shoe.Burn();
  const auto onTable = CountByName(shoe.Dealt());
  for (const Card card : table) EXPECT_EQ(onTable.count(NameOf(card)), 1U) << NameOf(card);
  EXPECT_EQ(CountByName(shoe.Dealt()).size(), shoe.DealtCount()) << "no card is there twice";
}

TEST(ShoeTest, ThrowsWhenEveryCardIsOnTheTable) {
  Shoe shoe(1, 19);
  shoe.BeginRound();
  Draw(shoe, 52);
  EXPECT_THROW((void)shoe.Draw(), std::runtime_error);
  EXPECT_EQ(shoe.DealtCount(), 52U);
  shoe.Shuffle();
  EXPECT_NO_THROW((void)shoe.Draw());
}

TEST(ShoeTest, AShuffleForgetsWhichCardsWereDiscards) {
  Shoe shoe(1, 29);
  Draw(shoe, 30);
  shoe.BeginRound();
  shoe.Shuffle();
  Draw(shoe, 52);
  EXPECT_THROW((void)shoe.Draw(), std::runtime_error);
}

}  // namespace
}  // namespace trainer::engine
