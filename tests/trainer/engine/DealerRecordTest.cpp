#include "trainer/engine/DealerRecord.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/trainer/engine/ScriptedCards.h"

namespace trainer::engine {
namespace {

constexpr DealersTurn Taken = DealersTurn::Taken;
constexpr DealersTurn NotNeeded = DealersTurn::NotNeeded;

struct DealerRow {
  const char* cards;
  DealersTurn turn;
  int stiff;
  int strong;
  int playedOut;
  double breakPercent;
  double endingTotal;
};

TEST(DealerRecordTest, OneHand) {
  const DealerRow rows[] = {
      {"T 2", NotNeeded, 1, 0, 0, 0, 0},     {"T 7", NotNeeded, 0, 1, 0, 0, 0},
      {"A K", NotNeeded, 0, 1, 0, 0, 0},     {"A 5", NotNeeded, 0, 0, 0, 0, 0},   // soft 16: neither
      {"T 2 T", Taken, 1, 0, 1, 100, 0},                                          // bust
      {"9 7 2", Taken, 1, 0, 1, 0, 18},                                           // stiff, drawn out
      {"T 7", Taken, 0, 1, 1, 0, 17},                                             // strong
      {"A 6", Taken, 0, 1, 1, 0, 17},                                             // soft 17
      {"5 6 T", Taken, 0, 0, 1, 0, 21},                                           // 11: neither
      {"6 5 2 8", Taken, 0, 0, 1, 0, 21},    {"A A T 9", Taken, 0, 0, 1, 0, 21},  // 12, 22 at first
      {"5 6 2 3 T", Taken, 0, 0, 1, 100, 0},
  };
  for (const DealerRow& row : rows) {
    SCOPED_TRACE(row.cards);
    DealerRecord record;
    record.Add(Hand(CardsOf(row.cards)), row.turn);
    EXPECT_EQ(record.StiffHands(), row.stiff);
    EXPECT_EQ(record.StrongHands(), row.strong);
    EXPECT_EQ(record.PlayedOut(), row.playedOut);
    EXPECT_DOUBLE_EQ(record.BreakPercent(), row.breakPercent);
    EXPECT_DOUBLE_EQ(record.EndingTotal(), row.endingTotal);
  }
}

TEST(DealerRecordTest, ManyHandsAndANewShoe) {
  DealerRecord record;
  EXPECT_DOUBLE_EQ(record.BreakPercent(), 0);
  EXPECT_DOUBLE_EQ(record.EndingTotal(), 0);
  for (const char* cards : {"T 7", "T 2 T", "9 7 2", "T T"}) record.Add(Hand(CardsOf(cards)), Taken);
  for (const char* cards : {"T 6", "T 7", "T 8"}) record.Add(Hand(CardsOf(cards)), NotNeeded);
  EXPECT_EQ(record.StiffHands(), 3);
  EXPECT_EQ(record.StrongHands(), 4);
  EXPECT_EQ(record.PlayedOut(), 4);
  EXPECT_DOUBLE_EQ(record.BreakPercent(), 25);
  EXPECT_DOUBLE_EQ(record.EndingTotal(), 55.0 / 3);
  record.Forget();
  EXPECT_EQ(record.StiffHands(), 0);
  EXPECT_EQ(record.PlayedOut(), 0);
}

TEST(DealerRecordTest, RefusesAHandOfOneCard) {
  DealerRecord record;
  EXPECT_THROW(record.Add(Hand(CardsOf("T")), Taken), std::invalid_argument);
}

}  // namespace
}  // namespace trainer::engine
