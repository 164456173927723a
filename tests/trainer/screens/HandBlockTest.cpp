#include "trainer/screens/HandBlock.h"

#include <gtest/gtest.h>

#include "tests/trainer/screens/Sessions.h"

namespace trainer::screens {
namespace {

using engine::Decision;

tactix::DecisionBlock BlockOf(const engine::Session& session) {
  tactix::DecisionBlock block;
  FillBlock(session, block);
  return block;
}

tactix::DecisionBlock BlockWhere(bool (*isWanted)(const engine::Session&)) {
  engine::Session session({}, SeedWhere([isWanted](engine::Session& dealt) { return isWanted(dealt); }));
  session.Deal();
  return BlockOf(session);
}

TEST(HandBlockTest, AHardHand) {
  const tactix::DecisionBlock block =
      BlockWhere([](const engine::Session& session) { return IsStiff(session) && HandOf(session).Total() == 13; });
  EXPECT_EQ(block.PlayerName(), "Seat 1");
  EXPECT_EQ(block.HardTotal(), 13);
  EXPECT_EQ(block.SoftTotal(), 0);
  EXPECT_EQ(block.MidCardsAre(), "7, 8 or 9");
  EXPECT_TRUE(block.ManualPlayerRestrictions());
  EXPECT_TRUE(block.HitIsValid());
  EXPECT_FALSE(block.SplitIsValid());
  EXPECT_TRUE(block.HardDoubleIsValid());
  EXPECT_FALSE(block.SoftDoubleIsValid());
  EXPECT_TRUE(block.SurrenderIsValid());
  EXPECT_EQ(block.StrategyAdvice(), 1);
  EXPECT_TRUE(block.PlayingLogEnabled());
}

TEST(HandBlockTest, ASoftHandHasBothTotalsAndItsOwnDouble) {
  const tactix::DecisionBlock block = BlockWhere([](const engine::Session& session) {
    return !session.IsOver() && HandOf(session).IsSoft() && HandOf(session).Total() == 18;
  });
  EXPECT_EQ(block.HardTotal(), 8);
  EXPECT_EQ(block.SoftTotal(), 8);
  EXPECT_FALSE(block.HardDoubleIsValid());
  EXPECT_TRUE(block.SoftDoubleIsValid());
}

TEST(HandBlockTest, AThirdCardEndsDoublingAndSurrender) {
  engine::Session session({}, SeedWhere([](engine::Session& dealt) {
                            if (!IsStiff(dealt)) return false;
                            dealt.Decide(Decision::Hit);
                            return !dealt.IsOver();
                          }));
  session.Deal();
  session.Decide(Decision::Hit);
  const tactix::DecisionBlock block = BlockOf(session);
  EXPECT_TRUE(block.HitIsValid());
  EXPECT_FALSE(block.HardDoubleIsValid());
  EXPECT_FALSE(block.SoftDoubleIsValid());
  EXPECT_FALSE(block.SurrenderIsValid());
}

TEST(HandBlockTest, SplitHandsAreNamed) {
  engine::Session session({}, SeedWhere([](engine::Session& dealt) {
                            if (!IsSplittable(dealt)) return false;
                            dealt.Decide(Decision::Split);
                            if (dealt.IsOver()) return false;
                            dealt.Decide(Decision::Stand);
                            return !dealt.IsOver();
                          }));
  session.Deal();
  EXPECT_TRUE(BlockOf(session).SplitIsValid());
  session.Decide(Decision::Split);
  EXPECT_EQ(BlockOf(session).PlayerName(), "Seat 1, hand 1");
  EXPECT_FALSE(BlockOf(session).SurrenderIsValid());
  session.Decide(Decision::Stand);
  EXPECT_EQ(BlockOf(session).PlayerName(), "Seat 1, hand 2");
}

TEST(HandBlockTest, TheAdviceIsThatOfTheStrategy) {
  engine::Session session({}, SeedWhere([](engine::Session& dealt) { return IsStiff(dealt); }));
  session.Deal();
  session.Follow(std::make_shared<engine::NeverBust>());
  EXPECT_EQ(BlockOf(session).StrategyAdvice(), 2);
}

TEST(HandBlockTest, BetweenRoundsThereIsNoHand) {
  const engine::Session session({}, 1);
  tactix::DecisionBlock block;
  EXPECT_THROW(FillBlock(session, block), std::logic_error);
}

}  // namespace
}  // namespace trainer::screens
