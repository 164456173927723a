#include "trainer/engine/Words.h"

#include <gtest/gtest.h>

namespace trainer::engine {
namespace {

Hand HandOf(std::initializer_list<Rank> ranks) {
  Hand hand;
  for (const Rank rank : ranks) hand.Add({rank, Suit::Spades});
  return hand;
}

TEST(WordsTest, Hands) {
  struct Row {
    Hand hand;
    const char* words;
  };
  const Row rows[] = {
      {HandOf({Rank::Ace, Rank::King}), "blackjack"},    {HandOf({Rank::Eight, Rank::Eight}), "pair of 8s"},
      {HandOf({Rank::Ace, Rank::Ace}), "pair of aces"},  {HandOf({Rank::King, Rank::Queen}), "pair of 10s"},
      {HandOf({Rank::Ace, Rank::Six}), "soft 17"},       {HandOf({Rank::Ten, Rank::Six}), "16"},
      {HandOf({Rank::Ace, Rank::Six, Rank::Ten}), "17"}, {HandOf({Rank::Ten, Rank::Six, Rank::Seven}), "bust with 23"},
  };
  for (const Row& row : rows) EXPECT_EQ(WordFor(row.hand), row.words);
}

TEST(WordsTest, DecisionsAndOutcomes) {
  EXPECT_EQ(WordFor(Decision::Hit), "Hit");
  EXPECT_EQ(WordFor(Decision::Surrender), "Surrender");
  EXPECT_EQ(WordFor(Outcome::Win), "wins");
  EXPECT_EQ(WordFor(Outcome::Push), "push");
  EXPECT_EQ(WordFor(Outcome::Bust), "bust");
}

TEST(WordsTest, Amounts) {
  struct Row {
    Money cents;
    const char* amount;
    const char* withSign;
  };
  const Row rows[] = {
      {0, "0", "0"},         {1000, "10", "+10"},   {-1000, "10", "-10"}, {1550, "15.50", "+15.50"},
      {-5, "0.05", "-0.05"}, {99, "0.99", "+0.99"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Amount(row.cents), row.amount);
    EXPECT_EQ(SignedAmount(row.cents), row.withSign);
  }
}

}  // namespace
}  // namespace trainer::engine
