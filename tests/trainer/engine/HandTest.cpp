#include "trainer/engine/Hand.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/trainer/engine/ScriptedCards.h"
#include "trainer/engine/Dealer.h"

namespace trainer::engine {
namespace {

TEST(HandTest, TotalsAndKinds) {
  struct Row {
    const char* cards;
    int hardTotal;
    int total;
    bool isSoft;
    bool isBlackjack;
    bool isBust;
    bool isPair;
  };
  const Row rows[] = {
      {"", 0, 0, false, false, false, false},         {"9 7", 16, 16, false, false, false, false},
      {"8 8", 16, 16, false, false, false, true},     {"K T", 20, 20, false, false, false, true},
      {"8 8 8", 24, 24, false, false, true, false},   {"A", 1, 11, true, false, false, false},
      {"A A", 2, 12, true, false, false, true},       {"A 6", 7, 17, true, false, false, false},
      {"A 6 4", 11, 21, true, false, false, false},   {"A 6 5", 12, 12, false, false, false, false},
      {"A A 9", 11, 21, true, false, false, false},   {"A A T", 12, 12, false, false, false, false},
      {"A K", 11, 21, true, true, false, false},      {"Q A", 11, 21, true, true, false, false},
      {"7 7 7", 21, 21, false, false, false, false},  {"T 6 5", 21, 21, false, false, false, false},
      {"T 6 5 A", 22, 22, false, false, true, false}, {"T A T", 21, 21, false, false, false, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.cards);
    const Hand hand(CardsOf(row.cards));
    EXPECT_EQ(hand.HardTotal(), row.hardTotal);
    EXPECT_EQ(hand.Total(), row.total);
    EXPECT_EQ(hand.IsSoft(), row.isSoft);
    EXPECT_EQ(hand.IsBlackjack(), row.isBlackjack);
    EXPECT_EQ(hand.IsBust(), row.isBust);
    EXPECT_EQ(hand.IsPair(), row.isPair);
    EXPECT_FALSE(hand.IsAfterSplit());
    EXPECT_FALSE(hand.IsDoubled());
    EXPECT_FALSE(hand.IsSurrendered());
  }
}

TEST(HandTest, SplitGivesEachHandOneCardAndNoBlackjack) {
  const auto cards = CardsOf("A A");
  Hand first(cards);
  Hand second = first.Split();
  ASSERT_EQ(first.Cards().size(), 1U);
  ASSERT_EQ(second.Cards().size(), 1U);
  EXPECT_EQ(first.Cards()[0], cards[0]);
  EXPECT_EQ(second.Cards()[0], cards[1]);
  EXPECT_TRUE(first.IsAfterSplit());
  EXPECT_TRUE(second.IsAfterSplit());

  second.Add({Rank::King, Suit::Clubs});
  EXPECT_EQ(second.Total(), 21);
  EXPECT_FALSE(second.IsBlackjack());
}

TEST(HandTest, OnlyAPairSplits) {
  Hand hand(CardsOf("9 T"));
  EXPECT_THROW((void)hand.Split(), std::logic_error);
  EXPECT_EQ(hand.Total(), 19);
  EXPECT_FALSE(hand.IsAfterSplit());
}

TEST(HandTest, Marks) {
  Hand doubled(CardsOf("6 5"));
  doubled.MarkDoubled();
  EXPECT_TRUE(doubled.IsDoubled());
  EXPECT_FALSE(doubled.IsSurrendered());
  Hand surrendered(CardsOf("T 6"));
  surrendered.MarkSurrendered();
  EXPECT_TRUE(surrendered.IsSurrendered());
  EXPECT_FALSE(surrendered.IsDoubled());
}

TEST(DealerTest, DrawsTo17AndToSoft17WhereTheRulesSaySo) {
  struct Row {
    const char* cards;
    bool drawsS17;
    bool drawsH17;
  };
  const Row rows[] = {
      {"T 6", true, true},    {"A 5", true, true},     {"T 7", false, false}, {"A 6", false, true},
      {"A A 5", false, true}, {"T 6 A", false, false}, {"A 7", false, false}, {"T 6 6", false, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.cards);
    EXPECT_EQ(DealerDraws(Hand(CardsOf(row.cards)), Rules{.dealerHitsSoft17 = false}), row.drawsS17);
    EXPECT_EQ(DealerDraws(Hand(CardsOf(row.cards)), Rules{.dealerHitsSoft17 = true}), row.drawsH17);
  }
}

}  // namespace
}  // namespace trainer::engine
