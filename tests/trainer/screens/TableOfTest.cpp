#include "trainer/screens/TableOf.h"

#include <gtest/gtest.h>

#include "tests/trainer/screens/Sessions.h"
#include "trainer/engine/Words.h"

namespace trainer::screens {
namespace {

using engine::Decision;

engine::Session SessionWhere(const std::function<bool(engine::Session&)>& isWanted, const engine::Rules& rules = {}) {
  return engine::Session(rules, SeedWhere(isWanted, rules));
}

TEST(TableOfTest, AHandInPlay) {
  engine::Session session = SessionWhere([](engine::Session& dealt) {
    return !dealt.IsOver() && HandOf(dealt).IsSoft() && HandOf(dealt).Total() == 17 &&
           dealt.CurrentRound().UpCard() == engine::Rank::Ace;
  });
  session.Deal();
  const TableModel model = TableOf(session);
  EXPECT_EQ(model.dealerLabel, QStringLiteral("Dealer shows ace"));
  ASSERT_EQ(model.hands.size(), 1U);
  EXPECT_EQ(model.hands[0].cards.size(), 2U);
  EXPECT_EQ(model.hands[0].label, QStringLiteral("Soft 17"));
  EXPECT_EQ(model.hands[0].bet, QStringLiteral("10"));
  EXPECT_TRUE(model.hands[0].outcome.isEmpty());
  EXPECT_TRUE(model.hands[0].active);
  EXPECT_EQ(model.banner, QStringLiteral("6 decks, dealer stands on soft 17"));
  EXPECT_EQ(model.feltText, QStringLiteral("Blackjack pays 3 to 2"));
  EXPECT_DOUBLE_EQ(model.shoeLeft, 308.0 / 312.0);
  EXPECT_FALSE(model.cutCardOut);
  EXPECT_TRUE(model.message.isEmpty());
  EXPECT_EQ(model.verdict, TableModel::Verdict::None);
}

TEST(TableOfTest, TheRulesArePrintedOnTheTable) {
  const engine::Rules rules{.decks = 1, .dealerHitsSoft17 = true, .blackjackPays = {6, 5}};
  engine::Session session(rules, 1);
  session.Deal();
  EXPECT_EQ(TableOf(session).banner, QStringLiteral("1 deck, dealer hits soft 17"));
  EXPECT_EQ(TableOf(session).feltText, QStringLiteral("Blackjack pays 6 to 5"));
}

TEST(TableOfTest, TheHoleCardStaysWithTheDealerUntilTheRoundIsOver) {
  engine::Session session({}, 3);
  for (int round = 0; round < 100; ++round) {
    session.Deal();
    while (!session.IsOver()) {
      const TableModel model = TableOf(session);
      EXPECT_TRUE(model.holeHidden);
      ASSERT_EQ(model.dealer.size(), 1U);
      EXPECT_EQ(model.dealer[0].rank, session.CurrentRound().UpCard());
      session.Decide(session.Advised());
    }
    EXPECT_FALSE(TableOf(session).holeHidden);
    EXPECT_EQ(TableOf(session).dealer.size(), session.CurrentRound().DealerHand().Cards().size());
  }
}

TEST(TableOfTest, SplitHandsStandSideBySideAndOneIsActive) {
  engine::Session session = SessionWhere([](engine::Session& dealt) {
    if (!IsSplittable(dealt)) return false;
    dealt.Decide(Decision::Split);
    if (dealt.IsOver()) return false;
    dealt.Decide(Decision::Stand);
    return !dealt.IsOver();
  });
  session.Deal();
  session.Decide(Decision::Split);
  TableModel model = TableOf(session);
  ASSERT_EQ(model.hands.size(), 2U);
  EXPECT_TRUE(model.hands[0].active);
  EXPECT_FALSE(model.hands[1].active);
  session.Decide(Decision::Stand);
  model = TableOf(session);
  EXPECT_FALSE(model.hands[0].active);
  EXPECT_TRUE(model.hands[1].active);
  session.Decide(Decision::Stand);
  for (const TableModel::HandView& hand : TableOf(session).hands) EXPECT_FALSE(hand.active);
}

TEST(TableOfTest, TheOutcomeNamesTheMoney) {
  struct Row {
    engine::Outcome outcome;
    Decision play;
    const char* text;
    const char* bet;
  };
  const Row rows[] = {
      {engine::Outcome::Win, Decision::Stand, "Wins +10", "10"},
      {engine::Outcome::Lose, Decision::Stand, "Loses -10", "10"},
      {engine::Outcome::Push, Decision::Stand, "Push", "10"},
      {engine::Outcome::Bust, Decision::Hit, "Bust -10", "10"},
      {engine::Outcome::Win, Decision::Double, "Wins +20", "20"},
      {engine::Outcome::Surrendered, Decision::Surrender, "Surrendered -5", "10"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    const auto isWanted = [&row](engine::Session& dealt) {
      if (dealt.IsOver()) return false;
      dealt.Decide(row.play);
      return dealt.IsOver() && dealt.CurrentRound().HandsOf(0)[0].result->outcome == row.outcome;
    };
    engine::Session session = SessionWhere(isWanted);
    session.Deal();
    session.Decide(row.play);
    const TableModel::HandView hand = TableOf(session).hands[0];
    EXPECT_EQ(hand.outcome, QLatin1String(row.text));
    EXPECT_EQ(hand.bet, QLatin1String(row.bet));
    EXPECT_FALSE(hand.active);
    const std::string total = WordFor(session.CurrentRound().DealerHand());
    EXPECT_EQ(TableOf(session).dealerLabel.toStdString(), "Dealer: " + total);
  }
}

TEST(TableOfTest, BlackjackIsNamedAndPaid) {
  engine::Session session = SessionWhere([](engine::Session& dealt) {
    return dealt.IsOver() && dealt.CurrentRound().HandsOf(0)[0].result->outcome == engine::Outcome::Blackjack;
  });
  session.Deal();
  EXPECT_EQ(TableOf(session).hands[0].label, QStringLiteral("Blackjack"));
  EXPECT_EQ(TableOf(session).hands[0].outcome, QStringLiteral("Blackjack +15"));
}

}  // namespace
}  // namespace trainer::screens
