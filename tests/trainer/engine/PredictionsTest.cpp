#include "trainer/engine/Predictions.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "tests/trainer/engine/ScriptedCards.h"

namespace trainer::engine {
namespace {

TEST(PredictionsTest, GroupsRanksAsCountersDo) {
  struct Row {
    Rank rank;
    CardRange range;
  };
  const Row rows[] = {
      {Rank::Ace, CardRange::High},  {Rank::Two, CardRange::Low},    {Rank::Six, CardRange::Low},
      {Rank::Seven, CardRange::Mid}, {Rank::Nine, CardRange::Mid},   {Rank::Ten, CardRange::High},
      {Rank::Jack, CardRange::High}, {Rank::Queen, CardRange::High}, {Rank::King, CardRange::High},
  };
  for (const Row& row : rows) EXPECT_EQ(RangeOf(row.rank), row.range) << PointsOf(row.rank);
}

TEST(PredictionsTest, ScoresOnlyWhatWasPredicted) {
  Predictions predictions;
  EXPECT_EQ(predictions.SeeHitCard(Rank::Ten), std::nullopt);
  predictions.PredictHitCard(CardRange::High);
  EXPECT_EQ(predictions.SeeHitCard(Rank::Ten), true);
  EXPECT_EQ(predictions.SeeHitCard(Rank::Ten), std::nullopt) << "a prediction holds for one card";
  predictions.PredictHoleCard(CardRange::Low);
  EXPECT_EQ(predictions.SeeHoleCard(Rank::Seven), false);
  EXPECT_EQ(predictions.Made(), 2);
  EXPECT_EQ(predictions.Right(), 1);
}

TEST(PredictionsTest, TheLastWordCountsAndCanBeTakenBack) {
  Predictions predictions;
  predictions.PredictHitCard(CardRange::Low);
  predictions.PredictHitCard(CardRange::Mid);
  EXPECT_EQ(predictions.SeeHitCard(Rank::Eight), true);
  predictions.PredictHitCard(CardRange::Low);
  predictions.PredictHitCard(std::nullopt);
  EXPECT_EQ(predictions.SeeHitCard(Rank::Two), std::nullopt);
  predictions.PredictHitCard(CardRange::Low);
  predictions.PredictHoleCard(CardRange::Low);
  predictions.Forget();
  EXPECT_EQ(predictions.SeeHitCard(Rank::Two), std::nullopt);
  EXPECT_EQ(predictions.SeeHoleCard(Rank::Two), std::nullopt);
  EXPECT_EQ(predictions.Made(), 1);
}

TEST(PredictionsTest, ADealersStiffHandIsWeak) {
  struct Row {
    const char* cards;
    bool weak;
  };
  const Row rows[] = {{"5 6", false}, {"5 7", true},  {"T 2", true},  {"T 6", true}, {"9 8", false},
                      {"T T", false}, {"A 2", false}, {"A A", false}, {"A T", false}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.cards);
    const Hand hand(CardsOf(row.cards));
    EXPECT_EQ(hand.IsStiff(), row.weak);
    Predictions predictions;
    EXPECT_EQ(predictions.SeeDealerHand(hand), std::nullopt);
    predictions.PredictDealerHand(true);
    EXPECT_EQ(predictions.SeeDealerHand(hand), !row.weak);
    EXPECT_EQ(predictions.SeeDealerHand(hand), std::nullopt);
    predictions.PredictDealerHand(false);
    EXPECT_EQ(predictions.SeeDealerHand(hand), row.weak);
    EXPECT_EQ(predictions.Made(), 2);
    EXPECT_EQ(predictions.Right(), 1);
    predictions.PredictDealerHand(false);
    predictions.Forget();
    EXPECT_EQ(predictions.SeeDealerHand(hand), std::nullopt);
  }
}

TEST(PredictionsTest, TensRatioCountsTheCardsNotSeen) {
  EXPECT_DOUBLE_EQ(TensRatio(1, {}), FullDeckTensRatio);
  const std::vector<Card> low = {{Rank::Two, Suit::Clubs}, {Rank::Three, Suit::Clubs}};
  const std::vector<Card> tens = {{Rank::Ten, Suit::Clubs}, {Rank::King, Suit::Clubs}};
  EXPECT_DOUBLE_EQ(TensRatio(1, low), 16.0 / 50.0);
  EXPECT_DOUBLE_EQ(TensRatio(2, tens), 30.0 / 102.0);
  EXPECT_THROW((void)TensRatio(1, std::vector<Card>(52)), std::invalid_argument);

  Predictions predictions;
  EXPECT_TRUE(predictions.PredictTensRatio(true, 1, low));
  EXPECT_FALSE(predictions.PredictTensRatio(false, 1, low));
  EXPECT_TRUE(predictions.PredictTensRatio(false, 1, tens));
  EXPECT_EQ(predictions.Made(), 3);
  EXPECT_EQ(predictions.Right(), 2);
}

}  // namespace
}  // namespace trainer::engine
