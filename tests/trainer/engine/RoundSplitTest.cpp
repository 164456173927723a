#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/trainer/engine/ScriptedCards.h"
#include "trainer/engine/Round.h"

namespace trainer::engine {
namespace {

constexpr Decision H = Decision::Hit;
constexpr Decision S = Decision::Stand;
constexpr Decision P = Decision::Split;
constexpr Decision D = Decision::Double;

/// The ranks of a seat's hands with a star behind the active one: "89* 8".
std::string TableOf(const Round& round, std::size_t seat = 0) {
  std::string table;
  for (std::size_t index = 0; index < round.HandsOf(seat).size(); ++index) {
    if (index > 0) table += ' ';
    for (const Card card : round.HandsOf(seat)[index].hand.Cards()) table += NameOf(card)[0];
    if (!round.IsOver() && round.ActivePlace() == HandPlace{seat, index}) table += '*';
  }
  return table;
}

std::vector<Money> NetsOf(const Round& round, std::size_t seat = 0) {
  std::vector<Money> nets;
  for (const PlayerHand& hand : round.HandsOf(seat)) nets.push_back(hand.result ? hand.result->net : -1);
  return nets;
}

TEST(RoundSplitTest, EachHandGetsItsSecondCardWhenItBecomesActive) {
  ScriptedCards cards("8 6 8 T  3 T  2 9  5");
  Round round({}, cards, {100});
  round.Play(P);
  EXPECT_EQ(TableOf(round), "83* 8");
  EXPECT_EQ(round.Legal(), (LegalPlays{H, S, D}));
  EXPECT_EQ(round.HandsOf(0)[1].bet, 100);
  round.Play(H);  // 21 stands by itself
  EXPECT_EQ(TableOf(round), "83T 82*");
  round.Play(H);
  EXPECT_EQ(TableOf(round), "83T 829*");
  round.Play(S);
  ASSERT_TRUE(round.IsOver());
  EXPECT_EQ(NetsOf(round), (std::vector<Money>{0, -100}));
  EXPECT_EQ(round.DealerHand().Total(), 21);
  EXPECT_EQ(round.Net(), -100);
}

TEST(RoundSplitTest, SplitsToFourHandsAndNoFurther) {
  ScriptedCards cards("8 6 8 T  8 8 8  T T T  5");
  Round round({}, cards, {100});
  round.Play(P);
  EXPECT_EQ(TableOf(round), "88* 8");
  EXPECT_TRUE(round.Legal().Allows(P));
  round.Play(P);
  EXPECT_EQ(TableOf(round), "88* 8 8");
  round.Play(P);
  EXPECT_EQ(TableOf(round), "88* 8 8 8");
  EXPECT_EQ(round.Legal(), (LegalPlays{H, S, D}));
  EXPECT_THROW(round.Play(P), std::logic_error);
  round.Play(S);
  EXPECT_EQ(TableOf(round), "88 8T* 8 8");
  round.Play(S);
  round.Play(S);
  EXPECT_EQ(TableOf(round), "88 8T 8T 8T*");
  round.Play(S);
  ASSERT_TRUE(round.IsOver());
  EXPECT_EQ(NetsOf(round), (std::vector<Money>{-100, -100, -100, -100}));
}

TEST(RoundSplitTest, ALaterHandSplitsInItsPlace) {
  ScriptedCards cards("8 6 8 T  T 8 9 7  T");
  Round round({}, cards, {100});
  round.Play(P);
  round.Play(S);
  EXPECT_EQ(TableOf(round), "8T 88*");
  round.Play(P);
  EXPECT_EQ(TableOf(round), "8T 89* 8");
  round.Play(S);
  EXPECT_EQ(TableOf(round), "8T 89 87*");
  round.Play(S);
  EXPECT_EQ(NetsOf(round), (std::vector<Money>{100, 100, 100}));
}

TEST(RoundSplitTest, TheLimitOfHandsIsTheTables) {
  ScriptedCards cards("8 6 8 T  8 2");
  Round round({.maximumHands = 2}, cards, {100});
  round.Play(P);
  EXPECT_EQ(TableOf(round), "88* 8");
  EXPECT_FALSE(round.Legal().Allows(P));
}

TEST(RoundSplitTest, TheLimitOfHandsIsForEachSeat) {
  ScriptedCards cards("8 9 6 8 9 T  T T 2");
  Round round({.maximumHands = 2}, cards, {100, 100});
  round.Play(P);
  round.Play(S);
  round.Play(S);
  EXPECT_EQ(round.ActivePlace(), (HandPlace{1, 0}));
  EXPECT_TRUE(round.Legal().Allows(P));
  round.Play(P);
  EXPECT_EQ(TableOf(round, 1), "92* 9");
}

TEST(RoundSplitTest, SplitAcesGetOneCardEachAndAreNoBlackjack) {
  ScriptedCards cards("A 6 A T  K A  3");
  Round round({}, cards, {100});
  round.Play(P);
  ASSERT_TRUE(round.IsOver());
  EXPECT_EQ(TableOf(round), "AK AA");
  EXPECT_EQ(round.HandsOf(0)[0].result, (HandResult{Outcome::Win, 100}));
  EXPECT_EQ(round.HandsOf(0)[1].result, (HandResult{Outcome::Lose, -100}));
}

TEST(RoundSplitTest, A21OfSplitTensPaysEvenMoney) {
  ScriptedCards cards("K 6 T T  A 9  2");
  Round round({}, cards, {100});
  round.Play(P);
  EXPECT_EQ(TableOf(round), "KA T9*");
  round.Play(S);
  EXPECT_EQ(round.HandsOf(0)[0].result, (HandResult{Outcome::Win, 100}));
  EXPECT_EQ(round.HandsOf(0)[1].result, (HandResult{Outcome::Win, 100}));
}

TEST(RoundSplitTest, DoublesASplitHandWhereTheTableAllowsIt) {
  ScriptedCards cards("8 6 8 T  3 T  T  T");
  Round round({}, cards, {100});
  round.Play(P);
  round.Play(D);
  EXPECT_EQ(TableOf(round), "83T 8T*");
  EXPECT_EQ(round.HandsOf(0)[0].bet, 200);
  EXPECT_EQ(round.HandsOf(0)[1].bet, 100);
  EXPECT_TRUE(round.HandsOf(0)[0].hand.IsDoubled());
  round.Play(S);
  EXPECT_EQ(NetsOf(round), (std::vector<Money>{200, 100}));
  EXPECT_EQ(round.Net(), 300);
}

TEST(RoundSplitTest, DoesNotDoubleASplitHandWhereTheTableForbidsIt) {
  ScriptedCards cards("8 6 8 T  3");
  Round round({.doubleAfterSplit = false}, cards, {100});
  EXPECT_TRUE(round.Legal().Allows(D));
  round.Play(P);
  EXPECT_EQ(round.Legal(), (LegalPlays{H, S}));
  EXPECT_THROW(round.Play(D), std::logic_error);
}

TEST(RoundSplitTest, TheDealerPlaysForOneHandAliveAndNotForBustOnes) {
  struct Row {
    const char* name;
    const char* cards;
    std::vector<Decision> plays;
    std::vector<Money> nets;
    std::size_t dealerCards;
  };
  const Row rows[] = {
      {"both bust", "8 6 8 T  6 T  6 T", {P, H, H}, {-100, -100}, 2},
      {"first bust", "8 6 8 T  6 T  T  5", {P, H, S}, {-100, -100}, 3},
      {"second bust", "8 6 8 T  T  6 T  T", {P, S, H}, {100, -100}, 3},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ScriptedCards cards(row.cards);
    Round round({}, cards, {100});
    for (const Decision play : row.plays) round.Play(play);
    ASSERT_TRUE(round.IsOver());
    EXPECT_EQ(NetsOf(round), row.nets);
    EXPECT_EQ(round.DealerHand().Cards().size(), row.dealerCards);
    EXPECT_EQ(cards.Remaining(), 0U);
  }
}

}  // namespace
}  // namespace trainer::engine
