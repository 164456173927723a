#include "trainer/screens/StatisticsBlock.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/trainer/screens/Sessions.h"
#include "trainer/engine/BettingCount.h"

namespace trainer::screens {
namespace {

using engine::Card;
using tactix::companion::StrategyDataBlock;

const engine::CountSystem& SystemOf(int number) { return *engine::FindCountSystem(number); }

StrategyDataBlock Filled(const engine::Session& session, int system = 21) {
  StrategyDataBlock block;
  FillStatistics(session, SystemOf(system), block);
  return block;
}

TEST(StatisticsBlockTest, ANewShoe) {
  const StrategyDataBlock block = Filled(engine::Session({}, 1));
  EXPECT_EQ(block.RunningCount, 0);
  EXPECT_EQ(block.TrueCount, 0);
  EXPECT_EQ(block.AcesDealt, 0);
  EXPECT_EQ(block.AdjustedCount, 0);
  EXPECT_EQ(block.TargetRating, 31) << "16 tens of 52 cards";
  EXPECT_EQ(block.BiasRating, 0);
  EXPECT_EQ(block.ClumpType, 7);
  EXPECT_FLOAT_EQ(block.DealerBreakPercent, 0);
}

TEST(StatisticsBlockTest, CountsWhatThePlayerHasSeen) {
  engine::Session session({.decks = 1}, 3);
  for (int round = 0; round < 6; ++round) {
    session.Deal();
    if (!session.IsOver()) {
      const auto up = session.CurrentRound().DealerHand().Cards()[0];
      const std::vector<Card> seen = session.Seen();
      EXPECT_EQ(seen.size() + 1, session.TheShoe().DealtCount()) << "all but the hole card";
      int table = engine::RangeOf(up.rank) == engine::CardRange::Low ? 1 : 0;
      table -= engine::RangeOf(up.rank) == engine::CardRange::High ? 1 : 0;
      for (const Card card : HandOf(session).Cards()) {
        table += engine::RangeOf(card.rank) == engine::CardRange::Low ? 1 : 0;
        table -= engine::RangeOf(card.rank) == engine::CardRange::High ? 1 : 0;
      }
      EXPECT_EQ(Filled(session).ClumpType, 7 + table);
    }
    while (!session.IsOver()) session.Decide(engine::Decision::Stand);

    int running = 0;
    int aces = 0;
    int fives = 0;
    int tens = 0;
    int core = 0;
    for (const Card card : session.Seen()) {
      const int points = engine::PointsOf(card.rank);
      running += points >= 3 && points <= 6 ? 1 : points == 10 ? -1 : 0;
      aces += points == 1 ? 1 : 0;
      fives += points == 5 ? 1 : 0;
      tens += points == 10 ? 1 : 0;
      core += points >= 5 && points <= 8 ? 1 : 0;
    }
    const double left = 52.0 - static_cast<double>(session.Seen().size());
    const StrategyDataBlock block = Filled(session);
    EXPECT_EQ(block.RunningCount, running);
    EXPECT_EQ(block.TrueCount, std::floor(running * 52 / left));
    EXPECT_EQ(block.AcesDealt, aces);
    EXPECT_EQ(block.FivesDealt, fives);
    EXPECT_EQ(block.TensDealt, tens);
    EXPECT_EQ(block.CoreCardsDealt, core);
    EXPECT_EQ(block.TargetRating, std::lround(100 * (16 - tens) / left));
    // Aces as tens: a deck has -4 points then, of which each is worth 389/725 percent.
    const double surplus = running - aces + 4 * (52 - left) / 52;
    EXPECT_EQ(block.AdjustedCount, std::floor(surplus * 389 / 725 / (left / 52) / 0.5));
    for (const int system : {13, 29, 32}) {
      EXPECT_EQ(Filled(session, system).AdjustedCount, engine::BettingCount(SystemOf(system), 1, session.Seen()));
    }
    EXPECT_EQ(block.BiasRating, session.RoundsAhead());
    EXPECT_FLOAT_EQ(block.DealerStiffHands, static_cast<float>(session.TheDealer().StiffHands()));
    EXPECT_FLOAT_EQ(block.DealerStrongHands, static_cast<float>(session.TheDealer().StrongHands()));
    EXPECT_FLOAT_EQ(block.DealerBreakPercent, static_cast<float>(session.TheDealer().BreakPercent()));
    EXPECT_FLOAT_EQ(block.DealerEndingTotal, static_cast<float>(session.TheDealer().EndingTotal()));
  }
}

TEST(StatisticsBlockTest, ASystemWithoutATrueCountShowsItsRunningCount) {
  constexpr int RedSeven = 32;
  const StrategyDataBlock block = Filled(engine::Session({}, 1), RedSeven);
  EXPECT_EQ(block.RunningCount, -12);
  EXPECT_EQ(block.TrueCount, -12);
  EXPECT_EQ(block.AdjustedCount, 0) << "the start is no disadvantage";
}

TEST(StatisticsBlockTest, AShoeThatWasBurnedThroughDividesByNothing) {
  engine::Session session({.decks = 1}, 3);
  session.Deal();
  for (int i = 0; i < 200; ++i) session.Burn();
  EXPECT_GE(Filled(session).TargetRating, 0);
}

}  // namespace
}  // namespace trainer::screens
