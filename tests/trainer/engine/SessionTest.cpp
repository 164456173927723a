#include "trainer/engine/Session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace trainer::engine {
namespace {

/// Deals until the player has a decision to make.
void DealToADecision(Session& session) {
  do session.Deal();
  while (session.IsOver());
}

/// Nobody has won or lost it yet when the dealer's turn comes.
bool IsInPlay(const Round& round) {
  if (round.DealerHand().IsBlackjack()) return false;
  const auto hands = round.HandsOf(0);
  return std::any_of(hands.begin(), hands.end(), [](const PlayerHand& player) {
    return !player.hand.IsBust() && !player.hand.IsSurrendered() && !player.hand.IsBlackjack();
  });
}

Decision AnotherLegalPlay(const Session& session) {
  const LegalPlays legal = session.CurrentRound().Legal();
  const Decision hit = Decision::Hit;
  return session.Advised() != hit && legal.Allows(hit) ? hit : Decision::Stand;
}

TEST(SessionTest, StartsWithoutARound) {
  const Session session(Rules{}, 1);
  EXPECT_FALSE(session.HasRound());
  EXPECT_TRUE(session.IsOver());
  EXPECT_THROW((void)session.CurrentRound(), std::logic_error);
  EXPECT_THROW((void)session.Advised(), std::logic_error);
  EXPECT_EQ(session.CurrentTally().CorrectPercent(), 0.0);
}

TEST(SessionTest, JudgesBySomeStrategyAndCounts) {
  Session session(Rules{}, 7);
  DealToADecision(session);
  const Decision advised = session.Advised();
  const auto right = session.Decide(advised);
  ASSERT_TRUE(right);
  EXPECT_TRUE(right->IsRight());
  EXPECT_EQ(right->advised, advised);
  DealToADecision(session);
  const auto wrong = session.Decide(AnotherLegalPlay(session));
  ASSERT_TRUE(wrong);
  EXPECT_FALSE(wrong->IsRight());
  EXPECT_EQ(session.CurrentTally().decisions, 2);
  EXPECT_EQ(session.CurrentTally().correct, 1);
  EXPECT_DOUBLE_EQ(session.CurrentTally().CorrectPercent(), 50.0);
}

TEST(SessionTest, EveryDecisionHasATurnOfItsOwn) {
  Session session({}, 3);
  EXPECT_EQ(session.Turn(), 0);
  std::set<int> turns = {session.Turn()};
  const auto expectANewOne = [&] { EXPECT_TRUE(turns.insert(session.Turn()).second) << session.Turn(); };
  for (int round = 0; round < 20; ++round) {
    session.Deal();
    expectANewOne();
    while (!session.IsOver()) {
      const int turn = session.Turn();
      if (!session.CurrentRound().Legal().Allows(Decision::Split)) session.Decide(Decision::Split);
      session.Burn();
      session.Follow(std::make_shared<BasicStrategy>());
      EXPECT_EQ(session.Turn(), turn) << "nothing has been decided";
      session.Decide(session.Advised());
      expectANewOne();
    }
  }
  session.Deal();
  expectANewOne();
}

TEST(SessionTest, RefusesWhatIsNotLegalAndChangesNothing) {
  Session session(Rules{}, 3);
  EXPECT_FALSE(session.Decide(Decision::Hit)) << "before the first deal";
  DealToADecision(session);
  while (session.CurrentRound().Legal().Allows(Decision::Split)) DealToADecision(session);
  const auto cards = session.TheShoe().DealtCount();
  EXPECT_FALSE(session.Decide(Decision::Split));
  EXPECT_EQ(session.TheShoe().DealtCount(), cards);
  EXPECT_EQ(session.CurrentTally().decisions, 0);
  while (!session.IsOver()) session.Decide(Decision::Stand);
  EXPECT_FALSE(session.Decide(Decision::Hit)) << "after the round";
}

TEST(SessionTest, CountsEachHandOnceAndItsMoney) {
  Session session(Rules{}, 11);
  Money net = 0;
  for (int i = 1; i <= 200; ++i) {
    session.Deal();
    while (!session.IsOver()) session.Decide(session.Advised());
    net += session.CurrentRound().Net();
    ASSERT_EQ(session.CurrentTally().hands, i);
    ASSERT_EQ(session.CurrentTally().net, net);
  }
  EXPECT_EQ(session.CurrentTally().decisions, session.CurrentTally().correct);
}

TEST(SessionTest, TheSameSeedGivesTheSameSession) {
  Session a(Rules{}, 21);
  Session b(Rules{}, 21);
  for (int i = 0; i < 50; ++i) {
    a.Deal();
    b.Deal();
    while (!a.IsOver()) {
      a.Decide(a.Advised());
      b.Decide(b.Advised());
    }
    ASSERT_TRUE(b.IsOver());
  }
  EXPECT_EQ(a.CurrentTally().net, b.CurrentTally().net);
  EXPECT_EQ(a.TheShoe().DealtCount(), b.TheShoe().DealtCount());
}

TEST(SessionTest, FollowsTheStrategyItIsGiven) {
  Session session(Rules{}, 5);
  EXPECT_THROW(session.Follow(nullptr), std::invalid_argument);
  session.Follow(std::make_shared<NeverBust>());
  int standsOnStiffHands = 0;
  for (int i = 0; i < 100; ++i) {
    DealToADecision(session);
    const Hand& hand = session.CurrentRound().ActiveHand().hand;
    if (!hand.IsSoft() && hand.Total() >= 12) {
      ++standsOnStiffHands;
      ASSERT_EQ(session.Advised(), Decision::Stand) << hand.Total();
    }
  }
  EXPECT_GT(standsOnStiffHands, 10);
}

TEST(SessionTest, ShufflesAfterTheCutCardOnly) {
  Session session(Rules{.decks = 1}, 9);
  std::size_t dealt = 0;
  int shuffles = 0;
  for (int i = 0; i < 60; ++i) {
    const bool due = session.TheShoe().NeedsShuffle();
    session.Deal();
    EXPECT_EQ(session.TheShoe().DealtCount() < dealt, due);
    if (due) ++shuffles;
    while (!session.IsOver()) session.Decide(Decision::Stand);
    dealt = session.TheShoe().DealtCount();
  }
  EXPECT_GT(shuffles, 3);
}

TEST(SessionTest, ScoresAHitCardPredictionWithTheCardThatCame) {
  Session session(Rules{}, 13);
  int scored = 0;
  for (int i = 0; i < 60; ++i) {
    DealToADecision(session);
    session.Predictions().PredictHitCard(CardRange::High);
    const HandPlace place = session.CurrentRound().ActivePlace();
    const auto judged = session.Decide(Decision::Hit);
    ASSERT_TRUE(judged);
    ASSERT_TRUE(judged->hitCardPrediction.has_value());
    const auto hands = session.CurrentRound().HandsOf(place.seat);
    const Rank drawn = hands[place.hand].hand.Cards()[2].rank;
    ASSERT_EQ(*judged->hitCardPrediction, RangeOf(drawn) == CardRange::High);
    ++scored;
  }
  EXPECT_EQ(session.Predictions().Made(), scored);
}

TEST(SessionTest, ScoresAHoleCardPredictionWhenTheRoundIsOver) {
  Session session(Rules{}, 17);
  for (int i = 0; i < 20; ++i) {
    DealToADecision(session);
    session.Predictions().PredictHoleCard(CardRange::Low);
    std::optional<bool> scored;
    while (!session.IsOver()) {
      ASSERT_EQ(scored, std::nullopt);
      scored = session.Decide(Decision::Stand)->holeCardPrediction;
    }
    const Rank hole = session.CurrentRound().DealerHand().Cards()[1].rank;
    ASSERT_EQ(scored, RangeOf(hole) == CardRange::Low);
  }
}

TEST(SessionTest, ScoresADealerPredictionByTheFirstTwoCardsWhenTheRoundIsOver) {
  Session session(Rules{}, 18);
  int weak = 0;
  for (int i = 0; i < 40; ++i) {
    DealToADecision(session);
    session.Predictions().PredictDealerHand(true);
    std::optional<bool> scored;
    while (!session.IsOver()) {
      ASSERT_EQ(scored, std::nullopt);
      scored = session.Decide(Decision::Stand)->dealerPrediction;
    }
    const auto cards = session.CurrentRound().DealerHand().Cards();
    const bool isWeak = Hand({cards[0], cards[1]}).IsStiff();
    ASSERT_EQ(scored, !isWeak);
    weak += isWeak ? 1 : 0;
  }
  EXPECT_GT(weak, 5);
  EXPECT_LT(weak, 35);
}

TEST(SessionTest, KeepsTheDealersRecordUntilTheShuffle) {
  Session session(Rules{.decks = 1}, 4);
  DealerRecord expected;
  int ahead = 0;
  int shuffles = 0;
  int notPlayedOut = 0;
  for (int i = 0; i < 60; ++i) {
    const bool shufflesNow = session.TheShoe().NeedsShuffle();
    session.Deal();
    if (shufflesNow) {
      ++shuffles;
      expected.Forget();
      ahead = 0;
    }
    while (!session.IsOver()) {
      ASSERT_EQ(session.RoundsAhead(), ahead) << "not before the round is over";
      session.Decide(i % 3 == 0 ? Decision::Hit : Decision::Stand);
    }
    const bool inPlay = IsInPlay(session.CurrentRound());
    if (!inPlay && session.CurrentRound().DealerHand().Total() >= 17) ++notPlayedOut;
    expected.Add(session.CurrentRound().DealerHand(), inPlay ? DealersTurn::Taken : DealersTurn::NotNeeded);
    const Money net = session.CurrentRound().Net();
    ahead += net > 0 ? 1 : net < 0 ? -1 : 0;
    ASSERT_EQ(session.RoundsAhead(), ahead);
    ASSERT_EQ(session.TheDealer().StiffHands(), expected.StiffHands());
    ASSERT_EQ(session.TheDealer().PlayedOut(), expected.PlayedOut());
    ASSERT_DOUBLE_EQ(session.TheDealer().EndingTotal(), expected.EndingTotal());
  }
  EXPECT_GT(shuffles, 3);
  EXPECT_GT(notPlayedOut, 3);
}

TEST(SessionTest, KeepsTheRunOfWinsAndLosses) {
  Session session(Rules{}, 6);
  EXPECT_EQ(session.Run(), 0);
  int run = 0;
  int longest = 0;
  for (int i = 0; i < 200; ++i) {
    session.Deal();
    while (!session.IsOver()) session.Decide(Decision::Stand);
    const Money net = session.CurrentRound().Net();
    if (net > 0) run = run > 0 ? run + 1 : 1;
    if (net < 0) run = run < 0 ? run - 1 : -1;
    ASSERT_EQ(session.Run(), run);
    longest = std::max(longest, run);
  }
  EXPECT_GT(longest, 2);
}

/// The last round, played to its end; whether it went as a row wants it.
using Course = std::function<bool(Session&)>;

bool EndsWith(Session& session, std::vector<Decision> plays, const std::vector<Outcome>& outcomes) {
  for (const Decision play : plays) {
    if (session.IsOver() || !session.CurrentRound().Legal().Allows(play)) return false;
    session.Decide(play);
  }
  if (!session.IsOver()) return false;
  std::vector<Outcome> ended;
  for (const PlayerHand& hand : session.CurrentRound().HandsOf(0)) ended.push_back(hand.result->outcome);
  return ended == outcomes;
}

/// A session whose first round was won or lost by standing, and whose second has gone as wanted.
Session SessionAfter(Outcome first, const Course& second) {
  for (std::uint64_t seed = 1; seed < 100000; ++seed) {
    Session session(Rules{}, seed);
    session.Deal();
    if (!EndsWith(session, {Decision::Stand}, {first})) continue;
    session.Deal();
    if (second(session)) return session;
  }
  throw std::logic_error("no seed deals such rounds");
}

TEST(SessionTest, ARoundIsWonOrLostByItsMoney) {
  constexpr Decision H = Decision::Hit;
  constexpr Decision S = Decision::Stand;
  constexpr Decision P = Decision::Split;
  constexpr Decision D = Decision::Double;
  constexpr Decision R = Decision::Surrender;
  struct Row {
    const char* name;
    std::vector<Decision> plays;
    std::vector<Outcome> outcomes;
    int afterAWin;
    int afterALoss;
  };
  const Row rows[] = {
      {"a win", {S}, {Outcome::Win}, 2, 1},
      {"a loss", {S}, {Outcome::Lose}, -1, -2},
      {"a push", {S}, {Outcome::Push}, 1, -1},
      {"bust", {H}, {Outcome::Bust}, -1, -2},
      {"a blackjack is one win", {}, {Outcome::Blackjack}, 2, 1},
      {"a doubled hand is one win", {D}, {Outcome::Win}, 2, 1},
      {"a doubled hand is one loss", {D}, {Outcome::Lose}, -1, -2},
      {"a surrender is a loss", {R}, {Outcome::Surrendered}, -1, -2},
      {"a split won and lost is a push", {P, S, S}, {Outcome::Win, Outcome::Lose}, 1, -1},
      {"a split won twice is one win", {P, S, S}, {Outcome::Win, Outcome::Win}, 2, 1},
      {"a split lost and pushed is a loss", {P, S, S}, {Outcome::Lose, Outcome::Push}, -1, -2},
      {"a split doubled and won, and lost, is a win", {P, D, S}, {Outcome::Win, Outcome::Lose}, 2, 1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Course course = [&row](Session& session) { return EndsWith(session, row.plays, row.outcomes); };
    EXPECT_EQ(SessionAfter(Outcome::Win, course).Run(), row.afterAWin);
    EXPECT_EQ(SessionAfter(Outcome::Lose, course).Run(), row.afterALoss);
  }
}

TEST(SessionTest, ARunBeginsAnewWithTheNextRound) {
  const auto win = [](Session& session) { return EndsWith(session, {Decision::Stand}, {Outcome::Win}); };
  Session between = SessionAfter(Outcome::Win, win);
  EXPECT_EQ(between.Run(), 2);
  between.BeginRun();
  EXPECT_EQ(between.Run(), 0);

  Session within = SessionAfter(Outcome::Win, [&win](Session& session) {
    session.BeginRun();
    if (session.Run() != 0 || !win(session)) return false;
    EXPECT_EQ(session.Run(), 0) << "won, but played before the run began";
    session.Deal();
    return win(session);
  });
  EXPECT_EQ(within.Run(), 1);
}

std::string NamesOf(const std::vector<Card>& cards) {
  std::string names;
  for (const Card card : cards) names += (names.empty() ? "" : " ") + NameOf(card);
  return names;
}

/// As they come with this seed: Ah 2d 7s (7d) 4s 9s, 9d Js 3h (5h) 6d Kd, 3s Kh 8h (6c), hole cards in brackets. A
/// burned card goes before the round's.
TEST(SessionTest, AllHasBeenSeenButTheHoleCard) {
  Session session(Rules{.decks = 1}, 6);
  EXPECT_EQ(NamesOf(session.Seen()), "");
  session.Deal();
  EXPECT_EQ(NamesOf(session.Seen()), "Ah 2d 7s");
  session.Decide(Decision::Stand);
  EXPECT_EQ(NamesOf(session.Seen()), "Ah 2d 7s 7d 4s 9s");
  session.Deal();
  EXPECT_EQ(NamesOf(session.Seen()), "Ah 2d 7s 7d 4s 9s 9d Js 3h");
  session.Decide(Decision::Hit);
  EXPECT_EQ(NamesOf(session.Seen()), "Ah 2d 7s 7d 4s 9s 9d Js 3h 6d");
  session.Burn();
  EXPECT_EQ(NamesOf(session.Seen()), "Ah 2d 7s 7d 4s 9s Kd 9d Js 3h 6d");
  ASSERT_FALSE(session.IsOver());
  session.Deal();
  EXPECT_EQ(NamesOf(session.Seen()), "Ah 2d 7s 7d 4s 9s Kd 9d Js 3h 5h 6d 3s Kh 8h") << "5h: the round was given up";
}

TEST(SessionTest, ABetHoldsFromTheNextRound) {
  Session session(Rules{}, 6);
  EXPECT_EQ(session.CurrentBet(), 1000);
  DealToADecision(session);
  session.Bet(4000);
  EXPECT_EQ(session.CurrentRound().ActiveHand().bet, 1000);
  DealToADecision(session);
  EXPECT_EQ(session.CurrentRound().ActiveHand().bet, 4000);
}

TEST(SessionTest, RefusesTheBetsThatARoundRefuses) {
  constexpr Rules SixToFive = {.blackjackPays = {6, 5}};
  struct Row {
    const char* name;
    Rules rules;
    Money bet;
    bool isTaken;
  };
  const Row rows[] = {
      {"the least", {}, 2, true},
      {"the highest", {}, Round::MaximumBet, true},
      {"none", {}, 0, false},
      {"negative", {}, -2, false},
      {"odd", {}, 3, false},
      {"too high", {}, Round::MaximumBet + 2, false},
      {"paid exactly", SixToFive, 10, true},
      {"a blackjack could not be paid", SixToFive, 12, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Session session(row.rules, 6);
    DealToADecision(session);
    if (row.isTaken) {
      EXPECT_NO_THROW(Session(row.rules, 6, row.bet).Deal());
      session.Bet(row.bet);
      EXPECT_EQ(session.CurrentBet(), row.bet);
      EXPECT_NO_THROW(session.Deal());
    } else {
      EXPECT_THROW(Session(row.rules, 6, row.bet), std::invalid_argument);
      EXPECT_THROW(session.Bet(row.bet), std::invalid_argument);
      EXPECT_EQ(session.CurrentBet(), 1000);
    }
  }
}

TEST(SessionTest, TheHoleCardIsNotSeenForTheTensRatio) {
  for (std::uint64_t seed = 1; seed < 40; ++seed) {
    Session session(Rules{.decks = 1}, seed);
    session.Deal();
    if (session.IsOver()) continue;
    std::vector<Card> seen;
    for (const Card card : session.CurrentRound().ActiveHand().hand.Cards()) seen.push_back(card);
    seen.push_back(session.CurrentRound().DealerHand().Cards()[0]);
    EXPECT_EQ(session.PredictTensRatio(true), TensRatio(1, seen) > FullDeckTensRatio) << seed;
  }
}

TEST(SessionTest, BurnsACard) {
  Session session(Rules{}, 2);
  const auto left = session.TheShoe().RemainingCount();
  session.Burn();
  EXPECT_EQ(session.TheShoe().RemainingCount(), left - 1);
}

TEST(SessionTest, ThereIsNoTensRatioOfNoCards) {
  Session session(Rules{.decks = 1}, 2);
  session.Deal();
  while (!session.IsOver()) session.Decide(Decision::Stand);
  while (session.TheShoe().RemainingCount() > 1) session.Burn();
  EXPECT_NE(session.PredictTensRatio(true), std::nullopt);
  session.Burn();
  EXPECT_EQ(session.PredictTensRatio(true), std::nullopt);
  EXPECT_EQ(session.Predictions().Made(), 1);
}

}  // namespace
}  // namespace trainer::engine
